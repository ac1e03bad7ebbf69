// SPDX-License-Identifier: MIT
// Texts of GIL files in the generated languages. Whatever its bytes, a result cannot end the
// string, the comment or the value around it.
#ifndef PANDREL_PORT_ESCAPE_H
#define PANDREL_PORT_ESCAPE_H

#include <string>

namespace port {

// Inside a string literal of C: quotes, backslashes, question marks (of trigraphs), control bytes
// and bytes beyond ASCII are escaped.
std::string CText(const std::string& text);

// Inside a comment of C, as one line: "*/" and "/*" are pulled apart, control bytes become blanks,
// Latin-1 becomes UTF-8.
std::string CComment(const std::string& text);

// As one line of plain text: control bytes become blanks, Latin-1 becomes UTF-8.
std::string OneLine(const std::string& text);

// The value of an X resource.
std::string ResourceText(const std::string& text);

// Inside single quotes in a recipe of make.
std::string RecipeText(const std::string& text);

}  // namespace port

#endif
