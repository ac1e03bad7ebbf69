// SPDX-License-Identifier: MIT
#include "process.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <sstream>
#include <thread>

#include "signals.h"

namespace view {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kCannotStart = 127;

// Collects what comes through `output` until it ends. Returns false when the time is over first, or
// this program is told to end.
bool Listen(int output, Clock::time_point end, std::string& text) {
  for (;;) {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now());
    if (left.count() <= 0) return false;
    pollfd ready[] = {{output, POLLIN, 0}};
    const int count = WaitFor(ready, left);
    if (StopSignal() != 0) return false;
    if (count == 0) continue;
    char buffer[4096];
    const ssize_t size = read(output, buffer, sizeof buffer);
    if (size < 0 && errno == EINTR) continue;
    if (size <= 0) return true;
    text.append(buffer, static_cast<std::size_t>(size));
  }
}

}  // namespace

void Become(const Command& command, int output, int at_parents_end) {
  setpgid(0, 0);
  ReleaseSignalsInChild(at_parents_end);
  const char* input = command.input.empty() ? "/dev/null" : command.input.c_str();
  const int in = open(input, O_RDONLY);
  if (in < 0 || dup2(in, STDIN_FILENO) < 0 || dup2(output, STDOUT_FILENO) < 0 ||
      dup2(output, STDERR_FILENO) < 0) {
    _exit(kCannotStart);
  }
  if (!command.folder.empty() && chdir(command.folder.c_str()) != 0) _exit(kCannotStart);
  std::vector<std::string> texts = command.arguments;
  std::vector<char*> arguments;
  arguments.reserve(texts.size() + 1);
  for (std::string& text : texts) arguments.push_back(text.data());
  arguments.push_back(nullptr);
  execv(arguments[0], arguments.data());
  _exit(kCannotStart);
}

int EndChild(pid_t child, std::chrono::milliseconds limit, int signal) {
  const auto end = Clock::now() + limit;
  int status = 0;
  while (Clock::now() < end) {
    if (waitpid(child, &status, WNOHANG) == child) return status;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  kill(child, signal);
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  return status;
}

Outcome RunCommand(const Command& command) {
  Outcome outcome;
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) return outcome;
  const pid_t child = fork();
  if (child < 0) {
    close(ends[0]);
    close(ends[1]);
    return outcome;
  }
  if (child == 0) Become(command, ends[1], SIGKILL);
  setpgid(child, child);
  close(ends[1]);
  const bool ended = Listen(ends[0], Clock::now() + command.limit, outcome.output);
  outcome.timed_out = !ended && StopSignal() == 0;
  close(ends[0]);
  if (!ended) kill(-child, SIGKILL);
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  if (WIFEXITED(status)) outcome.status = WEXITSTATUS(status);
  outcome.started = outcome.status != kCannotStart;
  return outcome;
}

std::optional<std::filesystem::path> FindProgram(const std::string& name) {
  std::vector<std::filesystem::path> folders;
  std::error_code error;
  const auto self = std::filesystem::read_symlink("/proc/self/exe", error);
  if (!error) folders.push_back(self.parent_path());
  const char* path = std::getenv("PATH");
  std::istringstream list(path ? path : "");
  for (std::string folder; std::getline(list, folder, ':');) {
    folders.emplace_back(folder.empty() ? "." : folder);
  }
  for (const auto& folder : folders) {
    const auto file = std::filesystem::absolute(folder / name, error);
    if (access(file.c_str(), X_OK) == 0 && std::filesystem::is_regular_file(file, error)) {
      return file;
    }
  }
  return std::nullopt;
}

}  // namespace view
