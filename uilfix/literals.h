// SPDX-License-Identifier: MIT
// The string literals inside a UIL value. A value is cut into parts that join to the same text:
// literals, quotes included, and whatever is between them. Inside a literal the unit is the
// "character": one byte, or one whole escape sequence, which no rewrite may cut in two.
#ifndef PANDREL_UILFIX_LITERALS_H
#define PANDREL_UILFIX_LITERALS_H

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace uilfix {

struct ValuePart {
  bool literal = false;
  std::string text;  // a literal with its quotes
};

// One past the closing quote of the literal that opens at `quote`; npos when nothing closes it.
std::size_t LiteralEnd(std::string_view text, std::size_t quote);

// Cuts a value into literals and the text between them. An unclosed literal counts as other text.
std::vector<ValuePart> SplitValue(std::string_view value);

std::string JoinValue(const std::vector<ValuePart>& parts);

// Replaces the inside of every literal of `value` by what `change` makes of it (the text between
// the quotes). Returns whether anything changed.
bool ChangeLiterals(std::string& value, const std::function<std::string(std::string_view)>& change);

// The escape sequence at the start of `text` (which begins with a backslash) as the compiler reads
// it: 2 for \n and its like, the digits and the closing backslash for \233\, 0 when the compiler
// refuses it.
std::size_t EscapeLength(std::string_view text);

// A byte as the compiler's numeric escape: \233\.
std::string NumericEscape(unsigned char byte);

// Takes the first character off the inside of a literal, which must not be empty. A backslash that
// the compiler refuses is a character with the byte after it.
std::string_view TakeCharacter(std::string_view& inside);

// The bytes that the inside of a literal stands for, escapes resolved as the compiler does.
std::string LiteralBytes(std::string_view inside);

// When the value is one string, alone or joined by "&" from several literals, its inside as one;
// false for any other expression.
bool PlainString(std::string_view value, std::string* inside);

}  // namespace uilfix

#endif
