// SPDX-License-Identifier: MIT
#include "osi/processes.h"

#include <signal.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "osi/files.h"
#include "osi/memory.h"
#include "osi/strings.h"

int OsiSystem(const char* command) { return std::system(OsiOrEmpty(command)); }

pid_t OsiProcExec(const char* path, const char* arguments) {
  if (!path) path = "";
  if (!OsiFileExists(path)) {
    std::fprintf(stderr, "OsiProcExec: File %s not found\n", path);
    return 0;
  }
  // Split before the fork, so that only execv can fail in the child.
  constexpr int kMaxWords = 24;
  char* copy = OsiStrdup(OsiOrEmpty(arguments));
  std::string program = path;
  char* list[1 + kMaxWords + 1] = {program.data()};
  char* rest = copy;
  for (int i = 1; i <= kMaxWords; ++i) {
    list[i] = strtok_r(rest, " ", &rest);
    if (!list[i]) break;
  }
  pid_t child = fork();
  if (child == 0) {
    execv(path, list);
    std::fprintf(stderr, "OsiProcExec: Failed to exec %s\n", path);
    // exit() would write the parent's unwritten output a second time.
    _exit(127);
  }
  OsiFree(copy);
  return child;
}

int OsiProcKill(pid_t pid, int signal) { return kill(pid, signal); }
