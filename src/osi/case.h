// SPDX-License-Identifier: MIT
// Comparing and searching without regard to the case of letters, byte by byte in the current
// locale. Null strings count as empty ones.
#ifndef PANDREL_OSI_CASE_H
#define PANDREL_OSI_CASE_H

// 0 when the strings are equal but for case, otherwise 1: it tells equality, not order.
int OsiStrcasecmp(const char* a, const char* b);

// 1 when the first `n` bytes differ in more than case, otherwise 0. A string that ends first has no
// difference from there on: a prefix, and so an empty string, equals anything. 0 for `n` below 1.
int OsiStrncasecmp(const char* a, const char* b, int n);

// The first place in `hay` that equals `needle` but for case; null when there is none or `hay` is
// null. Like strstr the result loses the const of `hay`.
char* OsiStrCaseStr(const char* hay, const char* needle);

// An upper-case copy of `s` in `dst`, or in a new string (OsiMalloc memory) when `dst` is null.
// Null, with `dst` untouched, for a null `s`. `dst` may be `s` itself.
char* OsiStrUpCase(const char* s, char* dst = nullptr);

#endif
