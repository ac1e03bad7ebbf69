// SPDX-License-Identifier: MIT
// Hash tables whose keys are NUL-terminated texts. A text is not copied: it must stay where it is,
// and as it is, for as long as it is looked for. Null counts as the empty text.
//
// Open addressing with a part of the hash beside each entry: a look-up in a table of a million
// names touches one line of the table, and the text itself only where it is the one.
#ifndef PANDREL_OSI_TEXT_MAP_H
#define PANDREL_OSI_TEXT_MAP_H

#include <tsl/robin_map.h>
#include <tsl/robin_set.h>

#include <cstddef>
#include <string_view>
#include <utility>

#include "osi/huge_pages.h"
#include "osi/strings.h"

inline std::string_view TextView(const char* text) { return text ? text : std::string_view(); }
inline std::string_view TextView(std::string_view text) { return text; }

// FNV-1a: names are short, so the fewest instructions for each count for more than the fewest for
// each byte.
struct TextHash {
  using is_transparent = void;
  std::size_t operator()(const char* text) const {
    std::size_t hash = kOffset;
    for (; text && *text; ++text) hash = Add(hash, *text);
    return hash;
  }
  std::size_t operator()(std::string_view text) const {
    std::size_t hash = kOffset;
    for (char c : text) hash = Add(hash, c);
    return hash;
  }

 private:
  static constexpr std::size_t kOffset = 14695981039346656037U;
  static std::size_t Add(std::size_t hash, char c) {
    return (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
  }
};

struct TextEqual {
  using is_transparent = void;
  bool operator()(const char* a, const char* b) const { return OsiStrcmp(a, b) == 0; }
  bool operator()(std::string_view a, const char* b) const { return a == TextView(b); }
  bool operator()(const char* a, std::string_view b) const { return TextView(a) == b; }
};

// How full a table gets before it grows. Probing stays short up to here, and the fresh memory of a
// roomier table takes longer than the probes that it saves.
constexpr float kFullTable = 0.8F;

template <typename Mapped>
struct TextMap : tsl::robin_map<const char*, Mapped, TextHash, TextEqual,
                                HugePageAllocator<std::pair<const char*, Mapped>>, true> {
  TextMap() { this->max_load_factor(kFullTable); }
};

struct TextSet
    : tsl::robin_set<const char*, TextHash, TextEqual, HugePageAllocator<const char*>, true> {
  TextSet() { max_load_factor(kFullTable); }
};

#endif
