// SPDX-License-Identifier: MIT
// Multibyte text in the encoding of the current locale (LC_CTYPE) and wide characters. Null strings
// count as empty ones. A text that cannot be converted (bytes that are no character, a character
// that the encoding lacks) gives kOsiBadText where the result is a count and null where it is a
// string.
#ifndef PANDREL_OSI_WIDE_TEXT_H
#define PANDREL_OSI_WIDE_TEXT_H

#include <cstddef>

// The standard library's (size_t)-1.
constexpr std::size_t kOsiBadText = static_cast<std::size_t>(-1);

// mbstowcs and wcstombs: convert into `dst`, at most `n` wide characters or bytes, and return how
// many were written without the NUL, which is written only when it fits. A null `dst` only counts.
std::size_t OsiMbstowcs(wchar_t* dst, const char* s, std::size_t n);
std::size_t OsiWcstombs(char* dst, const wchar_t* w, std::size_t n);

// mbtowc: converts the first character of `s`, at most `n` bytes long, into `*wide` (which may be
// null). Returns its length in bytes, 0 for the end of the string, -1 when it is no character or
// incomplete. A null `s` counts as the end of the string and resets the conversion state.
int OsiMbtowc(wchar_t* wide, const char* s, std::size_t n);

// Length in wide characters.
std::size_t OsiWcStrlenWc(const wchar_t* w);

// Length in bytes of the multibyte form, of all of `w` or of its first `n` characters.
std::size_t OsiWcStrlen(const wchar_t* w);
std::size_t OsiWcNStrlen(const wchar_t* w, std::size_t n);

// wcscmp.
int OsiWcStrcmp(const wchar_t* a, const wchar_t* b);

// wcscpy and wcscat: return `dst`; do nothing but return null when `dst` is null. The caller
// provides the room in `dst`.
wchar_t* OsiWcStrcpy(wchar_t* dst, const wchar_t* src);
wchar_t* OsiWcStrcat(wchar_t* dst, const wchar_t* src);

// wcschr: null when `c` is not found or `w` is null. The result loses the const of `w`.
wchar_t* OsiWcStrchr(const wchar_t* w, wchar_t c);

// Appends the multibyte string `s` to `wide`, in which the caller provides the room. Returns
// `wide`; null, with nothing appended, when `wide` is null or `s` cannot be converted.
wchar_t* OsiWcMbStrcat(wchar_t* wide, const char* s);

// A new wide copy of `s`, a new multibyte copy of `w` (OsiMalloc memory); an empty one for null.
wchar_t* OsiWcMbstowcs(const char* s);
char* OsiWcWcstombs(const wchar_t* w);

#endif
