// SPDX-License-Identifier: MIT
#include "view_options.h"

#include "options/converter_options.h"
#include "options/read_options.h"
#include "uilfix/rewrites.h"

namespace view {
namespace {

struct ToolkitOption {
  const char* name;
  bool value;  // whether an argument follows
};

constexpr ToolkitOption kToolkitOptions[] = {
    {"display", true},     {"geometry", true}, {"xrm", true},         {"name", true},
    {"title", true},       {"fn", true},       {"font", true},        {"bg", true},
    {"background", true},  {"fg", true},       {"foreground", true},  {"bd", true},
    {"bordercolor", true}, {"bw", true},       {"borderwidth", true}, {"xnllanguage", true},
    {"rv", false},         {"reverse", false}, {"iconic", false},     {"synchronous", false},
};

using options::Value;

void AddToolkitOptions(std::vector<options::Option>& table, Options& given) {
  for (const ToolkitOption& option : kToolkitOptions) {
    const auto take = [&given, option](const std::string& value) {
      given.toolkit_options.push_back(std::string("-") + option.name);
      if (option.value) given.toolkit_options.push_back(value);
      return std::string();
    };
    table.push_back({option.name, 0, option.value ? Value::kNeeded : Value::kNone, take});
  }
}

std::vector<options::Option> TableFor(Options& given) {
  using Action = Options::Action;
  const auto take_check = [&given](const std::string& form) {
    given.check = form.empty() ? Options::Check::kSentences : Options::Check::kTabs;
    return form.empty() || form == "tab" ? "" : "unknown option: --check=" + form;
  };
  const auto take_resources = [&given](const std::string& file) {
    given.resource_files.push_back(file);
    return std::string();
  };
  std::vector<options::Option> table = {
      options::Set("help", 'h', given.action, Action::kHelp),
      options::Set("version", 0, given.action, Action::kVersion),
      {"check", 0, Value::kOptional, take_check},
      {"resources", 0, Value::kNeeded, take_resources},
      options::Text("output", 'o', given.picture),
      options::Text("screenshot", 0, given.picture_folder),
      options::Flag("list", 0, given.list),
      options::Flag("all", 0, given.all),
      options::Flag("watch", 0, given.watch),
      options::Flag("compact", 0, given.compact),
      options::Flag("verbose", 'v', given.verbose),
      options::Flag("no-fix", 0, given.fix, false),
  };
  for (const uilfix::Rewrite& rewrite : uilfix::Rewrites()) {
    const std::string name(rewrite.name);
    table.push_back({"no-" + name, 0, Value::kNone, [&given, name](const std::string&) {
                       given.off.insert(name);
                       return std::string();
                     }});
  }
  AddToolkitOptions(table, given);
  options::AddConverterOptions(table, given.converter_options);
  return table;
}

// The toolkit has two options with a plus, which look like operands.
std::string TakeOperand(const std::string& operand, Options& given) {
  if (operand == "+rv" || operand == "+synchronous") {
    given.toolkit_options.push_back(operand);
  } else if (!given.file.empty()) {
    return "more than one file: " + operand;
  } else {
    given.file = operand;
  }
  return "";
}

// What is wrong with the whole.
std::string Mistake(const Options& given) {
  const bool informs =
      given.action == Options::Action::kHelp || given.action == Options::Action::kVersion;
  if (given.file.empty() && !informs) return "no file to show";
  return given.watch && given.IsBatch() ? "--watch is for windows that stay" : "";
}

}  // namespace

Options ParseOptions(const std::vector<std::string_view>& arguments) {
  Options given;
  given.error = options::ReadOptions(arguments, TableFor(given), [&](const std::string& operand) {
    return TakeOperand(operand, given);
  });
  if (given.error.starts_with("unknown option: --no-")) {
    given.error = "no such rewrite: " + given.error.substr(21);
  }
  if (given.error.empty()) given.error = Mistake(given);
  if (!given.error.empty()) given.action = Options::Action::kUsageError;
  return given;
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
