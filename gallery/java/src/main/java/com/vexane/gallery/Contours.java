package com.vexane.gallery;

import com.vexane.producer.PostDataGroup;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.HashMap;
import java.util.List;
import java.util.Map;

/**
 * Contours of values at the points of triangles: what a producer computes before it fills a contour plot. Values change
 * linearly along the edges of a triangle.
 */
public final class Contours {
    private final double[][] coordinates;
    private final int[][] triangles;
    private final double[] values;

    /**
     * Contours of a surface.
     *
     * @param coordinates two or three axes
     * @param triangles an array for each corner
     * @param values one for each point
     */
    public Contours(double[][] coordinates, int[][] triangles, double[] values) {
        this.coordinates = coordinates;
        this.triangles = triangles;
        this.values = values;
    }

    /**
     * The lines at which the values cross a level.
     *
     * @param level the level
     * @return a group of line elements, with the level as its only value
     */
    public PostDataGroup lines(double level) {
        Points points = new Points();
        List<int[]> lines = new ArrayList<>();
        for (int i = 0; i < triangles[0].length; ++i) {
            int[] ends = new int[3];
            int count = 0;
            for (int corner = 0; corner < 3; ++corner) {
                int a = triangles[corner][i];
                int b = triangles[(corner + 1) % 3][i];
                if (values[a] < level != values[b] < level) {
                    ends[count++] = points.between(Math.min(a, b), Math.max(a, b), level);
                }
            }
            if (count == 2) {
                lines.add(ends);
            }
        }
        return new PostDataGroup().coordinates(points.axes()).elements(columns(lines, 2)).data(new double[] {level});
    }

    /**
     * The part of the surface with values between two levels, cut along both.
     *
     * @param low the lower level
     * @param high the upper level
     * @return a group of triangles, with the middle of both levels as its only value
     */
    public PostDataGroup band(double low, double high) {
        Points points = new Points();
        List<int[]> parts = new ArrayList<>();
        for (int i = 0; i < triangles[0].length; ++i) {
            List<Integer> outline = new ArrayList<>();
            for (int corner = 0; corner < 3; ++corner) {
                int a = triangles[corner][i];
                int b = triangles[(corner + 1) % 3][i];
                if (low <= values[a] && values[a] < high) {
                    outline.add(points.at(a));
                }
                for (double level : values[a] < values[b] ? new double[] {low, high} : new double[] {high, low}) {
                    if (values[a] < level != values[b] < level) {
                        outline.add(points.between(Math.min(a, b), Math.max(a, b), level));
                    }
                }
            }
            for (int corner = 2; corner < outline.size(); ++corner) {
                parts.add(new int[] {outline.get(0), outline.get(corner - 1), outline.get(corner)});
            }
        }
        return new PostDataGroup().coordinates(points.axes()).elements(columns(parts, 3))
                .data(new double[] {0.5 * (low + high)});
    }

    private static int[][] columns(List<int[]> rows, int count) {
        int[][] columns = new int[count][rows.size()];
        for (int i = 0; i < rows.size(); ++i) {
            for (int column = 0; column < count; ++column) {
                columns[column][i] = rows.get(i)[column];
            }
        }
        return columns;
    }

    /** The points of one group: those of the surface and those on its edges, each once. */
    private final class Points {
        /** A point on an edge; at a point of the surface both ends are that point and there is no level. */
        private record Key(int from, int to, double level) {}

        private final Map<Key, Integer> numbers = new HashMap<>();
        private final List<double[]> points = new ArrayList<>();

        int at(int point) {
            return number(new Key(point, point, Double.NaN), 0);
        }

        int between(int from, int to, double level) {
            return number(new Key(from, to, level), (level - values[from]) / (values[to] - values[from]));
        }

        private int number(Key key, double part) {
            return numbers.computeIfAbsent(key, k -> {
                points.add(Arrays.stream(coordinates)
                        .mapToDouble(axis -> axis[k.from] + part * (axis[k.to] - axis[k.from])).toArray());
                return points.size() - 1;
            });
        }

        double[][] axes() {
            double[][] axes = new double[coordinates.length][points.size()];
            for (int i = 0; i < points.size(); ++i) {
                for (int axis = 0; axis < axes.length; ++axis) {
                    axes[axis][i] = points.get(i)[axis];
                }
            }
            return axes;
        }
    }
}
