/* SPDX-License-Identifier: MIT */
/*
 * Fonts for a server that lacks those of compact.ad.
 *
 * The resource file names fonts of the server. Not every server has them, and the toolkit would
 * use a font of any width instead. The file therefore names substitutes for the renditions "plain"
 * and "bold"; this uses them where it must:
 *
 *     *plain.substituteName: Sans            a family that Xft finds
 *     *plain.substituteStyle: Book
 *     *plain.substitutePixels: 11            its size
 *
 * An application compiles letters.c beside zo.c.
 */
#ifndef LETTERS_H
#define LETTERS_H

#include <X11/Intrinsic.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Replaces the fonts in the display's resources that its server lacks. To be called once the
   display is open and before the first widget is made. Returns whether any was replaced. */
Boolean UseSubstituteLetters(Display* display);

#ifdef __cplusplus
}
#endif

#endif
