// SPDX-License-Identifier: MIT
#include "view_options.h"

#include <algorithm>

#include "uilfix/rewrites.h"

namespace view {
namespace {

// The converter's options, which go to it as they are. -verbose and -quiet are not among them: what
// it tells is shown or not by this program's own --verbose.
constexpr std::string_view kConverterOptions[] = {
    "-motif",          "-openlook",     "-reposition",    "-noreposition",   "-converticons",
    "-noconverticons", "-ignoregroups", "-convertgroups", "-motif11",        "-motif12",
    "-mapall",         "-nomapall",     "-nogrouplabels", "-group_labels",   "-dont_rename",
    "-zo25",           "-zo30",         "-nozo",          "-genzocallbacks", "-nocomments",
};

struct ToolkitOption {
  std::string_view name;
  bool value;  // whether an argument follows
};

constexpr ToolkitOption kToolkitOptions[] = {
    {"-display", true},      {"-geometry", true},   {"-xrm", true},
    {"-name", true},         {"-title", true},      {"-fn", true},
    {"-font", true},         {"-bg", true},         {"-background", true},
    {"-fg", true},           {"-foreground", true}, {"-bd", true},
    {"-bordercolor", true},  {"-bw", true},         {"-borderwidth", true},
    {"-xnllanguage", true},  {"-rv", false},        {"-reverse", false},
    {"+rv", false},          {"-iconic", false},    {"-synchronous", false},
    {"+synchronous", false},
};

const ToolkitOption* FindToolkitOption(std::string_view argument) {
  const auto found = std::find_if(std::begin(kToolkitOptions), std::end(kToolkitOptions),
                                  [&](const ToolkitOption& row) { return row.name == argument; });
  return found == std::end(kToolkitOptions) ? nullptr : found;
}

bool IsConverterOption(std::string_view argument) {
  return argument.starts_with("-D") ||
         std::find(std::begin(kConverterOptions), std::end(kConverterOptions), argument) !=
             std::end(kConverterOptions);
}

class Parser {
 public:
  explicit Parser(const std::vector<std::string_view>& arguments) : arguments_(arguments) {}

  Options Parse() {
    for (at_ = 0; at_ < arguments_.size() && options_.error.empty(); ++at_) {
      TakeArgument(arguments_[at_]);
    }
    if (!options_.error.empty()) {
      options_.action = Options::Action::kUsageError;
    } else if (options_.file.empty() && NeedsFile()) {
      options_.error = "no file to show";
      options_.action = Options::Action::kUsageError;
    } else if (options_.watch && options_.IsBatch()) {
      options_.error = "--watch is for windows that stay";
      options_.action = Options::Action::kUsageError;
    }
    return options_;
  }

 private:
  bool NeedsFile() const {
    return options_.action != Options::Action::kHelp &&
           options_.action != Options::Action::kVersion;
  }

  void TakeArgument(std::string_view argument) {
    if (operands_only_ ||
        !(argument.starts_with('-') || argument == "+rv" || argument == "+synchronous")) {
      TakeFile(argument);
    } else if (argument == "--") {
      operands_only_ = true;
    } else if (argument == "--help" || argument == "-h") {
      options_.action = Options::Action::kHelp;
    } else if (argument == "--version") {
      options_.action = Options::Action::kVersion;
    } else if (argument == "--list") {
      options_.list = true;
    } else if (argument == "--check") {
      options_.check = Options::Check::kSentences;
    } else if (argument == "--check=tab") {
      options_.check = Options::Check::kTabs;
    } else if (argument == "--all") {
      options_.all = true;
    } else if (argument == "--watch") {
      options_.watch = true;
    } else if (argument == "--compact") {
      options_.compact = true;
    } else if (argument == "--resources") {
      options_.resource_files.push_back(TakeValue());
    } else if (argument == "--verbose" || argument == "-v") {
      options_.verbose = true;
    } else if (argument == "-o" || argument == "--output") {
      options_.picture = TakeValue();
    } else if (argument == "--screenshot") {
      options_.picture_folder = TakeValue();
    } else if (argument == "--no-fix") {
      options_.fix = false;
    } else if (argument.starts_with("--no-")) {
      TakeSwitch(argument.substr(5));
    } else if (const ToolkitOption* option = FindToolkitOption(argument)) {
      options_.toolkit_options.emplace_back(argument);
      if (option->value) options_.toolkit_options.push_back(TakeValue());
    } else if (IsConverterOption(argument)) {
      options_.converter_options.emplace_back(argument);
    } else {
      options_.error = "unknown option: " + std::string(argument);
    }
  }

  void TakeFile(std::string_view argument) {
    if (!options_.file.empty()) {
      options_.error = "more than one file: " + std::string(argument);
    } else {
      options_.file = argument;
    }
  }

  void TakeSwitch(std::string_view name) {
    if (!uilfix::FindRewrite(name)) {
      options_.error = "no such rewrite: " + std::string(name);
    } else {
      options_.off.emplace(name);
    }
  }

  std::string TakeValue() {
    const std::string_view option = arguments_[at_];
    if (++at_ < arguments_.size() && !arguments_[at_].empty()) return std::string(arguments_[at_]);
    options_.error = std::string(option) + " needs a value";
    return "";
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
  return "Usage: pandrel-view [OPTION]... FILE\n"
         "Show an interface in real windows. FILE is a GIL file, which is converted and compiled\n"
         "first, a UIL module (.uil), which is compiled, or a compiled one (.uid).\n"
         "\n"
         "  -o, --output FILE.png   write a picture of the window to FILE.png and exit; further\n"
         "                          windows go to FILE-NAME.png\n"
         "      --screenshot DIR    write one picture per window and dialog, DIR/NAME.png, and "
         "exit\n"
         "      --list              print the widgets with their geometry and exit\n"
         "      --check[=tab]       print what overlaps, is cut or lies outside, and exit; with\n"
         "                          \"=tab\" as fields for other programs\n"
         "      --all               show windows and dialogs that start hidden, too\n"
         "      --watch             start over when FILE changes\n"
         "      --compact           use the metrics and letters that the interfaces were drawn "
         "for\n"
         "      --resources FILE    use the X resources in FILE, too\n"
         "      --no-fix            compile the module as it is\n"
         "      --no-REWRITE        leave out one rewrite of pandrel-uilfix(1)\n"
         "  -v, --verbose           tell the rewrites and the converter's notes\n"
         "      --help              show this text\n"
         "      --version           show the version\n"
         "\n"
         "The options of pandrel(1), such as -openlook, -motif12 or -zo30, go to the converter; "
         "the\n"
         "X toolkit's options, such as -display, -geometry or -xrm, to the toolkit. Procedures of\n"
         "the application are announced on standard output when they are called; the signal USR1\n"
         "prints there the widgets that are on the screen. Pictures, lists and checks are made on "
         "an X\n"
         "server of the program's own (Xvfb), unless -display names another.\n";
}

}  // namespace view
