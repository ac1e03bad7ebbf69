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
#include <functional>
#include <string_view>
#include <utility>

#include "osi/huge_pages.h"
#include "osi/strings.h"

inline std::string_view TextView(const char* text) { return text ? text : std::string_view(); }
inline std::string_view TextView(std::string_view text) { return text; }

struct TextHash {
  using is_transparent = void;
  template <typename Text>
  std::size_t operator()(Text text) const {
    return std::hash<std::string_view>()(TextView(text));
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
