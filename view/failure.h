// SPDX-License-Identifier: MIT
// How the viewer says that it cannot go on.
#ifndef PANDREL_VIEW_FAILURE_H
#define PANDREL_VIEW_FAILURE_H

#include <iostream>
#include <string>

#include "program_name.h"

namespace view {

// The exit status of a run that failed.
inline constexpr int kFailure = 1;

// Writes the message behind the program's name on standard error, as lines of their own. Returns
// kFailure.
inline int Fail(const std::string& message) {
  std::cerr << kProgram << ": " << message << (message.ends_with('\n') ? "" : "\n") << std::flush;
  return kFailure;
}

}  // namespace view

#endif
