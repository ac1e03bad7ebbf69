// SPDX-License-Identifier: MIT
// The command line of pandrel-port.
#ifndef PANDREL_PORT_PORT_OPTIONS_H
#define PANDREL_PORT_PORT_OPTIONS_H

#include <string>
#include <string_view>
#include <vector>

namespace port {

struct Options {
  enum class Action { kPort, kTree, kHelp, kVersion, kUsageError };

  Action action = Action::kPort;
  std::string error;      // for kUsageError: what is wrong
  std::string input;      // a GIL file, or the tree
  std::string output;     // empty: the input's name in the working folder
  std::string templates;  // empty for none of the user's
  int jobs = 1;
  bool pictures = true;
  bool quiet = false;
  std::vector<std::string> converter_options;
};

Options ParseOptions(const std::vector<std::string_view>& arguments);

std::string HelpText();

}  // namespace port

#endif
