// SPDX-License-Identifier: MIT
#include "uilfix/uilfix_options.h"

#include "uilfix/rewrites.h"

namespace uilfix {
namespace {

// Calls `take(name)` for each name in the comma-separated list. Returns the first that no rewrite
// has, or the empty text.
template <typename Take>
std::string ForEachName(std::string_view names, Take take) {
  while (!names.empty()) {
    const std::size_t comma = names.find(',');
    const std::string_view name = names.substr(0, comma);
    if (!FindRewrite(name)) return std::string(name);
    take(name);
    names.remove_prefix(comma == std::string_view::npos ? names.size() : comma + 1);
  }
  return "";
}

void SwitchOn(std::string_view name, Selection& selection) {
  if (FindRewrite(name)->on_request) {
    selection.on.emplace(name);
  } else if (const auto off = selection.off.find(name); off != selection.off.end()) {
    selection.off.erase(off);
  }
}

void SwitchOff(std::string_view name, Selection& selection) {
  if (const auto on = selection.on.find(name); on != selection.on.end()) selection.on.erase(on);
  if (!FindRewrite(name)->on_request) selection.off.emplace(name);
}

Options UsageError(const std::string& error) {
  Options options;
  options.action = Options::Action::kUsageError;
  options.error = error;
  return options;
}

}  // namespace

Options ParseOptions(const std::vector<std::string_view>& arguments) {
  Options options;
  bool operands_only = false;
  bool has_input = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string_view argument = arguments[i];
    if (operands_only || argument == "-" || !argument.starts_with('-')) {
      if (has_input) return UsageError("more than one input: " + std::string(argument));
      options.input = argument;
      has_input = true;
    } else if (argument == "--") {
      operands_only = true;
    } else if (argument == "--help" || argument == "-h") {
      options.action = Options::Action::kHelp;
    } else if (argument == "--version") {
      options.action = Options::Action::kVersion;
    } else if (argument == "--list") {
      options.action = Options::Action::kList;
    } else if (argument == "--quiet" || argument == "-q") {
      options.quiet = true;
    } else if (argument == "-o" || argument == "--output") {
      if (++i == arguments.size()) return UsageError(std::string(argument) + " needs a file name");
      options.output = arguments[i];
    } else if (argument.starts_with("--output=")) {
      options.output = argument.substr(9);
    } else if (argument.starts_with("--only=")) {
      for (const Rewrite& rewrite : Rewrites()) SwitchOff(rewrite.name, options.selection);
      const std::string unknown = ForEachName(
          argument.substr(7), [&](std::string_view name) { SwitchOn(name, options.selection); });
      if (!unknown.empty()) return UsageError("no such rewrite: " + unknown);
    } else if (argument.starts_with("--with=")) {
      const std::string unknown = ForEachName(
          argument.substr(7), [&](std::string_view name) { SwitchOn(name, options.selection); });
      if (!unknown.empty()) return UsageError("no such rewrite: " + unknown);
    } else if (argument == "--gil") {
      if (++i == arguments.size()) return UsageError("--gil needs a file name");
      options.gil = arguments[i];
    } else if (argument.starts_with("--gil=")) {
      options.gil = argument.substr(6);
    } else if (argument.starts_with("--no-")) {
      const std::string_view name = argument.substr(5);
      if (!FindRewrite(name)) return UsageError("no such rewrite: " + std::string(name));
      SwitchOff(name, options.selection);
    } else {
      return UsageError("unknown option: " + std::string(argument));
    }
  }
  if (options.selection.on.contains("starts") && options.gil.empty()) {
    return UsageError("starts needs the GIL file, --gil FILE");
  }
  return options;
}

std::string ListText() {
  std::string text;
  for (const Rewrite& rewrite : Rewrites()) {
    std::string name(rewrite.name);
    name.resize(12, ' ');
    text += name + std::string(rewrite.summary) + (rewrite.on_request ? " *\n" : "\n");
  }
  return text;
}

std::string HelpText() {
  std::string text =
      "Usage: pandrel-uilfix [OPTION]... [MODULE]\n"
      "Mend what keeps a UIL module of pandrel from compiling or behaving well.\n"
      "The module is read from MODULE or standard input and written to standard output;\n"
      "standard error gets one line for each change.\n"
      "\n"
      "  -o, --output FILE    write the module to FILE\n"
      "  -q, --quiet          do not report the changes\n"
      "      --no-REWRITE     switch a rewrite off\n"
      "      --only=REWRITE,REWRITE...\n"
      "                       switch all others off\n"
      "      --with=REWRITE,REWRITE...\n"
      "                       switch on those that run on request (* below)\n"
      "      --gil FILE       the GIL file that the module was made from, for starts\n"
      "      --list           list the rewrites\n"
      "      --help           show this text\n"
      "      --version        show the version\n"
      "\n"
      "Rewrites, in the order in which they run (* on request only):\n";
  std::string list = ListText();
  for (std::size_t pos = 0; pos < list.size(); pos = list.find('\n', pos) + 1) {
    text += "  " + list.substr(pos, list.find('\n', pos) + 1 - pos);
  }
  return text;
}

}  // namespace uilfix
