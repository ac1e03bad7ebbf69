// SPDX-License-Identifier: MIT
// The token numbers of GIL. They name object types, attributes and enumerated values everywhere.
#ifndef PANDREL_GIL_TOKENS_H
#define PANDREL_GIL_TOKENS_H

#include <cstdint>

enum Token : int32_t {
  END_OF_INPUT = 0,
  BEFORE_FIRST_TOKEN = 256,
#define WORD(token, text, value, word_of) token,
#include "gil/words.def"
#undef WORD
};

constexpr int32_t kFirstToken = A;
constexpr int32_t kLastToken = INTEGER_VALUE;

// A row added in the middle of the table, or lost from it, moves the last number.
static_assert(kFirstToken == 257 && kLastToken == 452);

#endif
