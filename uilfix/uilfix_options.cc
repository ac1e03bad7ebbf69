// SPDX-License-Identifier: MIT
#include "uilfix/uilfix_options.h"

#include "uilfix/rewrites.h"

namespace uilfix {
namespace {

// Switches off every rewrite that is not in the comma-separated list. Returns the first name in it
// that no rewrite has, or the empty text.
std::string SwitchToOnly(std::string_view names, Options& options) {
  for (const Rewrite& rewrite : Rewrites()) options.off.emplace(rewrite.name);
  while (!names.empty()) {
    const std::size_t comma = names.find(',');
    const std::string_view name = names.substr(0, comma);
    if (!FindRewrite(name)) return std::string(name);
    options.off.erase(options.off.find(name));
    names.remove_prefix(comma == std::string_view::npos ? names.size() : comma + 1);
  }
  return "";
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
    } else if (argument.starts_with("--only=")) {
      const std::string unknown = SwitchToOnly(argument.substr(7), options);
      if (!unknown.empty()) return UsageError("no such rewrite: " + unknown);
    } else if (argument.starts_with("--no-")) {
      const std::string_view name = argument.substr(5);
      if (!FindRewrite(name)) return UsageError("no such rewrite: " + std::string(name));
      options.off.emplace(name);
    } else {
      return UsageError("unknown option: " + std::string(argument));
    }
  }
  return options;
}

std::string ListText() {
  std::string text;
  for (const Rewrite& rewrite : Rewrites()) {
    std::string name(rewrite.name);
    name.resize(12, ' ');
    text += name + std::string(rewrite.summary) + "\n";
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
      "      --list           list the rewrites\n"
      "      --help           show this text\n"
      "      --version        show the version\n"
      "\n"
      "Rewrites, in the order in which they run:\n";
  std::string list = ListText();
  for (std::size_t pos = 0; pos < list.size(); pos = list.find('\n', pos) + 1) {
    text += "  " + list.substr(pos, list.find('\n', pos) + 1 - pos);
  }
  return text;
}

}  // namespace uilfix
