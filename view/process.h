// SPDX-License-Identifier: MIT
// Running the converter and the compiler: found, started, watched and listened to.
#ifndef PANDREL_VIEW_PROCESS_H
#define PANDREL_VIEW_PROCESS_H

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace view {

struct Command {
  std::vector<std::string> arguments;  // the program's file first
  std::filesystem::path input;         // standard input; empty for none
  std::filesystem::path folder;        // working directory; empty for this program's
  std::chrono::seconds limit{60};
};

struct Outcome {
  bool started = false;
  bool timed_out = false;  // killed when its time was over
  int status = -1;         // exit status; -1 when ended by a signal
  std::string output;      // standard output and standard error, as they came
};

// Runs a program to its end.
Outcome RunCommand(const Command& command);

// The program `name`: beside this program, else on PATH; nothing when it is in neither place.
std::optional<std::filesystem::path> FindProgram(const std::string& name);

}  // namespace view

#endif
