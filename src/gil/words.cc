// SPDX-License-Identifier: MIT
#include "gil/words.h"

#include <iterator>

#include "gil/keyword_hash.h"
#include "gil/tokens.h"

static constexpr Word kWords[] = {
#define WORD(token, text, value, word_of) {text, token, value, word_of},
#include "gil/words.def"
#undef WORD
};

const Word* const kFirstWord = std::begin(kWords);
const Word* const kLastWord = std::end(kWords) - 1;

const Word* WordOfToken(int32_t token) {
  return token >= kFirstToken && token <= kLastToken ? &kWords[token - kFirstToken] : nullptr;
}

const Word* FindKeyword(const char* text, std::size_t length) {
  const HashedKeyword* keyword = KeywordHash::Find(text, length);
  return keyword ? WordOfToken(keyword->token) : nullptr;
}

const char* KeywordText(int32_t token) {
  const Word* word = WordOfToken(token);
  return word ? word->text : nullptr;
}

bool IsWordOf(Enumeration enumeration, int32_t token) {
  const Word* word = WordOfToken(token);
  return word && (word->word_of & enumeration);
}
