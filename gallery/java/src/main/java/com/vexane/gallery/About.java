package com.vexane.gallery;

import java.lang.annotation.ElementType;
import java.lang.annotation.Retention;
import java.lang.annotation.RetentionPolicy;
import java.lang.annotation.Target;

/**
 * What the page of a program says before its code.
 *
 * <p>The rest of the page is the program itself. Line comments that follow an empty line, a picture, or the head of the
 * class or of {@code draw} are prose between blocks of code; all other comments are part of the code. Names between
 * backticks are set as code. A picture is shown below the statement that saved it.
 */
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

    /**
     * The section that lists the program.
     *
     * @return its theme
     */
    Section section() default Section.PLOTS;

    /**
     * The pages in {@code docs} that explain what the program uses.
     *
     * @return their paths below {@code docs}, without the suffix
     */
    String[] pages() default {};
}
