// SPDX-License-Identifier: MIT
#include "osi/wide_text.h"

#include <cstdlib>
#include <cwchar>

#include "osi/memory.h"
#include "osi/strings.h"

static const wchar_t* OrEmpty(const wchar_t* w) { return w ? w : L""; }

std::size_t OsiMbstowcs(wchar_t* dst, const char* s, std::size_t n) {
  return std::mbstowcs(dst, OsiOrEmpty(s), n);
}

std::size_t OsiWcstombs(char* dst, const wchar_t* w, std::size_t n) {
  return std::wcstombs(dst, OrEmpty(w), n);
}

int OsiMbtowc(wchar_t* wide, const char* s, std::size_t n) {
  if (s) return std::mbtowc(wide, s, n);
  if (wide) *wide = L'\0';
  std::mbtowc(nullptr, nullptr, 0);
  return 0;
}

std::size_t OsiWcStrlenWc(const wchar_t* w) { return w ? std::wcslen(w) : 0; }

std::size_t OsiWcStrlen(const wchar_t* w) { return OsiWcstombs(nullptr, w, 0); }

std::size_t OsiWcNStrlen(const wchar_t* w, std::size_t n) {
  const wchar_t* rest = OrEmpty(w);
  std::mbstate_t state = {};
  // Pass no more than the text has: sanitizers take the count for the size of what is read.
  return wcsnrtombs(nullptr, &rest, wcsnlen(rest, n), 0, &state);
}

int OsiWcStrcmp(const wchar_t* a, const wchar_t* b) { return std::wcscmp(OrEmpty(a), OrEmpty(b)); }

wchar_t* OsiWcStrcpy(wchar_t* dst, const wchar_t* src) {
  return dst ? std::wcscpy(dst, OrEmpty(src)) : nullptr;
}

wchar_t* OsiWcStrcat(wchar_t* dst, const wchar_t* src) {
  return dst ? std::wcscat(dst, OrEmpty(src)) : nullptr;
}

wchar_t* OsiWcStrchr(const wchar_t* w, wchar_t c) {
  return w ? const_cast<wchar_t*>(std::wcschr(w, c)) : nullptr;
}

wchar_t* OsiWcMbStrcat(wchar_t* wide, const char* s) {
  if (!wide) return nullptr;
  // Count first: a conversion that fails half way would leave `wide` without its NUL.
  std::size_t length = OsiMbstowcs(nullptr, s, 0);
  if (length == kOsiBadText) return nullptr;
  OsiMbstowcs(wide + std::wcslen(wide), s, length + 1);
  return wide;
}

wchar_t* OsiWcMbstowcs(const char* s) {
  std::size_t length = OsiMbstowcs(nullptr, s, 0);
  if (length == kOsiBadText) return nullptr;
  auto* copy = static_cast<wchar_t*>(OsiMalloc((length + 1) * sizeof(wchar_t)));
  OsiMbstowcs(copy, s, length + 1);
  return copy;
}

char* OsiWcWcstombs(const wchar_t* w) {
  std::size_t length = OsiWcstombs(nullptr, w, 0);
  if (length == kOsiBadText) return nullptr;
  auto* copy = static_cast<char*>(OsiMalloc(length + 1));
  OsiWcstombs(copy, w, length + 1);
  return copy;
}
