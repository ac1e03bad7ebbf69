// SPDX-License-Identifier: MIT
#include "gilgen/text_output.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>

void TextOutput::PutNumber(int64_t number) {
  char digits[24];
  const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, number);
  Put(std::string_view(digits, static_cast<std::size_t>(end.ptr - digits)));
}

void TextOutput::PutRepeated(char character, uint64_t count) {
  const std::string run(static_cast<std::size_t>(std::min<uint64_t>(count, 4096)), character);
  for (; count > run.size(); count -= run.size()) Put(run);
  Put(std::string_view(run).substr(0, static_cast<std::size_t>(count)));
}

void TextOutput::Flush() {
  std::string_view rest = buffer_;
  while (!rest.empty()) {
    const ssize_t written = write(fd_, rest.data(), rest.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) {
      if (errno != EPIPE) std::fprintf(stderr, "gilgen: cannot write: %s\n", std::strerror(errno));
      std::_Exit(1);
    }
    rest.remove_prefix(static_cast<std::size_t>(written));
  }
  buffer_.clear();
}
