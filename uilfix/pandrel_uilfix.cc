// SPDX-License-Identifier: MIT
// pandrel-uilfix: a UIL module in, the module mended out, one line on standard error per change.
#include <cerrno>
#include <cstring>
#include <iostream>

#include "uilfix/module_files.h"
#include "uilfix/uilfix_options.h"
#include "uilfix/rewrites.h"

namespace {

constexpr char kProgram[] = "pandrel-uilfix";
constexpr int kFailure = 1;
constexpr int kUsage = 2;

bool IsStandard(const std::string& file) { return file.empty() || file == "-"; }

int Fail(const std::string& file) {
  std::cerr << kProgram << ": " << file << ": " << std::strerror(errno) << "\n";
  return kFailure;
}

int Fix(const uilfix::Options& options) {
  const auto text = uilfix::ReadFile(options.input);
  if (!text) return Fail(IsStandard(options.input) ? "standard input" : options.input);
  uilfix::Report report;
  const std::string fixed = uilfix::FixText(*text, options.off, report);
  if (!options.quiet) {
    for (const uilfix::Change& change : report.Changes()) {
      std::cerr << kProgram << ": line " << change.line << ": " << change.rewrite << ": "
                << change.text << "\n";
    }
  }
  if (!uilfix::WriteFile(options.output, fixed)) {
    return Fail(IsStandard(options.output) ? "standard output" : options.output);
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string_view> arguments(argv + 1, argv + argc);
  const uilfix::Options options = uilfix::ParseOptions(arguments);
  switch (options.action) {
    case uilfix::Options::Action::kHelp:
      std::cout << uilfix::HelpText() << std::flush;
      break;
    case uilfix::Options::Action::kList:
      std::cout << uilfix::ListText() << std::flush;
      break;
    case uilfix::Options::Action::kVersion:
      std::cout << kProgram << " " PANDREL_VERSION "\n" << std::flush;
      break;
    case uilfix::Options::Action::kUsageError:
      std::cerr << kProgram << ": " << options.error << "\n"
                << "Try \"" << kProgram << " --help\".\n";
      return kUsage;
    case uilfix::Options::Action::kFix:
      return Fix(options);
  }
  return std::cout ? 0 : kFailure;
}
