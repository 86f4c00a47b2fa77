package com.vexane.gallery;

import java.lang.annotation.ElementType;
import java.lang.annotation.Retention;
import java.lang.annotation.RetentionPolicy;
import java.lang.annotation.Target;

/** What the contact sheet says about a picture. */
@Retention(RetentionPolicy.RUNTIME)
@Target(ElementType.TYPE)
public @interface About {
    /**
     * The heading.
     *
     * @return a few words
     */
    String title();

    /**
     * What there is to see.
     *
     * @return some sentences
     */
    String text();
}
