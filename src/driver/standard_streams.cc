// SPDX-License-Identifier: MIT
#include "driver/standard_streams.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>

#include "flags/flags.h"
#include "osi/fatal.h"

void HoldStandardStreams() {
  for (int fd = STDIN_FILENO; fd <= STDERR_FILENO; ++fd) {
    if (fcntl(fd, F_GETFD) != -1) continue;
    // Open input for writing and output for reading, so that using the stream fails.
    const int mode = fd == STDIN_FILENO ? O_WRONLY : O_RDONLY;
    if (open("/dev/null", mode) != fd) OsiExit(-1);
  }
}

void TellIfInputIsTerminal(const char* notice) {
  if (verbose && isatty(STDIN_FILENO)) std::fputs(notice, stderr);
}
