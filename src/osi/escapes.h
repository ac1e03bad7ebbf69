// SPDX-License-Identifier: MIT
// Escaped copies of strings: every byte replaced by its text from a table, in which the control
// characters and the backslash stand for the escape sequences of C and every other byte, those of
// multibyte characters included, for itself.
#ifndef PANDREL_OSI_ESCAPES_H
#define PANDREL_OSI_ESCAPES_H

#include <cstddef>

// What OsiStrFixChars does besides; or them together. Each uses the fields named beside it.
enum OsiFixFlag : unsigned {
  kOsiFixMap = 1U << 0,     // mappings, mapping_count
  kOsiFixPrefix = 1U << 1,  // prefix
  kOsiFixSuffix = 1U << 2,  // suffix
  kOsiFixBreak = 1U << 3,   // break_every, break_text
  kOsiFixReuse = 1U << 4,   // buffer, buffer_size
};

// A table entry of the caller's own; the last one for a byte wins.
struct OsiFixMapping {
  unsigned char byte;
  const char* text;  // null removes the byte
};

struct OsiFixOptions {
  const OsiFixMapping* mappings = nullptr;  // replace entries of the table
  std::size_t mapping_count = 0;
  const char* prefix = nullptr;  // put before and after the escaped text, as they are
  const char* suffix = nullptr;
  // A break comes between two source bytes as soon as `break_every` or more bytes of escaped text
  // were written since the one before: never inside an escape sequence, never at the end. 0: no
  // breaks.
  std::size_t break_every = 0;
  const char* break_text = "\n";
  char* buffer = nullptr;  // receives the result when it fits, NUL included
  std::size_t buffer_size = 0;
};

// The escaped copy of `s` (null is empty): `options->buffer` when it is to be reused and is large
// enough, else a new string (OsiMalloc memory). Null `options` are those of a new record. The
// texts may lie in the buffer.
char* OsiStrFixChars(const char* s, const OsiFixOptions* options, unsigned flags);

#endif
