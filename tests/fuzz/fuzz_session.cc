// SPDX-License-Identifier: MIT
#include "fuzz_session.h"

#include <cstdio>
#include <string_view>

#include "driver/session.h"
#include "gil_outline.h"
#include "osi/fatal.h"

void BufferStreams() {
  static char output[1U << 16U];
  static char errors[1U << 16U];
  std::setvbuf(stdout, output, _IOFBF, sizeof output);
  std::setvbuf(stderr, errors, _IOFBF, sizeof errors);
}

std::vector<std::string> SplitFiles(const uint8_t* data, std::size_t size) {
  std::string_view text(reinterpret_cast<const char*>(data), size);
  std::vector<std::string> files;
  while (true) {
    const std::size_t end = text.find(kFileSeparator);
    files.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) return files;
    text.remove_prefix(end + 1);
  }
}

int RunSession(void (*steps)()) {
  OsiSetExitHandler([](int status) { throw Ended{status & 0xff}; });
  ResetSession();
  try {
    steps();
  } catch (const Ended& ended) {
    return ended.status;
  }
  return 0;
}
