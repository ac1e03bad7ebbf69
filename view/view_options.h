// SPDX-License-Identifier: MIT
// The command line of pandrel-view.
#ifndef PANDREL_VIEW_VIEW_OPTIONS_H
#define PANDREL_VIEW_VIEW_OPTIONS_H

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace view {

struct Options {
  enum class Action { kShow, kScreenshots, kList, kHelp, kVersion, kUsageError };

  Action action = Action::kShow;
  std::string error;                       // for kUsageError: what is wrong
  std::string file;                        // what to show
  std::string picture;                     // -o: one picture; more windows get their name added
  std::string picture_folder;              // --screenshot: one picture per window, named like it
  bool fix = true;                         // rewrite the module before compiling
  bool verbose = false;                    // tell the rewrites and the converter's notes
  std::set<std::string, std::less<>> off;  // rewrites that are switched off
  std::vector<std::string> converter_options;  // for pandrel, as given
  std::vector<std::string> toolkit_options;    // for the X toolkit, as given
};

Options ParseOptions(const std::vector<std::string_view>& arguments);

std::string HelpText();

}  // namespace view

#endif
