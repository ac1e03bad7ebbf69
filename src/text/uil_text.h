// SPDX-License-Identifier: MIT
// Small helpers that build UIL values and widget names: literals, names with suffixes, clean-ups of
// texts from the interface file. A leaf that any folder may use. Every new text comes from the
// arena and lives as long as the conversion. No helper frees its arguments; a null text counts as
// empty. A helper that cannot get memory ends the run through Error and names itself.
#ifndef PANDREL_TEXT_UIL_TEXT_H
#define PANDREL_TEXT_UIL_TEXT_H

#include <cstddef>
#include <cstdint>
#include <string_view>

// The decimal text of `number`. (The text of OsiIntToStr is not in the arena: its caller frees it.)
char* IntToString(int32_t number);

// The number at the start of `text` as atoi reads it: 0 when there is none.
int32_t StringToInt(const char* text);

// The same for a text without a NUL, which a byte follows that is no digit.
int32_t ReadInt(std::string_view text);

// The decimal text of `number` between double quotes: a UIL string literal.
char* IntToQuotedString(int32_t number);

// `text` between double quotes. Quotes and backslashes inside are not escaped: texts of the
// interface file arrive escaped.
char* MakeQuotedString(const char* text);

// `text` between square brackets.
char* MakeBracketedString(const char* text);

// `a` followed by `b`.
char* MergeStrings(const char* a, const char* b);

// `a`, `b` and a serial number that is 100 on the first call of a conversion and rises by one.
char* MergeStringsUnique(const char* a, const char* b);

// `before`, `text` and `after` joined; when memory runs out, Error(`out_of_memory`). Most of the
// other helpers call it.
char* JoinTexts(const char* before, const char* text, const char* after, const char* out_of_memory);

// A copy with a backslash and an "n" in the place of every newline, as in a UIL string literal;
// null for null.
char* ReplaceNewlines(const char* text);

// How many newline characters `text` holds.
std::size_t CountNewlines(const char* text);

// Replaces a last character 0 to 8 by a letter A to I, in place; a last 9 and any other character
// stay. Returns `text`.
char* ReplaceTrailingDigit(char* text);

// A copy cut at the last ".", even when that is in a directory name.
char* FilenameWithoutExtension(const char* path);

// The address of the terminating NUL; null for null.
char* EndOfString(char* text);

// Overwrites a double quote at the end of the caller's buffer with a NUL, and returns the rest of
// the buffer behind a double quote at its start.
char* RemoveQuotes(char* text);

// OsiStrncmp, under the name that users of these helpers know.
int IbStrncmp(const char* a, const char* b, std::size_t length);

// Starts the serial numbers of MergeStringsUnique anew.
void ResetStrings();

#endif
