// SPDX-License-Identifier: MIT
// The reader alone: scanner, parser, owner resolution and the dump of what was read.
#include <cstddef>
#include <cstdint>

#include "confinement.h"
#include "fuzz_session.h"
#include "gil/dump.h"
#include "gil/object.h"
#include "gil/parser.h"
#include "gil_mutator.h"

extern "C" {

int LLVMFuzzerInitialize(int*, char***) {
  BufferStreams();
  return 0;
}

std::size_t LLVMFuzzerMutate(uint8_t* data, std::size_t size, std::size_t max_size);

std::size_t LLVMFuzzerCustomMutator(uint8_t* data, std::size_t size, std::size_t max_size,
                                    unsigned seed) {
  return MutateGil(data, size, max_size, seed, 0, LLVMFuzzerMutate);
}

std::size_t LLVMFuzzerCustomCrossOver(const uint8_t* first, std::size_t first_size,
                                      const uint8_t* second, std::size_t second_size, uint8_t* out,
                                      std::size_t max_size, unsigned seed) {
  return CrossOverGil(first, first_size, second, second_size, out, max_size, seed, 0);
}

int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  const Confinement confinement(SplitFiles(data, size));
  RunSession([] {
    if (yyparse() != 0) return;
    gilFile = resolveChildren(gilFile);
    generate(gilFile);
    if (project != nullptr) generate(project);
  });
  return 0;
}
}
