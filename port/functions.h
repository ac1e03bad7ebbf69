// SPDX-License-Identifier: MIT
// The user's functions: the name of each in C, and who calls it.
#ifndef PANDREL_PORT_FUNCTIONS_H
#define PANDREL_PORT_FUNCTIONS_H

#include <filesystem>
#include <string>

#include "port/port_session.h"

namespace port {

// Whether the connection calls a function of the user or holds code for one.
bool CallsFunction(const Connection& connection);

// Lists the functions that connections call, and the procedures of the module that they are, in the
// order of first use. Names are the file's where C allows them; a name that is no word, a keyword
// or known to the libraries otherwise gets "_callback" at its end.
void NameFunctions(Session& session);

// Whether a word of C may have the character.
bool IsWordByte(char c);

// A word of C made from the text: characters that a word cannot have become "_".
std::string CWord(const std::string& text);

// Whether a function of that name would clash with the language, its library, the toolkit or the
// other generated files.
bool IsTaken(const std::string& word);

// The base name of the input as a word, for the program and its class.
std::string ProgramName(const std::filesystem::path& input);

}  // namespace port

#endif
