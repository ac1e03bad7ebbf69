// SPDX-License-Identifier: MIT
// The keyword table: the words that may stand after a colon, and the tokens they name.
#ifndef PANDREL_GIL_KEYWORDS_H
#define PANDREL_GIL_KEYWORDS_H

#include <cstddef>
#include <cstdint>
#include <string>

struct Keyword {
  const char* text;  // without its colon; null ends the table
  int32_t token;
  int32_t length = static_cast<int32_t>(std::char_traits<char>::length(text ? text : ""));
};

// No keyword is longer.
constexpr std::size_t kLongestKeyword = 22;

// In search order. The scanner never finds CallFunction, since a keyword has lower-case letters
// only.
extern const Keyword keywords[];

// The first keyword equal to the `length` bytes at `text`, or null.
const Keyword* FindKeyword(const char* text, std::size_t length);

// The text of the first keyword whose token is `token`, or null.
const char* KeywordText(int32_t token);

#endif
