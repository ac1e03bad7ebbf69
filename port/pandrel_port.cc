// SPDX-License-Identifier: MIT
// pandrel-port: a GIL file to the folder of a Motif program.
#include <filesystem>
#include <iostream>

#include "port/port.h"
#include "port/port_options.h"
#include "port/tree_of_programs.h"

namespace {

constexpr char kProgram[] = "pandrel-port";

port::Job JobOf(const port::Options& options) {
  port::Job job;
  job.input = options.input;
  job.output = options.output.empty() ? std::filesystem::path(options.input).stem()
                                      : std::filesystem::path(options.output);
  job.options = options.converter_options;
  job.templates = options.templates;
  job.pictures = options.pictures;
  return job;
}

int PortOne(const port::Options& options) {
  const port::PortResult result = port::PortInterface(JobOf(options));
  if (!result.error.empty()) {
    std::cerr << kProgram << ": " << result.error << "\n";
    return static_cast<int>(result.status);
  }
  for (const std::string& note : result.notes) std::cerr << kProgram << ": " << note << "\n";
  if (!options.quiet) std::cout << result.table << std::flush;
  if (!std::cout) {
    std::cerr << kProgram << ": cannot write the table\n";
    return 1;
  }
  return static_cast<int>(result.status);
}

}  // namespace

int main(int argc, char** argv) {
  const port::Options options =
      port::ParseOptions(std::vector<std::string_view>(argv + 1, argv + argc));
  switch (options.action) {
    case port::Options::Action::kHelp:
      std::cout << port::HelpText() << std::flush;
      return std::cout ? 0 : 1;
    case port::Options::Action::kVersion:
      std::cout << kProgram << " " << PANDREL_VERSION << "\n" << std::flush;
      return std::cout ? 0 : 1;
    case port::Options::Action::kUsageError:
      std::cerr << kProgram << ": " << options.error << "\nTry " << kProgram << " --help\n";
      return 2;
    case port::Options::Action::kPort:
      return PortOne(options);
    case port::Options::Action::kTree:
      break;
  }
  return port::PortTree(JobOf(options), options.jobs);
}
