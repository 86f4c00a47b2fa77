/**
 * Records of post-processing results and of geometry from Java arrays and direct buffers.
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
 * <p>Geometry has records of its own, all of them a {@link GeometryRecord}:
 *
 * <ul>
 *   <li>{@link GeometryBuilder1D}, {@link GeometryBuilder2D} and {@link GeometryBuilder3D} make the record of a draw
 *       object ({@link RenderDraw1D}, {@link RenderDraw2D}, {@link RenderDraw3D}) or of a physics object ({@link
 *       RenderGeom1D}, {@link RenderGeom2D}, {@link RenderGeom3D}) of points, curves and sheets, each a {@link
 *       SheetGeometry}. They derive what is not given, such as most of the relations ({@link GeometryRelation}).
 *   <li>A {@link RenderMeshCollection} has meshes of parts of a physics object, each of a {@link MeshKind}.
 *   <li>{@link ProjectionBuilder2D} makes the {@link RenderDrawProj2D} of geometry that is projected to a plane.
 * </ul>
 *
 * <p>Groups and builders are plain Java objects, which need no closing. Records are peers: {@code build} copies the
 * arrays into one, a plot copies what it needs from it, and it can be closed right after the fill. Records are
 * independent of each other and of scenes; each is used by one thread at a time.
 */
package com.vexane.producer;
