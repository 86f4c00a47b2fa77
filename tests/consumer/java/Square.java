import com.vexane.graphics3d.Scene;
import com.vexane.graphics3d.SceneGraphPlotGroup;
import com.vexane.graphics3d.SceneGraphPlotSurface2d;
import com.vexane.graphics3d.SceneGraphRoot;
import com.vexane.interaction.CameraInteraction;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import com.vexane.renderer.OffscreenRenderer;
import java.nio.file.Path;

/** Uses all four jars: fills a plot, zooms as the mouse wheel would, and writes a picture. */
public final class Square {
    public static void main(String[] arguments) throws Exception {
        PostDataGroup square = new PostDataGroup()
                .coordinates(new double[] {0, 2, 2, 0}, new double[] {0, 0, 1, 1})
                .elements(new int[] {0, 0}, new int[] {1, 2}, new int[] {2, 3})
                .data(new double[] {0, 1, 2, 3});
        try (PostDataObject record = new PostDataBuilder(PlotKind.SURFACE_2D)
                        .role(DataRole.COLOR, 0).addGroup(square).build();
                Scene scene = new Scene();
                SceneGraphRoot root = SceneGraphRoot.connect(scene);
                SceneGraphPlotGroup group = new SceneGraphPlotGroup();
                SceneGraphPlotSurface2d plot = new SceneGraphPlotSurface2d(1);
                OffscreenRenderer renderer = OffscreenRenderer.create(320, 200);
                CameraInteraction mouse = CameraInteraction.connect(renderer, 200)) {
            root.setChild(group);
            group.addPlot(plot);
            plot.setColorTable("blue to red", new double[][] {{0, 0, 1}, {1, 0, 0}}, true);
            plot.fillPlot(record);
            System.out.println("legend " + plot.getLegendMin() + " to " + plot.getLegendMax());
            renderer.setScene(scene);
            renderer.zoomExtents();
            System.out.println("zoomed: " + mouse.wheel(-1, 160, 100));
            renderer.draw();
            renderer.writePng(Path.of(arguments[0]));
            group.removeAllPlots();
        }
    }
}
