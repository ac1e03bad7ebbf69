// SPDX-License-Identifier: MIT
#include "osi/strings.h"

#include "osi/memory.h"

int OsiStrncmp(const char* a, const char* b, std::size_t n) {
  return std::strncmp(OsiOrEmpty(a), OsiOrEmpty(b), n);
}

int OsiStrPcmp(const void* pa, const void* pb) {
  auto* a = static_cast<const char* const*>(pa);
  auto* b = static_cast<const char* const*>(pb);
  return OsiStrcmp(a ? *a : nullptr, b ? *b : nullptr);
}

char* OsiStrdup(const char* s) {
  if (!s) return nullptr;
  std::size_t size = std::strlen(s) + 1;
  return static_cast<char*>(std::memcpy(OsiMalloc(size), s, size));
}

char* OsiStrcpy(char* dst, const char* src) {
  return dst ? std::strcpy(dst, OsiOrEmpty(src)) : nullptr;
}

char* OsiStrncpy(char* dst, const char* src, std::size_t n) {
  return dst ? std::strncpy(dst, OsiOrEmpty(src), n) : nullptr;
}

char* OsiStrcat(char* dst, const char* src) {
  return dst ? std::strcat(dst, OsiOrEmpty(src)) : nullptr;
}

char* OsiStrncat(char* dst, const char* src, std::size_t n) {
  return dst ? std::strncat(dst, OsiOrEmpty(src), n) : nullptr;
}

char* OsiStrchr(const char* s, int c) { return s ? const_cast<char*>(std::strchr(s, c)) : nullptr; }

char* OsiStrrchr(const char* s, int c) {
  return s ? const_cast<char*>(std::strrchr(s, c)) : nullptr;
}

char* OsiStrstr(const char* s, const char* needle) {
  return s ? const_cast<char*>(std::strstr(s, OsiOrEmpty(needle))) : nullptr;
}

char* OsiStrAppend(char* s, const char* a, const char* b) {
  std::size_t s_length = OsiStrlen(s);
  std::size_t a_length = OsiStrlen(a);
  std::size_t b_length = OsiStrlen(b);
  // Not OsiRealloc: `a` and `b` may be parts of `s`, so `s` must outlive the copying.
  auto* grown = static_cast<char*>(OsiMalloc(s_length + a_length + b_length + 1));
  std::memcpy(grown, OsiOrEmpty(s), s_length);
  std::memcpy(grown + s_length, OsiOrEmpty(a), a_length);
  std::memcpy(grown + s_length + a_length, OsiOrEmpty(b), b_length);
  grown[s_length + a_length + b_length] = '\0';
  OsiFree(s);
  return grown;
}

char* OsiStrReplace(char* s, const char* text) {
  text = OsiOrEmpty(text);
  std::size_t length = std::strlen(text);
  // A text inside `s` is never longer than `s`, so `s` does not move in that case.
  if (!s || std::strlen(s) < length) s = static_cast<char*>(OsiRealloc(s, length + 1));
  std::memmove(s, text, length);
  s[length] = '\0';
  return s;
}
