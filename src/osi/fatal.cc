// SPDX-License-Identifier: MIT
#include "osi/fatal.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <new>

static OsiExitHandler exit_handler = nullptr;

void OsiExit(int status) {
  if (exit_handler) {
    exit_handler(status);
    std::abort();  // a handler must not return: the caller cannot go on
  }
#ifdef PANDREL_REPORTS_AT_EXIT
  std::exit(status);
#else
  // Only the streams matter. exit() would also run destructors and the libraries' own endings,
  // which takes as long as reading a small file.
  std::fflush(nullptr);
  _exit(status);
#endif
}

void Error(const char* message) {
  std::fprintf(stderr, "Error: %s\n", message);
  OsiExit(-1);
}

void SystemErrorHandler() {
  std::fputs("Sorry, fatal error trying to convert GIL file.\n", stderr);
  OsiExit(1);
}

OsiExitHandler OsiSetExitHandler(OsiExitHandler handler) {
  OsiExitHandler previous = exit_handler;
  exit_handler = handler;
  return previous;
}

// Does not use stdio, which may need memory for a buffer.
static void ReportExhaustedMemory() {
  static const char kMessage[] = "Error: Out of memory\n";
  if (write(STDERR_FILENO, kMessage, sizeof kMessage - 1) < 0) OsiExit(-1);
  OsiExit(-1);
}

void OsiEndOnExhaustedMemory() { std::set_new_handler(ReportExhaustedMemory); }
