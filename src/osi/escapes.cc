// SPDX-License-Identifier: MIT
#include "osi/escapes.h"

#include <array>
#include <cstring>
#include <string>

#include "osi/strings.h"

namespace {

constexpr std::size_t kByteCount = 256;

// The longest entry is an octal escape sequence.
using Entry = std::array<char, 5>;

// All three octal digits, so that no digit behind the sequence becomes a part of it.
constexpr Entry Octal(unsigned byte) {
  return {'\\', static_cast<char>('0' + byte / 64), static_cast<char>('0' + byte / 8 % 8),
          static_cast<char>('0' + byte % 8), '\0'};
}

constexpr std::array<Entry, kByteCount> MakeTable() {
  std::array<Entry, kByteCount> table = {};
  for (unsigned byte = 0; byte < kByteCount; ++byte) {
    bool is_control = byte < 0x20 || byte == 0x7f;
    table[byte] = is_control ? Octal(byte) : Entry{static_cast<char>(byte)};
  }
  table['\a'] = {'\\', 'a'};
  table['\b'] = {'\\', 'b'};
  table['\t'] = {'\\', 't'};
  table['\n'] = {'\\', 'n'};
  table['\v'] = {'\\', 'v'};
  table['\f'] = {'\\', 'f'};
  table['\r'] = {'\\', 'r'};
  table['\\'] = {'\\', '\\'};
  return table;
}

constexpr std::array<Entry, kByteCount> kTable = MakeTable();

// The table with the caller's changes.
std::array<const char*, kByteCount> TextsOf(const OsiFixOptions& options, unsigned flags) {
  std::array<const char*, kByteCount> texts;
  for (std::size_t byte = 0; byte < kByteCount; ++byte) texts[byte] = kTable[byte].data();
  if (flags & kOsiFixMap) {
    for (std::size_t i = 0; i < options.mapping_count; ++i) {
      const OsiFixMapping& mapping = options.mappings[i];
      texts[mapping.byte] = mapping.text ? mapping.text : "";
    }
  }
  return texts;
}

}  // namespace

char* OsiStrFixChars(const char* s, const OsiFixOptions* options, unsigned flags) {
  const OsiFixOptions none;
  if (!options) options = &none;
  const auto texts = TextsOf(*options, flags);
  const std::size_t break_every = flags & kOsiFixBreak ? options->break_every : 0;

  std::string result;
  if ((flags & kOsiFixPrefix) && options->prefix) result += options->prefix;
  std::size_t since_break = 0;
  for (const char* p = OsiOrEmpty(s); *p; ++p) {
    if (break_every > 0 && since_break >= break_every) {
      if (options->break_text) result += options->break_text;
      since_break = 0;
    }
    const char* text = texts[static_cast<unsigned char>(*p)];
    result += text;
    since_break += std::strlen(text);
  }
  if ((flags & kOsiFixSuffix) && options->suffix) result += options->suffix;

  if ((flags & kOsiFixReuse) && options->buffer && result.size() < options->buffer_size) {
    return OsiStrcpy(options->buffer, result.c_str());
  }
  return OsiStrdup(result.c_str());
}
