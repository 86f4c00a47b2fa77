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
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.StringTokenizer;
import java.util.stream.IntStream;

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

    private PlotFile(double[][] coordinates, int[][] triangles, int[][] lines, int[][] tetrahedra, double[] data,
            double[] tetrahedralData, double[][] vectors) {
        this.coordinates = coordinates;
        this.triangles = triangles;
        this.lines = lines;
        this.tetrahedra = tetrahedra;
        this.data = data;
        this.tetrahedralData = tetrahedralData;
        this.vectors = vectors;
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
        return new PlotFile(coordinates.columns(), indices(triangles.columns()), indices(lines.columns()),
                indices(tetrahedra.columns()), data.columns()[0], tetrahedralData.columns()[0],
                vectors.columns());
    }

    /**
     * The parts of a file in which one value is the same, as those of slices or levels: runs of points with the triangles
     * between them.
     *
     * @param key the value of each point, such as its x
     * @return a file for each part, with points, triangles and data
     */
    public List<PlotFile> split(double[] key) {
        List<PlotFile> parts = new ArrayList<>();
        int triangle = 0;
        for (int first = 0, last = 0; first < key.length; first = last) {
            while (last < key.length && key[last] == key[first]) {
                ++last;
            }
            int firstTriangle = triangle;
            while (triangle < triangles[0].length && triangles[0][triangle] < last) {
                ++triangle;
            }
            parts.add(part(first, last, firstTriangle, triangle));
        }
        return parts;
    }

    private PlotFile part(int first, int last, int firstTriangle, int lastTriangle) {
        double[][] points = Arrays.stream(coordinates).map(axis -> Arrays.copyOfRange(axis, first, last))
                .toArray(double[][]::new);
        int[][] corners = Arrays.stream(triangles).map(corner -> Arrays.stream(corner, firstTriangle, lastTriangle)
                .map(point -> point - first).toArray()).toArray(int[][]::new);
        return new PlotFile(points, corners, new int[2][0], new int[4][0], Arrays.copyOfRange(data, first, last),
                new double[0], new double[3][0]);
    }

    /**
     * The edges of the triangles, each once.
     *
     * @return an array for each end, counted from 0
     */
    public int[][] edges() {
        long[] edges = IntStream.range(0, 3 * triangles[0].length).mapToLong(i -> {
            int a = triangles[i % 3][i / 3];
            int b = triangles[(i + 1) % 3][i / 3];
            return (long) Math.min(a, b) << 32 | Math.max(a, b);
        }).sorted().distinct().toArray();
        return new int[][] {
            Arrays.stream(edges).mapToInt(edge -> (int) (edge >> 32)).toArray(),
            Arrays.stream(edges).mapToInt(edge -> (int) edge).toArray()
        };
    }

    /**
     * At each point, the smallest value of the tetrahedra around it.
     *
     * @return one for each point; infinity for a point without tetrahedra
     */
    public double[] smallestOfTetrahedra() {
        double[] smallest = new double[coordinates[0].length];
        Arrays.fill(smallest, Double.POSITIVE_INFINITY);
        for (int i = 0; i < tetrahedralData.length; ++i) {
            for (int[] corner : tetrahedra) {
                smallest[corner[i]] = Math.min(smallest[corner[i]], tetrahedralData[i]);
            }
        }
        return smallest;
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
