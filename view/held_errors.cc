// SPDX-License-Identifier: MIT
#include "held_errors.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <iostream>

namespace view {

HeldErrors::HeldErrors() : memory_(memfd_create("errors", MFD_CLOEXEC)) {
  if (memory_ < 0) return;
  former_ = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 0);
  if (former_ < 0 || dup2(memory_, STDERR_FILENO) < 0) End(false);
}

HeldErrors::~HeldErrors() { End(true); }

void HeldErrors::End(bool print) {
  if (memory_ < 0) return;
  std::cerr << std::flush;
  if (former_ >= 0) {
    dup2(former_, STDERR_FILENO);
    close(former_);
  }
  char buffer[4096];
  off_t at = 0;
  ssize_t size = 0;
  while (print && (size = pread(memory_, buffer, sizeof buffer, at)) > 0) {
    at += size;
    // There is nobody to tell when standard error cannot be written.
    if (write(STDERR_FILENO, buffer, static_cast<std::size_t>(size)) < 0) break;
  }
  close(memory_);
  memory_ = former_ = -1;
}

}  // namespace view
