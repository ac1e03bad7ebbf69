// SPDX-License-Identifier: MIT
#include "osi/trim.h"

#include <cctype>
#include <cstring>

#include "osi/memory.h"

static bool IsSpace(char c) {
  if (c > ' ' && c <= '~') return false;  // white space in no locale
  return std::isspace(static_cast<unsigned char>(c)) != 0;
}

static bool IsNewline(char c) { return c == '\n'; }

static void CutEnd(char* s, bool (*is_cut)(char)) {
  if (!s || !*s) return;
  char* last = s + std::strlen(s) - 1;
  while (last != s && is_cut(*last)) --last;
  last[1] = '\0';
}

bool OsiIsEmptyString(const char* s) {
  if (!s) return true;
  while (IsSpace(*s)) ++s;
  return *s == '\0';
}

char* OsiStrRemBeginEndSpaces(const char* s) {
  if (!s) return nullptr;
  while (IsSpace(*s)) ++s;
  std::size_t length = std::strlen(s);
  while (length > 0 && IsSpace(s[length - 1])) --length;
  auto* copy = static_cast<char*>(OsiMalloc(length + 1));
  std::memcpy(copy, s, length);
  copy[length] = '\0';
  return copy;
}

void OsiRemoveEndBlanks(char* s) { CutEnd(s, IsSpace); }

void OsiRemoveEndNewlines(char* s) { CutEnd(s, IsNewline); }
