package com.vexane.gallery;

import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.BufferedReader;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.Arrays;
import java.util.StringTokenizer;

/**
 * A file in the text plot format, read into arrays as a producer holds them. Unlike the library's own reader, which
 * scales the data to 0 to 1, it keeps them in their units.
 */
public final class PlotFile {
    private final double[][] coordinates;
    private final int[][] triangles;
    private final int[][] lines;
    private final int[][] tetrahedra;
    private final double[] data;
    private final double[] tetrahedralData;
    private final double[][] vectors;

    private PlotFile(Rows coordinates, Rows triangles, Rows lines, Rows tetrahedra, Rows data, Rows tetrahedralData,
            Rows vectors) {
        this.coordinates = coordinates.columns();
        this.triangles = indices(triangles.columns());
        this.lines = indices(lines.columns());
        this.tetrahedra = indices(tetrahedra.columns());
        this.data = data.columns()[0];
        this.tetrahedralData = tetrahedralData.columns()[0];
        this.vectors = vectors.columns();
    }

    /**
     * Reads a file.
     *
     * @param file the file
     * @return what it holds
     * @throws IOException if it cannot be read, or a row has too few numbers
     */
    public static PlotFile read(Path file) throws IOException {
        Rows coordinates = new Rows(3);
        Rows triangles = new Rows(3);
        Rows lines = new Rows(2);
        Rows tetrahedra = new Rows(4);
        Rows data = new Rows(1);
        Rows tetrahedralData = new Rows(1);
        Rows vectors = new Rows(3);
        Rows current = coordinates;
        try (BufferedReader reader = Files.newBufferedReader(file)) {
            for (String row = reader.readLine(); row != null; row = reader.readLine()) {
                if (row.startsWith("%")) {
                    current = switch (row.substring(2)) {
                        case "Coordinates" -> coordinates;
                        case "Elements (triangular)" -> triangles;
                        case "Elements (lines)" -> lines;
                        case "Elements (tetrahedral)" -> tetrahedra;
                        case "Data" -> data;
                        case "Tetrahedral Data" -> tetrahedralData;
                        case "Vector data" -> vectors;
                        default -> throw new IOException(file + ": no tag for surfaces, volumes and arrows: " + row);
                    };
                } else if (!row.isBlank()) {
                    current.add(row, file);
                }
            }
        }
        return new PlotFile(coordinates, triangles, lines, tetrahedra, data, tetrahedralData, vectors);
    }

    /**
     * The points.
     *
     * @return arrays of x, y and z
     */
    public double[][] coordinates() {
        return coordinates;
    }

    /**
     * The triangles.
     *
     * @return an array for each corner, counted from 0
     */
    public int[][] triangles() {
        return triangles;
    }

    /**
     * The lines.
     *
     * @return an array for each end, counted from 0
     */
    public int[][] lines() {
        return lines;
    }

    /**
     * The tetrahedra.
     *
     * @return an array for each corner, counted from 0
     */
    public int[][] tetrahedra() {
        return tetrahedra;
    }

    /**
     * The values of the tetrahedra.
     *
     * @return one for each tetrahedron
     */
    public double[] tetrahedralData() {
        return tetrahedralData;
    }

    /**
     * The values at the points.
     *
     * @return one for each point
     */
    public double[] data() {
        return data;
    }

    /**
     * The vectors at the points.
     *
     * @return arrays of x, y and z; empty if the file has no vectors
     */
    public double[][] vectors() {
        return vectors;
    }

    /**
     * Unit normals at the points: of the triangles around each, larger ones counting more.
     *
     * @return arrays of x, y and z
     */
    public float[][] normals() {
        double[][] sums = new double[3][data.length];
        double[] x = coordinates[0];
        double[] y = coordinates[1];
        double[] z = coordinates[2];
        for (int i = 0; i < triangles[0].length; ++i) {
            int a = triangles[0][i];
            int b = triangles[1][i];
            int c = triangles[2][i];
            double ux = x[b] - x[a];
            double uy = y[b] - y[a];
            double uz = z[b] - z[a];
            double vx = x[c] - x[a];
            double vy = y[c] - y[a];
            double vz = z[c] - z[a];
            for (int corner : new int[] {a, b, c}) {
                sums[0][corner] += uy * vz - uz * vy;
                sums[1][corner] += uz * vx - ux * vz;
                sums[2][corner] += ux * vy - uy * vx;
            }
        }
        float[][] normals = new float[3][data.length];
        for (int i = 0; i < data.length; ++i) {
            double length = Math.hypot(Math.hypot(sums[0][i], sums[1][i]), sums[2][i]);
            for (int axis = 0; axis < 3; ++axis) {
                normals[axis][i] = length > 0 ? (float) (sums[axis][i] / length) : 0;
            }
        }
        return normals;
    }

    /**
     * The triangles as a record of a surface in space, with normals and coloured by the data.
     *
     * @return a record, which the caller closes
     */
    public PostDataObject surface3d() {
        float[][] normals = normals();
        PostDataGroup surface = new PostDataGroup()
                .coordinates(coordinates)
                .normals(normals[0], normals[1], normals[2])
                .elements(triangles)
                .data(data);
        return new PostDataBuilder(PlotKind.SURFACE_3D).role(DataRole.COLOR, 0).addGroup(surface).build();
    }

    /**
     * The value that a fraction of the data does not exceed.
     *
     * @param share 0 to 1
     * @return a value of the data
     */
    public double percentile(double share) {
        double[] sorted = data.clone();
        Arrays.sort(sorted);
        return sorted[(int) Math.round(share * (sorted.length - 1))];
    }

    /** Files count from 1. */
    private static int[][] indices(double[][] columns) {
        return Arrays.stream(columns)
                .map(column -> Arrays.stream(column).mapToInt(number -> (int) number - 1).toArray())
                .toArray(int[][]::new);
    }

    /** Rows of numbers, kept by column. */
    private static final class Rows {
        private final double[][] columns;
        private int count;

        Rows(int columns) {
            this.columns = new double[columns][1024];
        }

        void add(String row, Path file) throws IOException {
            StringTokenizer numbers = new StringTokenizer(row);
            if (numbers.countTokens() < columns.length) {
                throw new IOException(file + ": " + columns.length + " numbers are needed: " + row);
            }
            for (int i = 0; i < columns.length; ++i) {
                if (count == columns[i].length) {
                    columns[i] = Arrays.copyOf(columns[i], 2 * count);
                }
                columns[i][count] = Double.parseDouble(numbers.nextToken());
            }
            ++count;
        }

        double[][] columns() {
            return Arrays.stream(columns).map(column -> Arrays.copyOf(column, count)).toArray(double[][]::new);
        }
    }
}
