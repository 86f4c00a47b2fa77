package com.vexane.gallery;

import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.Arrays;
import java.util.List;
import java.util.NoSuchElementException;

/**
 * A table in a text file: a header row with the names of the columns, then one row per entry, with commas between the
 * columns. A name may be followed by a unit in parentheses, which does not belong to it.
 */
public final class CsvFile {
    private final Path file;
    private final List<String> names;
    private final List<String[]> rows;

    private CsvFile(Path file, List<String> names, List<String[]> rows) {
        this.file = file;
        this.names = names;
        this.rows = rows;
    }

    /**
     * Reads a file.
     *
     * @param file the file
     * @return its table
     * @throws IOException if it cannot be read, or a row has another number of columns than the header
     */
    public static CsvFile read(Path file) throws IOException {
        List<String[]> rows = Files.readAllLines(file).stream().map(row -> row.split(",", -1)).toList();
        for (String[] row : rows) {
            if (row.length != rows.get(0).length) {
                throw new IOException(file + ": this row has " + row.length + " columns, the header has "
                        + rows.get(0).length + ": " + String.join(",", row));
            }
        }
        List<String> names = Arrays.stream(rows.get(0)).map(name -> name.replaceAll(" *\\(.*\\)$", "")).toList();
        return new CsvFile(file, names, rows.subList(1, rows.size()));
    }

    /**
     * The names of the columns.
     *
     * @return the names without units, in the order of the columns
     */
    public List<String> names() {
        return names;
    }

    /**
     * The numbers of a column.
     *
     * @param name the name of the column, without its unit
     * @return a number for each row
     * @throws NoSuchElementException if there is no such column
     * @throws NumberFormatException if an entry is not a number
     */
    public double[] column(String name) {
        return Arrays.stream(texts(name)).mapToDouble(Double::parseDouble).toArray();
    }

    /**
     * Several columns of numbers.
     *
     * @param names the names of the columns, without their units
     * @return an array for each name
     * @throws NoSuchElementException if there is no such column
     * @throws NumberFormatException if an entry is not a number
     */
    public double[][] columns(String... names) {
        return Arrays.stream(names).map(this::column).toArray(double[][]::new);
    }

    /**
     * The entries of a column as they are in the file.
     *
     * @param name the name of the column, without its unit
     * @return a text for each row
     * @throws NoSuchElementException if there is no such column
     */
    public String[] texts(String name) {
        int column = names.indexOf(name);
        if (column < 0) {
            throw new NoSuchElementException(file + " has no column " + name + ", only " + names);
        }
        return rows.stream().map(row -> row[column]).toArray(String[]::new);
    }
}
