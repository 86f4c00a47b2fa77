package com.vexane.producer;

import java.util.ArrayList;
import java.util.List;
import java.util.Objects;

/** What the builders of geometry have collected. Whether it fits together is checked when a record is made. */
final class GeometryParts {
    private static final int NUM_RELATIONS = 6;

    private double[][] points = {};
    /** An entry is null for a curve without geometry. */
    private final List<double[][]> curves = new ArrayList<>();
    private final List<SheetGeometry> sheets = new ArrayList<>();
    /** An entry is null for a relation that is not given. */
    private final int[][][] relations = new int[NUM_RELATIONS][][];

    void setPoints(double[]... axes) {
        points = requireArrays("points", axes);
    }

    void addCurve(double[]... axes) {
        curves.add(requireArrays("curve " + curves.size(), axes));
    }

    void addEmptyCurve() {
        curves.add(null);
    }

    void addSheet(SheetGeometry sheet) {
        sheets.add(Objects.requireNonNull(sheet, "sheet"));
    }

    void setRelation(String name, int index, int[]... rows) {
        Objects.requireNonNull(rows, name);
        for (int i = 0; i < rows.length; ++i) {
            Objects.requireNonNull(rows[i], name + "[" + i + "]");
        }
        relations[index] = rows.clone();
    }

    void createNative(GeometryRecord peer, int dimension, boolean isModel, int id, String name) {
        GeometryRecord.createNative(peer, dimension, isModel, id, Objects.requireNonNull(name, "name"), points,
                curves.toArray(double[][][]::new),
                sheets.stream().map(sheet -> sheet.coordinates).toArray(double[][][]::new),
                sheets.stream().map(sheet -> sheet.triangles).toArray(int[][][]::new),
                sheets.stream().map(sheet -> sheet.normals).toArray(float[][][]::new),
                sheets.stream().mapToInt(sheet -> sheet.upDomain).toArray(),
                sheets.stream().mapToInt(sheet -> sheet.downDomain).toArray(), relations);
    }

    static double[][] requireArrays(String name, double[]... axes) {
        Objects.requireNonNull(axes, name);
        for (int i = 0; i < axes.length; ++i) {
            Objects.requireNonNull(axes[i], name + "[" + i + "]");
        }
        return axes.clone();
    }
}
