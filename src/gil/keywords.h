// SPDX-License-Identifier: MIT
// The keyword table: the words that may stand after a colon, and the tokens they name.
#ifndef PANDREL_GIL_KEYWORDS_H
#define PANDREL_GIL_KEYWORDS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

struct Keyword {
  const char* text;  // without its colon; null ends the table
  int32_t token;
};

// In search order. The scanner never finds CallFunction, since a keyword has lower-case letters
// only.
extern const Keyword keywords[];

// As many machine words as the longest keyword fills.
using KeywordWords = std::array<uint64_t, 3>;
constexpr std::size_t kKeywordRoom = sizeof(KeywordWords);

// A row of the keyword table in a form that compares without a branch for each byte.
struct KeywordPattern {
  KeywordWords words;  // the text, then NULs
  int32_t token;
  int32_t length;
};
using KeywordPatterns = std::array<KeywordPattern, 187>;
extern const KeywordPatterns keyword_patterns;

// By length, all ones where a text of that length stands.
using KeywordMasks = std::array<KeywordWords, kKeywordRoom + 1>;
extern const KeywordMasks keyword_masks;

// The first `length` bytes at `text`, at most kKeywordRoom, then NULs. As many as kKeywordRoom
// bytes there must be readable, here and below.
inline KeywordWords KeywordWordsAt(const char* text, std::size_t length) {
  KeywordWords words;
  std::memcpy(&words, text, sizeof words);
  for (std::size_t i = 0; i < words.size(); ++i) words[i] &= keyword_masks[length][i];
  return words;
}

// Whether the keyword, or a longer text that begins with it, stands at `text`.
inline bool StandsAt(const KeywordPattern& keyword, const char* text) {
  const KeywordWords words = KeywordWordsAt(text, static_cast<std::size_t>(keyword.length));
  uint64_t differences = 0;
  for (std::size_t i = 0; i < words.size(); ++i) differences |= words[i] ^ keyword.words[i];
  return differences == 0;
}

// The first keyword equal to the `length` bytes at `text`, or null; no byte of them is NUL.
const Keyword* FindKeyword(const char* text, std::size_t length);

// The text of the first keyword whose token is `token`, or null.
const char* KeywordText(int32_t token);

#endif
