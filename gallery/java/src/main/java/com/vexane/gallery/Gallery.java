package com.vexane.gallery;

import com.vexane.gallery.pictures.ArcTessellation;
import com.vexane.gallery.pictures.ArrowScalings;
import com.vexane.gallery.pictures.BallsAndProbes;
import com.vexane.gallery.pictures.BracketEdges;
import com.vexane.gallery.pictures.BracketMaterials;
import com.vexane.gallery.pictures.BracketMesh;
import com.vexane.gallery.pictures.BracketPath;
import com.vexane.gallery.pictures.BracketSlices;
import com.vexane.gallery.pictures.BracketSolid;
import com.vexane.gallery.pictures.BracketStress;
import com.vexane.gallery.pictures.CityLabels;
import com.vexane.gallery.pictures.DashedLines;
import com.vexane.gallery.pictures.DrawnCurves;
import com.vexane.gallery.pictures.EarthRelief;
import com.vexane.gallery.pictures.EarthTogether;
import com.vexane.gallery.pictures.EarthquakeMap;
import com.vexane.gallery.pictures.Earthquakes;
import com.vexane.gallery.pictures.EditedGeometry;
import com.vexane.gallery.pictures.FourCameras;
import com.vexane.gallery.pictures.FrameOverRotatedObject;
import com.vexane.gallery.pictures.FrequencyResponse;
import com.vexane.gallery.pictures.GraphAxes;
import com.vexane.gallery.pictures.Hardcopy;
import com.vexane.gallery.pictures.LegendPositions;
import com.vexane.gallery.pictures.LightsLockedAndFree;
import com.vexane.gallery.pictures.LocalAxes;
import com.vexane.gallery.pictures.LogarithmicAxes;
import com.vexane.gallery.pictures.MarkingModes;
import com.vexane.gallery.pictures.MarkingRules;
import com.vexane.gallery.pictures.ModelMarkers;
import com.vexane.gallery.pictures.NumberedPlate;
import com.vexane.gallery.pictures.OceanIsotherms;
import com.vexane.gallery.pictures.OceanProfile;
import com.vexane.gallery.pictures.OceanSlices;
import com.vexane.gallery.pictures.OverlayShapes;
import com.vexane.gallery.pictures.PickedParts;
import com.vexane.gallery.pictures.PlateWithHole;
import com.vexane.gallery.pictures.PolarView;
import com.vexane.gallery.pictures.PrincipalStress;
import com.vexane.gallery.pictures.ProjectedGeometry;
import com.vexane.gallery.pictures.RaisedEdges;
import com.vexane.gallery.pictures.ResizeBehaviours;
import com.vexane.gallery.pictures.SeaTemperature;
import com.vexane.gallery.pictures.SeaTemperatureBands;
import com.vexane.gallery.pictures.SeaTemperatureYear;
import com.vexane.gallery.pictures.SnapPoints;
import com.vexane.gallery.pictures.StressInSolid;
import com.vexane.gallery.pictures.SymbolsAndStyles;
import com.vexane.gallery.pictures.TerrainColors;
import com.vexane.gallery.pictures.TerrainContours;
import com.vexane.gallery.pictures.TerrainFine;
import com.vexane.gallery.pictures.TerrainFlat;
import com.vexane.gallery.pictures.TerrainRaised;
import com.vexane.gallery.pictures.Tubes;
import com.vexane.gallery.pictures.TubesFlat;
import com.vexane.gallery.pictures.VectorFigure;
import com.vexane.gallery.pictures.Vortex;
import com.vexane.gallery.pictures.WindArrows;
import com.vexane.gallery.pictures.WindRibbons;
import com.vexane.gallery.pictures.WindTubes;
import com.vexane.gallery.pictures.WorkPlanes;
import com.vexane.graphics3d.Canvas3dGlobalSettings;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.stream.Collectors;

/** Draws all pictures and writes their pages, in one virtual machine and without a screen. */
public final class Gallery {
    private static final List<Picture> PICTURES = List.of(
            new TerrainFlat(),
            new TerrainRaised(),
            new TerrainFine(),
            new TerrainColors(),
            new SeaTemperature(),
            new TerrainContours(),
            new SeaTemperatureBands(),
            new OceanIsotherms(),
            new OceanSlices(),
            new BracketStress(),
            new BracketSlices(),
            new BracketMesh(),
            new EarthRelief(),
            new Earthquakes(),
            new EarthquakeMap(),
            new BracketEdges(),
            new RaisedEdges(),
            new CityLabels(),
            new DashedLines(),
            new WindArrows(),
            new WindTubes(),
            new WindRibbons(),
            new EarthTogether(),
            new Tubes(),
            new TubesFlat(),
            new PrincipalStress(),
            new PlateWithHole(),
            new LocalAxes(),
            new ArrowScalings(),
            new Vortex(),
            new FourCameras(),
            new ResizeBehaviours(),
            new LightsLockedAndFree(),
            new LogarithmicAxes(),
            new PolarView(),
            new SeaTemperatureYear(),
            new OceanProfile(),
            new BracketPath(),
            new GraphAxes(),
            new SymbolsAndStyles(),
            new LegendPositions(),
            new FrequencyResponse(),
            new BracketSolid(),
            new MarkingModes(),
            new StressInSolid(),
            new NumberedPlate(),
            new SnapPoints(),
            new BracketMaterials(),
            new ModelMarkers(),
            new MarkingRules(),
            new PickedParts(),
            new WorkPlanes(),
            new ProjectedGeometry(),
            new BallsAndProbes(),
            new OverlayShapes(),
            new FrameOverRotatedObject(),
            new DrawnCurves(),
            new EditedGeometry(),
            new ArcTessellation(),
            new Hardcopy(),
            new VectorFigure());

    /** Pixels of most pictures. */
    static final int WIDTH = 1200;
    private static final int HEIGHT = 750;
    /** Dots per inch of the pictures: texts of 12 points are 18 pixels high. */
    private static final int RESOLUTION = 108;

    private Gallery() {}

    /**
     * Draws the gallery: {@code Gallery ROOT OUTPUT [NAME...]}.
     *
     * @param arguments the folder of the project, which holds data and sources; the folder for the pictures; names of
     *         programs, if not all are to be drawn
     * @throws IOException if a file cannot be read or written
     */
    public static void main(String[] arguments) throws IOException {
        List<String> names = Arrays.asList(arguments).subList(Math.min(2, arguments.length), arguments.length);
        List<String> unknown = names.stream().filter(name -> PICTURES.stream().noneMatch(p -> name.equals(nameOf(p))))
                .toList();
        if (arguments.length < 2 || !unknown.isEmpty()) {
            System.err.println("usage: Gallery ROOT OUTPUT [NAME...]\nnames: "
                    + PICTURES.stream().map(Gallery::nameOf).collect(Collectors.joining(" "))
                    + (unknown.isEmpty() ? "" : "\nunknown: " + String.join(" ", unknown)));
            System.exit(2);
        }
        Path output = Path.of(arguments[1]);
        draw(Path.of(arguments[0]), output, names, WIDTH, HEIGHT).forEach(System.out::println);
        System.out.println(output.resolve("index.html"));
    }

    private static String nameOf(Picture picture) {
        return picture.getClass().getSimpleName();
    }

    /** Draws the named pictures, or all if no name is given, and returns their files. */
    static List<Path> draw(Path root, Path output, List<String> names, int width, int height) throws IOException {
        Files.createDirectories(output);
        List<Example> examples = new ArrayList<>();
        Canvas3dGlobalSettings.setOnScreenResolution(RESOLUTION);
        for (Picture picture : PICTURES) {
            if (names.isEmpty() || names.contains(nameOf(picture))) {
                examples.add(new Example(picture.getClass().getAnnotation(About.class), nameOf(picture),
                        source(picture, root), shoot(picture, root, output, width, height)));
            }
        }
        new Site(root, output, examples).write();
        return examples.stream().flatMap(example -> example.shots().stream()).map(Studio.Shot::file).toList();
    }

    private static List<Studio.Shot> shoot(Picture picture, Path root, Path output, int width, int height)
            throws IOException {
        try (Studio studio = new Studio(root, output, picture.getClass(), width, height)) {
            picture.draw(studio);
            return studio.shots();
        }
    }

    private static String source(Picture picture, Path root) throws IOException {
        String file = picture.getClass().getName().replace('.', '/') + ".java";
        return Files.readString(root.resolve("gallery/java/src/main/java").resolve(file));
    }
}
