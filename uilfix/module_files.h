// SPDX-License-Identifier: MIT
// Whole files as texts.
#ifndef PANDREL_UILFIX_MODULE_FILES_H
#define PANDREL_UILFIX_MODULE_FILES_H

#include <optional>
#include <string>

namespace uilfix {

// The bytes of a file; of standard input for "" and "-". Nothing when it cannot be read (a folder
// cannot), and errno says why.
std::optional<std::string> ReadFile(const std::string& file);

// Writes the file anew, or to standard output for "" and "-". Returns whether every byte arrived;
// if not, errno says why.
bool WriteFile(const std::string& file, const std::string& text);

}  // namespace uilfix

#endif
