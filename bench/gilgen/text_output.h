// SPDX-License-Identifier: MIT
// Buffered output of a generated file. A failed write ends the generator with a message and
// status 1, except that a reader that has gone away ends it silently, as in any pipeline.
#ifndef PANDREL_BENCH_GILGEN_TEXT_OUTPUT_H
#define PANDREL_BENCH_GILGEN_TEXT_OUTPUT_H

#include <cstdint>
#include <string>
#include <string_view>

class TextOutput {
 public:
  // Writes to the open descriptor `fd`, which stays the caller's.
  explicit TextOutput(int fd) : fd_(fd) {}
  ~TextOutput() { Flush(); }
  TextOutput(const TextOutput&) = delete;
  TextOutput& operator=(const TextOutput&) = delete;

  void Put(std::string_view text) {
    if (buffer_.size() + text.size() > kBufferSize) Flush();
    buffer_.append(text);
    bytes_ += text.size();
  }
  void PutNumber(int64_t number);
  // `count` times the character.
  void PutRepeated(char character, uint64_t count);
  void Flush();

  // The bytes put so far, flushed or not.
  uint64_t bytes() const { return bytes_; }

 private:
  static constexpr std::size_t kBufferSize = 1U << 18U;

  int fd_;
  uint64_t bytes_ = 0;
  std::string buffer_;
};

#endif
