// SPDX-License-Identifier: MIT
// What the targets share: an end of the run that comes back, and a fresh state for every input.
#ifndef PANDREL_TESTS_FUZZ_SESSION_H
#define PANDREL_TESTS_FUZZ_SESSION_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// Thrown where the program would have ended.
struct Ended {
  int status;
};

// Gives standard output and standard error buffers: the reader's messages would otherwise cost a
// system call each, and nobody reads them. To be called once, before the first input.
void BufferStreams();

// Splits an input at kFileSeparator.
std::vector<std::string> SplitFiles(const uint8_t* data, std::size_t size);

// Runs `steps` from a fresh state; returns the status with which they ended the run, 0 when they
// did not. The state is left for the caller to look at until the next call.
int RunSession(void (*steps)());

#endif
