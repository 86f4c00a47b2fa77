/**
 * Records of post-processing results from Java arrays and direct buffers.
 *
 * <ul>
 *   <li>A {@link PostDataGroup} refers to the arrays of one part of a record: points, elements, normals and data.
 *   <li>A {@link PostDataBuilder} collects groups, the {@link PlotKind} and the {@link DataRole} of each data array,
 *       checks that they fit together, and makes the record.
 *   <li>A {@link PostDataObject} is the record, from which plots are filled. It can also be read from a file; a
 *       {@link PlotFileException} reports an invalid file.
 *   <li>An {@link EditGeometryBuilder} makes a {@link RenderDrawEdit2D}, a geometry in the plane that can be edited.
 * </ul>
 *
 * <pre>{@code
 * PostDataGroup square = new PostDataGroup().coordinates(x, y).gridElements(columns, rows).data(height);
 * try (PostDataObject record = new PostDataBuilder(PlotKind.SURFACE_2D)
 *         .role(DataRole.COLOR, 0).role(DataRole.HEIGHT, 0).addGroup(square).build()) {
 *     plot.fillPlot(record);
 * }
 * }</pre>
 *
 * <p>Groups and builders are plain Java objects, which need no closing. The record is a peer: {@code build} copies the
 * arrays into it once, a plot copies what it needs from it, and it can be closed right after the fill. Records are
 * independent of each other and of scenes; each is used by one thread at a time.
 */
package com.vexane.producer;
