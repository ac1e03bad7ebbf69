// SPDX-License-Identifier: MIT
// What a piece of code writes on standard output and standard error, as text.
#ifndef PANDREL_TESTS_UNIT_SUPPORT_STREAM_CAPTURE_H
#define PANDREL_TESTS_UNIT_SUPPORT_STREAM_CAPTURE_H

#include <cstdio>
#include <string>

// Sends one standard stream to a temporary file until Take() or the end of the scope, whatever is
// written through the stream, through its descriptor or by a child process.
class StreamCapture {
 public:
  explicit StreamCapture(std::FILE* stream);
  ~StreamCapture();
  StreamCapture(const StreamCapture&) = delete;
  StreamCapture& operator=(const StreamCapture&) = delete;

  // Gives the stream back to where it went before and returns what was written. To be called once.
  std::string Take();

 private:
  void Restore();

  std::FILE* stream_;
  std::FILE* file_;
  int former_;  // a copy of the descriptor before; -1 when already given back
};

#endif
