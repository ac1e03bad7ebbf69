// SPDX-License-Identifier: MIT
#include "port/port_options.h"

#include <algorithm>

namespace port {
namespace {

// The converter's options, which go to it as they are.
constexpr std::string_view kConverterOptions[] = {
    "-motif",          "-openlook",     "-reposition",    "-noreposition",   "-converticons",
    "-noconverticons", "-ignoregroups", "-convertgroups", "-motif11",        "-motif12",
    "-mapall",         "-nomapall",     "-nogrouplabels", "-group_labels",   "-dont_rename",
    "-zo25",           "-zo30",         "-nozo",          "-genzocallbacks", "-nocomments",
    "-verbose",        "-quiet"};

bool IsConverterOption(std::string_view argument) {
  return (argument.starts_with("-D") && argument.size() > 2) ||
         std::find(std::begin(kConverterOptions), std::end(kConverterOptions), argument) !=
             std::end(kConverterOptions);
}

class Parser {
 public:
  explicit Parser(const std::vector<std::string_view>& arguments) : arguments_(arguments) {}

  Options Parse() {
    for (; at_ < arguments_.size() && options_.error.empty(); ++at_) Take(arguments_[at_]);
    const bool informs =
        options_.action == Options::Action::kHelp || options_.action == Options::Action::kVersion;
    if (options_.error.empty() && !informs) CheckWhole();
    if (!options_.error.empty()) options_.action = Options::Action::kUsageError;
    return options_;
  }

 private:
  void CheckWhole() {
    if (options_.input.empty()) options_.error = "no file to port";
    if (options_.action == Options::Action::kTree && options_.output.empty()) {
      options_.error = "-r needs a folder: -o FOLDER";
    }
  }

  void Take(std::string_view argument) {
    if (operands_only_ || !argument.starts_with('-') || argument == "-") {
      TakeOperand(argument);
    } else if (argument == "--") {
      operands_only_ = true;
    } else if (argument == "--help" || argument == "-h") {
      options_.action = Options::Action::kHelp;
    } else if (argument == "--version") {
      options_.action = Options::Action::kVersion;
    } else if (argument == "-r" || argument == "--recursive") {
      if (options_.action == Options::Action::kPort) options_.action = Options::Action::kTree;
    } else if (argument == "--no-pictures") {
      options_.pictures = false;
    } else if (argument == "-q") {
      options_.quiet = true;
    } else if (TakeText(argument, "-o", "--output", options_.output) ||
               TakeText(argument, "", "--templates", options_.templates) || TakeJobs(argument)) {
      return;
    } else if (IsConverterOption(argument)) {
      options_.converter_options.emplace_back(argument);
    } else {
      options_.error = "unknown option " + std::string(argument);
    }
  }

  void TakeOperand(std::string_view argument) {
    if (!options_.input.empty()) {
      options_.error = "more than one file: " + std::string(argument);
    }
    options_.input = argument;
  }

  // The option in its forms "-o TEXT", "--output TEXT" and "--output=TEXT".
  bool TakeText(std::string_view argument, std::string_view brief, std::string_view full,
                std::string& text) {
    if (argument.starts_with(full) && argument.size() > full.size() &&
        argument[full.size()] == '=') {
      text = argument.substr(full.size() + 1);
    } else if (argument != full && (brief.empty() || argument != brief)) {
      return false;
    } else if (at_ + 1 < arguments_.size()) {
      text = arguments_[++at_];
    } else {
      text.clear();
    }
    if (text.empty()) options_.error = std::string(argument) + " needs a value";
    return true;
  }

  bool TakeJobs(std::string_view argument) {
    std::string text;
    if (argument.starts_with("-j") && argument.size() > 2) {
      text = argument.substr(2);
    } else if (!TakeText(argument, "-j", "--jobs", text)) {
      return false;
    }
    const bool number =
        !text.empty() && text.size() < 5 &&
        std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
    options_.jobs = number ? std::stoi(text) : 0;
    if (options_.jobs < 1 && options_.error.empty()) {
      options_.error = "-j needs a number from 1 on, not " + text;
    }
    return true;
  }

  const std::vector<std::string_view>& arguments_;
  std::size_t at_ = 0;
  bool operands_only_ = false;
  Options options_;
};

}  // namespace

Options ParseOptions(const std::vector<std::string_view>& arguments) {
  return Parser(arguments).Parse();
}

std::string HelpText() {
  return "Usage: pandrel-port [OPTION]... FILE\n"
         "       pandrel-port -r [-j JOBS] -o FOLDER TREE\n"
         "Make a Motif program of a GIL file or project: a folder in which \"make\" builds it and\n"
         "\"make run\" runs it. The folder has the name of FILE without its suffix.\n"
         "\n"
         "  -o, --output FOLDER   the program's folder, or the one for those of a tree\n"
         "  -r, --recursive       port every project in TREE, and every interface that no project\n"
         "                        names, each into a folder of its own, with an index.html\n"
         "  -j, --jobs N          so many at a time\n"
         "      --no-pictures     no pictures of the windows in the report\n"
         "      --templates DIR   take templates from DIR where it has them\n"
         "  -q                    do not print the table of connections\n"
         "      --help            show this text\n"
         "      --version         show the version\n"
         "\n"
         "The options of pandrel(1), such as -motif12 or -nozo, go to the converter. A second run\n"
         "keeps every file that was changed and puts the new one beside it; callbacks.c only "
         "grows.\n"
         "\n"
         "Exit status: 0 all was built, 1 something could not be converted, 2 wrong usage.\n";
}

}  // namespace port
