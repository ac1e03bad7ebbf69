// SPDX-License-Identifier: MIT
// Quotes file names for shell commands: whatever a name holds, the shell passes on exactly that
// name, as one operand. A plain name stays as it is.
#ifndef PANDREL_GLYPH_SHELL_WORDS_H
#define PANDREL_GLYPH_SHELL_WORDS_H

#include <string>

// The name as one word of a shell command. A leading "-" gets "./" in front, so that no program
// takes it for an option.
std::string ShellWord(const std::string& name);

// The text as the replacement of a sed substitution delimited by "/" that stands between single
// quotes in a shell command.
std::string QuotedSedReplacement(const std::string& text);

#endif
