// SPDX-License-Identifier: MIT
// The keyword table: the words that may stand after a colon, and the tokens they name.
#ifndef PANDREL_GIL_KEYWORDS_H
#define PANDREL_GIL_KEYWORDS_H

#include <cstddef>
#include <cstdint>

struct Keyword {
  const char* text;  // without its colon; null ends the table
  int32_t token;
};

// In search order. The scanner never finds CallFunction, since a keyword has lower-case letters
// only.
extern const Keyword keywords[];

// The token of the first keyword equal to the `length` bytes at `text`, or 0.
int32_t FindKeyword(const char* text, std::size_t length);

// The text of the first keyword whose token is `token`, or null.
const char* KeywordText(int32_t token);

#endif
