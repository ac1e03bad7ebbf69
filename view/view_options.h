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
  enum class Action { kRun, kHelp, kVersion, kUsageError };
  enum class Check { kNo, kSentences, kTabs };

  Action action = Action::kRun;
  std::string error;           // for kUsageError: what is wrong
  std::string file;            // what to show
  std::string picture;         // -o: one picture; more windows get their name added
  std::string picture_folder;  // --screenshot: one picture per window, named like it
  bool list = false;           // --list
  Check check = Check::kNo;    // --check
  bool all = false;            // show what is hidden at start, too
  bool watch = false;          // start over when the file changes
  bool compact = false;        // the metrics and the font that the interfaces were drawn for
  std::vector<std::string> resource_files;     // --resources
  bool fix = true;                             // rewrite the module before compiling
  bool verbose = false;                        // tell the rewrites and the converter's notes
  std::set<std::string, std::less<>> off;      // rewrites that are switched off
  std::vector<std::string> converter_options;  // for pandrel, as given
  std::vector<std::string> toolkit_options;    // for the X toolkit, as given

  bool TakesPictures() const { return !picture.empty() || !picture_folder.empty(); }
  // Whether the program ends by itself and shows no windows to the user.
  bool IsBatch() const { return TakesPictures() || list || check != Check::kNo; }
};

Options ParseOptions(const std::vector<std::string_view>& arguments);

std::string HelpText();

}  // namespace view

#endif
