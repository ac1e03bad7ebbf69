// SPDX-License-Identifier: MIT
// The table of words (gil/words.def), and its look-ups for the scanner, the parser and the dump.
#ifndef PANDREL_GIL_WORDS_H
#define PANDREL_GIL_WORDS_H

#include <cstddef>
#include <cstdint>

// The enumerations, a bit each, since a word may belong to several.
enum Enumeration : uint32_t {
  kElementType = 1U << 0,
  kBoolean = 1U << 1,
  kState = 1U << 2,
  kColumnAlignment = 1U << 3,
  kRowAlignment = 1U << 4,
  kCompassPoint = 1U << 5,
  kButtonType = 1U << 6,
  kDrawingModel = 1U << 7,
  kEventType = 1U << 8,
  kGroupType = 1U << 9,
  kLabelType = 1U << 10,
  kOrientation = 1U << 11,  // of layouts, too
  kMenuType = 1U << 12,
  kSettingType = 1U << 13,
  kTextType = 1U << 14,
  kArgType = 1U << 15,
};

enum ValueShape : uint8_t {
  kNothing,  // the word is no attribute
  kIntegerShape,
  kStringShape,
  kIntegerOrStringShape,
  kNameShape,  // identifier, string or nil
  kNameListShape,
  kStringListShape,
  kEmptyListShape,
  kWordShape,      // one word of an enumeration
  kWordListShape,  // a list of such words
};

// What follows an attribute keyword.
struct ValueForm {
  ValueShape shape;
  Enumeration words;  // for the last two shapes
};

// The forms as the table of words names them.
constexpr ValueForm kNoValue = {kNothing, {}};
constexpr ValueForm kInteger = {kIntegerShape, {}};
constexpr ValueForm kString = {kStringShape, {}};
constexpr ValueForm kIntegerOrString = {kIntegerOrStringShape, {}};
constexpr ValueForm kName = {kNameShape, {}};
constexpr ValueForm kNameList = {kNameListShape, {}};
constexpr ValueForm kStringList = {kStringListShape, {}};
constexpr ValueForm kEmptyList = {kEmptyListShape, {}};
constexpr ValueForm OneOf(Enumeration words) { return {kWordShape, words}; }
constexpr ValueForm ListOf(Enumeration words) { return {kWordListShape, words}; }

struct Word {
  const char* text;  // without a colon; null for a token that no keyword names
  int32_t token;
  ValueForm value;
  uint32_t word_of;  // the Enumeration bits of those that it is a word of
};

// The first and the last word of the table, in the order of their tokens.
extern const Word* const kFirstWord;
extern const Word* const kLastWord;

// The word of that token, null for a number that is no token.
const Word* WordOfToken(int32_t token);

// The word whose text is these `length` bytes, or null.
const Word* FindKeyword(const char* text, std::size_t length);

// The text of the token's keyword, or null.
const char* KeywordText(int32_t token);

// Whether `token` is a word of the enumeration.
bool IsWordOf(Enumeration enumeration, int32_t token);

#endif
