// SPDX-License-Identifier: MIT
// Changes GIL texts the way that odd but parsable interfaces differ from ordinary ones: objects
// shuffled, duplicated, renamed to collide; owners, menus, members and actions pointed elsewhere,
// at themselves too; lists of another length than their neighbours; values of every form. Noise in
// the bytes, which alone would stay in the parser, comes from the fuzzer's own mutator now and
// then.
//
// An input may hold several files, separated by kFileSeparator: the first is what arrives on
// standard input, the others are its interfaces, called a.G, b.G, ... in turn.
#ifndef PANDREL_TESTS_FUZZ_GIL_MUTATOR_H
#define PANDREL_TESTS_FUZZ_GIL_MUTATOR_H

#include <cstddef>
#include <cstdint>

// Changes the bytes in place and returns their new number, at most `max_size`.
using ByteMutator = std::size_t (*)(uint8_t* data, std::size_t size, std::size_t max_size);

// The same for GIL texts. The first `prefix` bytes are no text, but the target's own choices; they
// are changed now and then. `fallback` may be null. Equal arguments give equal results.
std::size_t MutateGil(uint8_t* data, std::size_t size, std::size_t max_size, unsigned seed,
                      std::size_t prefix, ByteMutator fallback);

// Puts objects of the second input among those of the first; writes the result to `out`, at most
// `max_size` bytes, and returns their number.
std::size_t CrossOverGil(const uint8_t* first, std::size_t first_size, const uint8_t* second,
                         std::size_t second_size, uint8_t* out, std::size_t max_size, unsigned seed,
                         std::size_t prefix);

#endif
