// SPDX-License-Identifier: MIT
// The shape of a text: what is left when names, strings and comments are taken out of it. Two texts
// made from one template have one shape, whatever stands in their strings: unless some of it got
// out. None of this uses the code under test.
#ifndef PANDREL_TESTS_FUZZ_TEXT_SHAPES_H
#define PANDREL_TESTS_FUZZ_TEXT_SHAPES_H

#include <string>
#include <string_view>

// A shape, or what is wrong with the text.
struct Shape {
  std::string error;  // empty when all is well
  std::string text;
};

// C: its tokens, one a line. Strings, characters and numbers are only told as such; calls of exit
// and puts with a constant, one or more, are "known calls". An error: a comment or string that is
// not closed, a comment that seems to begin twice, a trigraph, joined lines, a byte that is not
// ASCII outside of comments, "#if 0" that does not end.
Shape ShapeOfC(std::string_view text);

// HTML or SVG: its tags with the names of their attributes. An error: a tag that is not closed or
// nested wrongly, an attribute without quotes, a "<" or "&" that begins nothing, a control byte.
Shape ShapeOfPage(std::string_view text);

// A makefile: for each line what make sees of it, and of a recipe the number of its words. An
// error: a quote that is not closed.
Shape ShapeOfMakefile(std::string_view text);

// A resource file: for each line "comment" or the resource that it sets. An error: a line that is
// neither, or goes on in the next.
Shape ShapeOfResources(std::string_view text);

// Any text: the number of its lines. An error: a control byte, in Latin-1 or in UTF-8.
Shape ShapeOfLines(std::string_view text);

#endif
