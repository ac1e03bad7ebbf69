// SPDX-License-Identifier: MIT
// Escaped copies of strings. A table gives the text for every byte: the escape sequence of C for
// control characters and the backslash, and the byte itself for all others, those of multibyte
// characters included.
#ifndef PANDREL_OSI_ESCAPES_H
#define PANDREL_OSI_ESCAPES_H

#include <cstddef>

// What else OsiStrFixChars does. Combine flags with "|"; each uses the fields named beside it.
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
  // Puts a break between two source bytes once `break_every` or more bytes of escaped text follow
  // the break before: never inside an escape sequence, never at the end. 0: no breaks.
  std::size_t break_every = 0;
  const char* break_text = "\n";
  char* buffer = nullptr;  // receives the result when it fits, NUL included
  std::size_t buffer_size = 0;
};

// The escaped copy of `s` (null is empty): in `options->buffer` with kOsiFixReuse when that is
// large enough, else a new string (OsiMalloc memory). Null `options` are those of a new record. `s`
// and the texts of the options may lie in the buffer.
char* OsiStrFixChars(const char* s, const OsiFixOptions* options, unsigned flags);

#endif
