// SPDX-License-Identifier: MIT
// Finds and runs the converter, the compiler and the X server, and collects their output.
#ifndef PANDREL_VIEW_PROCESS_H
#define PANDREL_VIEW_PROCESS_H

#include <sys/types.h>

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
  bool timed_out = false;  // killed at the time limit
  int status = -1;         // exit status; -1 when ended by a signal
  std::string output;      // standard output and standard error, as they came
};

// Runs a program to its end. If this program is told to end meanwhile (StopSignal), kills the other
// one and all that it started.
Outcome RunCommand(const Command& command);

// In a child process: becomes the program, which leads a process group of its own and gets
// `at_parents_end` when this program ends. `output` is its standard output and standard error.
[[noreturn]] void Become(const Command& command, int output, int at_parents_end);

// Waits for the child's end, at most for `limit`; then it is killed with the signal and waited for.
// Returns its wait status.
int EndChild(pid_t child, std::chrono::milliseconds limit, int signal);

// The program `name`: beside this program, else on PATH; nothing when it is in neither place.
std::optional<std::filesystem::path> FindProgram(const std::string& name);

}  // namespace view

#endif
