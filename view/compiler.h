// SPDX-License-Identifier: MIT
// The UIL compiler and what it says.
#ifndef PANDREL_VIEW_COMPILER_H
#define PANDREL_VIEW_COMPILER_H

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "uilfix/module.h"

namespace view {

struct CompilerMessage {
  std::string severity;  // "Error", "Severe", "Warning"
  std::string text;
  int line = 0;        // in the module; 0 when the compiler names none
  std::string object;  // the widget whose block holds the line; empty outside of one
};

struct Compilation {
  bool ok = false;      // the .uid is there
  std::string failure;  // why the compiler could not run to its end; empty otherwise
  std::vector<CompilerMessage> messages;
};

// Compiles `module`, which must be the text of the file `uil`, into `uid`. Never takes longer than
// a minute: the compiler is known to loop on texts that are not in the locale's encoding.
Compilation Compile(const std::filesystem::path& uil, const std::filesystem::path& uid,
                    const uilfix::Module& module);

// The messages in the compiler's output.
std::vector<CompilerMessage> ReadMessages(std::string_view output, const uilfix::Module& module);

}  // namespace view

#endif
