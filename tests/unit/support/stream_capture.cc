// SPDX-License-Identifier: MIT
#include "unit/support/stream_capture.h"

#include <gtest/gtest.h>
#include <unistd.h>

StreamCapture::StreamCapture(std::FILE* stream) : stream_(stream), file_(std::tmpfile()) {
  std::fflush(stream_);
  former_ = dup(fileno(stream_));
  if (!file_ || former_ < 0 || dup2(fileno(file_), fileno(stream_)) < 0) {
    ADD_FAILURE() << "cannot redirect a standard stream";
  }
}

StreamCapture::~StreamCapture() {
  Restore();
  if (file_) std::fclose(file_);
}

std::string StreamCapture::Take() {
  Restore();
  std::string text;
  if (!file_) return text;
  std::rewind(file_);
  for (int c = std::getc(file_); c != EOF; c = std::getc(file_)) text += static_cast<char>(c);
  return text;
}

void StreamCapture::Restore() {
  if (former_ < 0) return;
  std::fflush(stream_);
  dup2(former_, fileno(stream_));
  close(former_);
  former_ = -1;
}
