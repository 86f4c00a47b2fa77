package com.vexane.graphics3d;

import com.vexane.base.NativeException;
import com.vexane.base.NativePeer;
import java.util.Objects;

/**
 * A leaf of the scene tree that shows the geometry of a simulation model: the domains, boundaries, edges and points to
 * which physics settings and meshes belong. Every sheet, line and point has its number as a label, from 1.
 *
 * <pre>{@code
 * try (RenderGeom3D record = builder.buildGeom()) {      // made by com.vexane.producer
 *     model.fillObject(record);
 * }
 * model.markBoundary(3, MarkingAction.PRIMARY);
 * model.setPhysicsMarkerNormal("force", ObjectPartType.SHEET, 3, false);
 * }</pre>
 *
 * <p>Parts are named by their dimension, not by their role in the model. The domains are subdomains of a model in space,
 * but sheets of a model in the plane and lines of one on an axis; the boundaries are sheets, lines and points. So
 * {@link #markBoundary} marks a domain of a model in the plane, and {@link #markEdge} one on an axis.
 *
 * <p>A fill replaces all parts with their marks, meshes and materials. Markers, connectors and images stay. A part's
 * mark spreads to the parts that bound it, as in a {@link SceneGraphDrawObject}; its cost is the number of the part's
 * neighbours.
 */
public final class SceneGraphPhysicsObject extends SceneGraphObject {
    /**
     * Makes an empty physics object.
     *
     * @param id the id by which picks report the object
     */
    public SceneGraphPhysicsObject(int id) {
        createNative(this, id);
    }

    private SceneGraphPhysicsObject() {}

    /**
     * Makes another peer of a physics object that has a parent.
     *
     * @param parent the parent
     * @param childId the id of the object under its parent; a parent with a single child ignores it
     * @return the peer
     * @throws NativeException if the parent has no such child, or one of another class
     * @throws NullPointerException if the parent is null
     * @throws IllegalStateException if the parent's peer is closed
     */
    public static SceneGraphPhysicsObject connect(SceneGraphParent parent, int childId) {
        SceneGraphPhysicsObject object = new SceneGraphPhysicsObject();
        connectNative(object, requireOpen(parent, "parent"), childId);
        return object;
    }

    /**
     * Replaces all parts by the geometry of a model on an axis.
     *
     * @param record the peer of a record of a physics object on an axis
     * @throws NativeException if the peer is not such a record, or if it is not consistent; the message names what is
     *     wrong, and the object is unchanged; or if memory runs out, which leaves it usable
     * @throws NullPointerException if the record is null
     * @throws IllegalStateException if the record's peer is closed
     */
    public void fillObject1D(NativePeer record) {
        fillObject1D(this, requireOpen(record, "record"));
    }

    /**
     * Replaces all parts by the geometry of a model in the plane.
     *
     * @param record the peer of a record of a physics object in the plane
     * @throws NativeException as for {@link #fillObject1D}
     * @throws NullPointerException if the record is null
     * @throws IllegalStateException if the record's peer is closed
     */
    public void fillObject2D(NativePeer record) {
        fillObject2D(this, requireOpen(record, "record"));
    }

    /**
     * Replaces all parts by the geometry of a model in space. The sheets of every subdomain get the material "P".
     *
     * @param record the peer of a record of a physics object in space
     * @throws NativeException as for {@link #fillObject1D}
     * @throws NullPointerException if the record is null
     * @throws IllegalStateException if the record's peer is closed
     */
    public void fillObject(NativePeer record) {
        fillObject(this, requireOpen(record, "record"));
    }

    /** Deletes all parts. Markers, connectors and images stay. */
    public void resetObject() {
        resetObject(this);
    }

    /**
     * Gives parts their meshes. A mesh without elements removes the one that the part has. A part with a mesh is drawn
     * as that mesh.
     *
     * @param meshes the peer of a record of meshes
     * @throws NativeException if the peer is not such a record, if there is no part of the index that a mesh has, or if
     *     a mesh is not consistent; the message names what is wrong, and the object is unchanged
     * @throws NullPointerException if the record is null
     * @throws IllegalStateException if the record's peer is closed
     */
    public void addMeshCollection(NativePeer meshes) {
        addMeshCollection(this, requireOpen(meshes, "meshes"));
    }

    /** Removes the meshes of all parts. */
    public void deleteAllMeshes() {
        deleteAllMeshes(this);
    }

    /**
     * Gives a sheet, or all sheets of a subdomain, a material by name. A sheet between two subdomains has that of the
     * last call. Points and lines have no materials and are ignored.
     *
     * @param part the kind of part
     * @param index the index of the part in the record
     * @param name the name of the material
     * @throws NativeException if there is no such part
     * @throws NullPointerException if the name is null
     */
    public void setMaterial(ObjectPartType part, int index, String name) {
        setMaterial(this, levelOf(part), index, Objects.requireNonNull(name, "name"));
    }

    /**
     * Whether there is an image of a name, or a marker or connector has asked for one.
     *
     * @param name the name of a material or icon
     * @return whether the name is known
     * @throws NullPointerException if the name is null
     */
    public boolean hasImage(String name) {
        return hasImage(this, Objects.requireNonNull(name, "name"));
    }

    /**
     * Sets the image of a material or icon. The pixels are copied. Markers and connectors that exist already keep the
     * image they have, so set icons first.
     *
     * @param name the name of the material or icon
     * @param pixels the pixels 0xAARRGGBB, row by row from the upper left corner
     * @param width the number of pixels in a row
     * @param height the number of rows
     * @param resolution a size factor for the renderer
     * @throws NullPointerException if the name or the array is null
     * @throws IllegalArgumentException if width or height is negative, or the array does not have width times height
     *     pixels
     */
    public void setImage(String name, int[] pixels, int width, int height, float resolution) {
        Objects.requireNonNull(name, "name");
        if (width < 0 || height < 0 || (long) width * height != pixels.length) {
            throw new IllegalArgumentException(
                    "There are " + pixels.length + " pixels for an image of " + width + " by " + height + ".");
        }
        setImage(this, name, pixels, width, height, resolution);
    }

    /**
     * Adds a marker to a part: an icon at its label. A part may have several markers. Subdomains and parts without
     * geometry have no position for one; they get none, and a warning is logged.
     *
     * @param icon the name of the icon's image
     * @param part the kind of part; {@link ObjectPartType#ALL} is ignored
     * @param index the index of the part in the record
     * @throws NativeException if there is no such part
     * @throws NullPointerException if the name is null
     */
    public void setPhysicsMarker(String icon, ObjectPartType part, int index) {
        setPhysicsMarker(this, requireIcon(icon), levelOf(part), index);
    }

    /**
     * Adds a marker that shows the normal of a line or a sheet. Points get one without directions.
     *
     * @param icon the name of the icon's image
     * @param part the kind of part
     * @param index the index of the part in the record
     * @param flip whether the opposite of the normal is shown
     * @throws NativeException if there is no such part
     * @throws NullPointerException if the name is null
     */
    public void setPhysicsMarkerNormal(String icon, ObjectPartType part, int index, boolean flip) {
        setPhysicsMarkerNormal(this, requireIcon(icon), levelOf(part), index, flip);
    }

    /**
     * Adds a marker that shows given directions at a line or a sheet. Points get one without directions.
     *
     * @param icon the name of the icon's image
     * @param part the kind of part
     * @param index the index of the part in the record
     * @param directions a row of x, y and z for each direction, of any length above 0; missing entries are 0
     * @throws NativeException if there is no such part
     * @throws NullPointerException if an argument or a row is null
     */
    public void setPhysicsMarkerSys(String icon, ObjectPartType part, int index, double[][] directions) {
        for (double[] row : directions) {
            Objects.requireNonNull(row, "directions");
        }
        setPhysicsMarkerSys(this, requireIcon(icon), levelOf(part), index, directions);
    }

    /**
     * Adds a marker that shows a right-handed coordinate system around the normal n of a line or a sheet. Its tangent t
     * is as close as possible to a coordinate axis, and b is n x t. Points get a marker without directions.
     *
     * <table>
     *   <caption>The directions in their order</caption>
     *   <tr><th>dimension</th><th>normalLast</th><th>axis</th><th>directions</th></tr>
     *   <tr><td>3</td><td>any</td><td>any</td><td>t, b, n</td></tr>
     *   <tr><td>other</td><td>true</td><td>0, 2</td><td>t, b, n</td></tr>
     *   <tr><td>other</td><td>true</td><td>1</td><td>b, -t, n</td></tr>
     *   <tr><td>other</td><td>false</td><td>2</td><td>b, n, t</td></tr>
     *   <tr><td>other</td><td>false</td><td>0, 1</td><td>t, n, -b</td></tr>
     * </table>
     *
     * @param icon the name of the icon's image
     * @param part the kind of part
     * @param index the index of the part in the record
     * @param flip whether the system is built around the opposite of the normal
     * @param normalLast whether the normal is the last direction
     * @param dimension the dimension of the model
     * @param axis 0 for x, 1 for y, any other number for z; if it is parallel to the normal, the next one is used
     * @throws NativeException if there is no such part
     * @throws NullPointerException if the name is null
     */
    public void setPhysicsMarkerBoundSys(String icon, ObjectPartType part, int index, boolean flip, boolean normalLast,
            int dimension, int axis) {
        setPhysicsMarkerBoundSys(this, requireIcon(icon), levelOf(part), index, flip, normalLast, dimension, axis);
    }

    /**
     * Adds a connector: an icon with one point on each of several lines or sheets. Parts without geometry are passed
     * over. Points and subdomains cannot be connected and are ignored.
     *
     * @param icon the name of the icon's image
     * @param part the kind of part
     * @param indices the indices of the parts in the record
     * @param position x, y and z of the icon; missing entries are 0
     * @throws NativeException if there is no such part
     * @throws NullPointerException if an argument is null
     */
    public void setPhysicsConnector(String icon, ObjectPartType part, int[] indices, double[] position) {
        setPhysicsConnectorPos(this, requireIcon(icon), levelOf(part), Objects.requireNonNull(indices, "indices"),
                Objects.requireNonNull(position, "position"));
    }

    /**
     * The same with the icon at the centre of the points, weighted by the lengths or areas of the parts. Parts without
     * length or area are passed over; if none is left, there is no connector.
     *
     * @param icon the name of the icon's image
     * @param part the kind of part
     * @param indices the indices of the parts in the record
     * @throws NativeException if there is no such part
     * @throws NullPointerException if an argument is null
     */
    public void setPhysicsConnector(String icon, ObjectPartType part, int[] indices) {
        setPhysicsConnectorAuto(this, requireIcon(icon), levelOf(part), Objects.requireNonNull(indices, "indices"));
    }

    /** Deletes all markers and connectors. */
    public void clearPhysicsMarkers() {
        clearPhysicsMarkers(this);
    }

    /**
     * Sets whether markers and connectors are shown.
     *
     * @param show whether they are
     */
    public void setShowPhysicsMarkers(boolean show) {
        setShowPhysicsMarkers(this, show);
    }

    /**
     * Marks a subdomain: a domain of a model in space. A part that has the mark already keeps it.
     *
     * @param index the index of the part in the record
     * @param action what is done to the part
     * @throws NativeException if there is no such part
     */
    public void markSubdomain(int index, MarkingAction action) {
        markSubdomain(this, index, action.number());
    }

    /**
     * Removes the mark of a subdomain.
     *
     * @param index the index of the part in the record
     * @param action what is undone
     * @throws NativeException if there is no such part
     */
    public void unmarkSubdomain(int index, MarkingAction action) {
        unmarkSubdomain(this, index, action.number());
    }

    /**
     * Marks a sheet: a boundary of a model in space, a domain of one in the plane.
     *
     * @param index the index of the part in the record
     * @param action what is done to the part
     * @throws NativeException if there is no such part
     */
    public void markBoundary(int index, MarkingAction action) {
        markBoundary(this, index, action.number());
    }

    /**
     * Removes the mark of a sheet, but not those that it has from its neighbours.
     *
     * @param index the index of the part in the record
     * @param action what is undone
     * @throws NativeException if there is no such part
     */
    public void unmarkBoundary(int index, MarkingAction action) {
        unmarkBoundary(this, index, action.number());
    }

    /**
     * Marks a line: an edge of a model in space, a boundary of one in the plane, a domain of one on an axis.
     *
     * @param index the index of the part in the record
     * @param action what is done to the part
     * @throws NativeException if there is no such part
     */
    public void markEdge(int index, MarkingAction action) {
        markEdge(this, index, action.number());
    }

    /**
     * Removes the mark of a line, but not those that it has from its neighbours.
     *
     * @param index the index of the part in the record
     * @param action what is undone
     * @throws NativeException if there is no such part
     */
    public void unmarkEdge(int index, MarkingAction action) {
        unmarkEdge(this, index, action.number());
    }

    /**
     * Marks a point.
     *
     * @param index the index of the part in the record
     * @param action what is done to the part
     * @throws NativeException if there is no such part
     */
    public void markPoint(int index, MarkingAction action) {
        markPoint(this, index, action.number());
    }

    /**
     * Removes the mark of a point, but not those that it has from its neighbours.
     *
     * @param index the index of the part in the record
     * @param action what is undone
     * @throws NativeException if there is no such part
     */
    public void unmarkPoint(int index, MarkingAction action) {
        unmarkPoint(this, index, action.number());
    }

    /**
     * Removes the marks of all parts of one kind, or of all kinds. Marks of other actions stay.
     *
     * @param part the kind of part
     * @param action what is undone
     */
    public void unmarkAll(ObjectPartType part, MarkingAction action) {
        unmarkAll(this, part.number(), action.number());
    }

    private static String requireIcon(String icon) {
        return Objects.requireNonNull(icon, "icon");
    }

    /** The dimension of the parts of a kind; native code ignores that of all kinds. */
    private static int levelOf(ObjectPartType part) {
        return part.number() - ObjectPartType.POINT.number();
    }

    private static native void createNative(SceneGraphPhysicsObject peer, int id);

    private static native void connectNative(SceneGraphPhysicsObject peer, SceneGraphNode owner, int childId);

    private static native void fillObject1D(SceneGraphPhysicsObject peer, Object record);

    private static native void fillObject2D(SceneGraphPhysicsObject peer, Object record);

    private static native void fillObject(SceneGraphPhysicsObject peer, Object record);

    private static native void addMeshCollection(SceneGraphPhysicsObject peer, Object record);

    private static native void deleteAllMeshes(SceneGraphPhysicsObject peer);

    private static native void resetObject(SceneGraphPhysicsObject peer);

    private static native void setMaterial(SceneGraphPhysicsObject peer, int level, int index, String name);

    private static native boolean hasImage(SceneGraphPhysicsObject peer, String name);

    private static native void setImage(SceneGraphPhysicsObject peer, String name, int[] pixels, int width, int height,
            float resolution);

    private static native void setPhysicsMarker(SceneGraphPhysicsObject peer, String icon, int level, int index);

    private static native void setPhysicsMarkerNormal(SceneGraphPhysicsObject peer, String icon, int level, int index,
            boolean flip);

    private static native void setPhysicsMarkerSys(SceneGraphPhysicsObject peer, String icon, int level, int index,
            double[][] sys);

    private static native void setPhysicsMarkerBoundSys(SceneGraphPhysicsObject peer, String icon, int level, int index,
            boolean flip, boolean normalLast, int dimension, int axis);

    private static native void setPhysicsConnectorPos(SceneGraphPhysicsObject peer, String icon, int level, int[] parts,
            double[] position);

    private static native void setPhysicsConnectorAuto(SceneGraphPhysicsObject peer, String icon, int level,
            int[] parts);

    private static native void clearPhysicsMarkers(SceneGraphPhysicsObject peer);

    private static native void setShowPhysicsMarkers(SceneGraphPhysicsObject peer, boolean show);

    private static native void markSubdomain(SceneGraphPhysicsObject peer, int index, int marking);

    private static native void unmarkSubdomain(SceneGraphPhysicsObject peer, int index, int marking);

    private static native void markBoundary(SceneGraphPhysicsObject peer, int index, int marking);

    private static native void unmarkBoundary(SceneGraphPhysicsObject peer, int index, int marking);

    private static native void markEdge(SceneGraphPhysicsObject peer, int index, int marking);

    private static native void unmarkEdge(SceneGraphPhysicsObject peer, int index, int marking);

    private static native void markPoint(SceneGraphPhysicsObject peer, int index, int marking);

    private static native void unmarkPoint(SceneGraphPhysicsObject peer, int index, int marking);

    private static native void unmarkAll(SceneGraphPhysicsObject peer, int partType, int marking);
}
