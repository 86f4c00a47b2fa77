package com.vexane.producer;

import com.vexane.base.NativeEnum;

/** The relations between the parts of a record: for each part of one kind, the adjacent parts of another. */
public enum GeometryRelation implements NativeEnum {
    /** The sheets around each subdomain. */
    SUBDOMAIN_TO_SHEET(0),
    /** The curves around each subdomain. */
    SUBDOMAIN_TO_LINE(1),
    /** The points around each subdomain. */
    SUBDOMAIN_TO_POINT(2),
    /** The curves around each sheet. */
    SHEET_TO_LINE(3),
    /** The points around each sheet. */
    SHEET_TO_POINT(4),
    /** The points at the ends of each curve. */
    LINE_TO_POINT(5),
    /** The curves at each point. */
    POINT_TO_LINE(6),
    /** The sheets at each point. */
    POINT_TO_SHEET(7),
    /** The subdomains at each point. */
    POINT_TO_SUBDOMAIN(8),
    /** The sheets at each curve. */
    LINE_TO_SHEET(9),
    /** The subdomains at each curve. */
    LINE_TO_SUBDOMAIN(10),
    /** The subdomains on the two sides of each sheet. */
    SHEET_TO_SUBDOMAIN(11);

    private final int number;

    GeometryRelation(int number) {
        this.number = number;
    }

    /** {@return the number of the relation in native code, different for each relation} */
    @Override
    public int number() {
        return number;
    }
}
