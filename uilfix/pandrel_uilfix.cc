// SPDX-License-Identifier: MIT
// pandrel-uilfix: a UIL module in, the module mended out, one line on standard error per change.
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <iostream>

#include "uilfix/module_files.h"
#include "uilfix/rewrites.h"
#include "uilfix/uilfix_options.h"

namespace {

constexpr char kProgram[] = "pandrel-uilfix";
constexpr char kReplacesInput[] = "would replace the input";
constexpr int kFailure = 1;
constexpr int kUsage = 2;

bool IsStandard(const std::string& file) { return file.empty() || file == "-"; }

int Fail(const std::string& file) {
  std::cerr << kProgram << ": " << file << ": " << std::strerror(errno) << "\n";
  return kFailure;
}

// A name that holds a line end must not look like another report.
std::string OnOneLine(std::string text) {
  std::replace(text.begin(), text.end(), '\n', ' ');
  return text;
}

// Whether both names mean one file, by whatever way.
bool IsSameFile(const std::string& a, const std::string& b) {
  std::error_code error;
  return !IsStandard(a) && !IsStandard(b) && std::filesystem::equivalent(a, b, error);
}

int Refuse(const std::string& file, const std::string& reason) {
  std::cerr << kProgram << ": " << file << ": " << reason << "\n";
  return kFailure;
}

// Reads the initial values in the GIL file; for a project, those in its interface files, which are
// in its folder. Returns 0, or the exit status after a message.
int ReadStarts(const uilfix::Options& options, std::vector<uilfix::GilStart>& starts) {
  std::vector<std::string> files = {options.gil};
  const auto folder = std::filesystem::path(options.gil).parent_path();
  for (std::size_t i = 0; i < files.size(); ++i) {
    const std::string file = files[i];
    if (IsSameFile(file, options.output)) return Refuse(options.output, kReplacesInput);
    const auto gil = uilfix::ReadFile(file);
    if (!gil) return Fail(file);
    if (!uilfix::HoldsGil(*gil)) return Refuse(file, "no GIL file");
    const auto more = uilfix::ReadGilStarts(*gil);
    starts.insert(starts.end(), more.begin(), more.end());
    if (i > 0) continue;
    for (const std::string& name : uilfix::ReadGilInterfaces(*gil)) {
      files.push_back((folder / name).string());
    }
  }
  return 0;
}

int Fix(const uilfix::Options& options) {
  if (IsSameFile(options.input, options.output)) return Refuse(options.output, kReplacesInput);
  const std::string input = IsStandard(options.input) ? "standard input" : options.input;
  const auto text = uilfix::ReadFile(options.input);
  if (!text) return Fail(input);
  if (!uilfix::HoldsModule(*text)) return Refuse(input, "no UIL module");
  std::vector<uilfix::GilStart> starts;
  if (!options.gil.empty()) {
    if (const int status = ReadStarts(options, starts); status != 0) return status;
  }
  uilfix::Report report;
  const auto fixed = uilfix::MendText(*text, options.selection, report, starts);
  if (!fixed) {
    std::cerr << kProgram << ": " << input << ": line " << report.HopelessLine()
              << ": not UIL; with it the module cannot be mended\n";
    return kFailure;
  }
  if (!options.quiet) {
    std::string lines;
    for (const uilfix::Change& change : report.Changes()) {
      lines += std::string(kProgram) + ": line " + std::to_string(change.line) + ": ";
      lines += std::string(change.rewrite) + ": " + OnOneLine(change.text) + "\n";
    }
    std::cerr << lines;
  }
  if (!uilfix::WriteFile(options.output, *fixed)) {
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
