// SPDX-License-Identifier: MIT
#include "osi/case.h"

#include <cctype>
#include <cstring>

#include "osi/memory.h"
#include "osi/strings.h"

// toupper is defined for unsigned char values only; a plain char above 127 may be negative.
static char Upper(char c) { return static_cast<char>(std::toupper(static_cast<unsigned char>(c))); }

int OsiStrcasecmp(const char* a, const char* b) {
  if (!a) a = "";
  if (!b) b = "";
  while (*a && Upper(*a) == Upper(*b)) {
    ++a;
    ++b;
  }
  return *a || *b ? 1 : 0;
}

int OsiStrncasecmp(const char* a, const char* b, int n) {
  if (!a || !b) return 0;
  for (int i = 0; i < n && a[i] && b[i]; ++i) {
    if (Upper(a[i]) != Upper(b[i])) return 1;
  }
  return 0;
}

char* OsiStrCaseStr(const char* hay, const char* needle) {
  if (!hay) return nullptr;
  char* upper_hay = OsiStrUpCase(hay);
  char* upper_needle = OsiStrUpCase(OsiOrEmpty(needle));
  const char* found = OsiStrstr(upper_hay, upper_needle);
  const char* place = found ? hay + (found - upper_hay) : nullptr;
  OsiFree(upper_hay);
  OsiFree(upper_needle);
  return const_cast<char*>(place);
}

char* OsiStrUpCase(const char* s, char* dst) {
  if (!s) return nullptr;
  std::size_t length = std::strlen(s);
  if (!dst) dst = static_cast<char*>(OsiMalloc(length + 1));
  for (std::size_t i = 0; i < length; ++i) dst[i] = Upper(s[i]);
  dst[length] = '\0';
  return dst;
}
