// SPDX-License-Identifier: MIT
// The standard string functions, but a null string counts as an empty one, so that the converter
// compares and copies names without a test for null. New strings are OsiMalloc memory, which the
// caller may release with OsiFree. Nothing here keeps a pointer.
//
// See case.h for comparisons without regard to case, trim.h for white space, numbers.h for numbers
// and escapes.h for escape sequences.
#ifndef PANDREL_OSI_STRINGS_H
#define PANDREL_OSI_STRINGS_H

#include <cstddef>
#include <cstring>
#include <string_view>

// The string itself, the empty one for null.
inline const char* OsiOrEmpty(const char* s) { return s ? s : ""; }

// The text without its NUL; empty for null.
inline std::string_view OsiView(const char* s) { return OsiOrEmpty(s); }

// strcmp, with a null string equal to an empty one.
inline int OsiStrcmp(const char* a, const char* b) {
  return std::strcmp(OsiOrEmpty(a), OsiOrEmpty(b));
}

// strncmp, with a null string equal to an empty one.
int OsiStrncmp(const char* a, const char* b, std::size_t n);

// OsiStrcmp of the strings that two `const char* const` elements point at: the comparison function
// for qsort over an array of strings.
int OsiStrPcmp(const void* pa, const void* pb);

// strlen; 0 for null.
inline std::size_t OsiStrlen(const char* s) { return s ? std::strlen(s) : 0; }

// A new copy of `s`; null for null.
char* OsiStrdup(const char* s);

// strcpy, strncpy, strcat and strncat: return `dst`, take a null `src` as empty, and do nothing but
// return null when `dst` is null. The caller provides the room in `dst`. As in the standard
// library, OsiStrncpy fills up to `n` bytes with NUL and leaves a longer `src` unterminated.
char* OsiStrcpy(char* dst, const char* src);
char* OsiStrncpy(char* dst, const char* src, std::size_t n);
char* OsiStrcat(char* dst, const char* src);
char* OsiStrncat(char* dst, const char* src, std::size_t n);

// strchr, strrchr and strstr: null when nothing is found or the string searched is null; a null
// needle is an empty one, found at once. As in C the result is not const even if `s` is: write
// through it only when the string is writable.
char* OsiStrchr(const char* s, int c);
char* OsiStrrchr(const char* s, int c);
char* OsiStrstr(const char* s, const char* needle);

// Appends `a`, then `b` (either may be null), to the OsiMalloc string `s`, or to a new empty string
// when `s` is null. Returns the grown block; `s` itself is gone. `a` and `b` may lie inside `s`.
char* OsiStrAppend(char* s, const char* a, const char* b = nullptr);

// Makes the OsiMalloc string `s` (null: a new one) hold a copy of `text`, the empty string when
// `text` is null. Returns the block, which has moved if it had to grow. `text` may lie inside `s`.
char* OsiStrReplace(char* s, const char* text);

#endif
