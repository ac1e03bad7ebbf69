// SPDX-License-Identifier: MIT
// The command line of pandrel-uilfix.
#ifndef PANDREL_UILFIX_UILFIX_OPTIONS_H
#define PANDREL_UILFIX_UILFIX_OPTIONS_H

#include <string>
#include <string_view>
#include <vector>

#include "uilfix/rewrites.h"

namespace uilfix {

struct Options {
  enum class Action { kFix, kHelp, kVersion, kList, kUsageError };

  Action action = Action::kFix;
  std::string error;    // for kUsageError: what is wrong
  std::string input;    // empty or "-" for standard input
  std::string output;   // empty or "-" for standard output
  std::string gil;      // the GIL file that the module was made from; empty for none
  bool quiet = false;   // no report
  Selection selection;  // the rewrites that run
};

Options ParseOptions(const std::vector<std::string_view>& arguments);

// The text of --help.
std::string HelpText();

// The text of --list: one rewrite per line, in the order in which they run.
std::string ListText();

}  // namespace uilfix

#endif
