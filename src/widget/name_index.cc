// SPDX-License-Identifier: MIT
#include "widget/name_index.h"

#include <tsl/robin_map.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

#include "osi/huge_pages.h"
#include "osi/strings.h"
#include "osi/text_map.h"
#include "widget/links.h"
#include "widget/tree.h"

namespace {

// Keys of the tables are hashes already; their lowest bit is always set.
struct HashAsItIs {
  std::size_t operator()(uint32_t hash) const { return hash >> 1; }
};

template <typename Mapped>
struct ByHash : tsl::robin_map<uint32_t, Mapped, HashAsItIs, std::equal_to<uint32_t>,
                               HugePageAllocator<std::pair<uint32_t, Mapped>>> {
  ByHash() { this->max_load_factor(kFullTable); }
};

// How many widgets there were when it began, and when its file did.
struct Unit {
  uint32_t start = 0;
  uint32_t file_start = 0;
};

struct Index {
  Widg* newest = nullptr;              // of all widgets
  uint32_t made = 0;                   // how many there are
  std::vector<Unit> units = {Unit()};  // the last one is the current one
  uint32_t indexed = 0;                // how many of them are in the table
  // By hash of their name, the newest widgets in front.
  ByHash<Widg*> by_hash;
  unsigned renamed = 0;
  bool top_level_indexed = false;
  // Top-level widgets by hash of their name, in their order. Some may have left the top level or
  // have another name by now.
  ByHash<std::vector<Widg*>> top_level;
};

Index index_;

// FNV-1a. Never 0, which marks a widget that is in no bucket.
uint32_t HashOf(const char* name) {
  uint32_t hash = 2166136261U;
  for (; name && *name; ++name) hash = (hash ^ static_cast<unsigned char>(*name)) * 16777619U;
  return hash | 1U;
}

// Puts the widget among those of its hash, in front of those that were made before it.
void Insert(Widg* widg) {
  const auto [first, is_only] = index_.by_hash.try_emplace(widg->place.hash, widg);
  if (is_only) {
    widg->place.same_hash = nullptr;
    return;
  }
  Widg** link = &first.value();
  while (*link && (*link)->place.made > widg->place.made) link = &(*link)->place.same_hash;
  widg->place.same_hash = *link;
  *link = widg;
}

// Brings the widgets that were made since the last search into the table.
void CatchUp() {
  if (index_.indexed == index_.made) return;
  std::vector<Widg*> waiting;
  waiting.reserve(index_.made - index_.indexed);
  if (index_.by_hash.empty()) index_.by_hash.reserve(index_.made);
  for (Widg* widg = index_.newest; widg && widg->place.made > index_.indexed;
       widg = widg->place.made_before) {
    waiting.push_back(widg);
  }
  for (auto widg = waiting.rbegin(); widg != waiting.rend(); ++widg) {
    (*widg)->place.hash = HashOf((*widg)->gil_name);
    Insert(*widg);
  }
  index_.indexed = index_.made;
}

void InsertTopLevel(Widg* widg) {
  std::vector<Widg*>& widgs = index_.top_level[HashOf(widg->gil_name)];
  // One that was here before stands at its former place.
  if (widg->place.was_top_level) {
    widgs.erase(std::remove(widgs.begin(), widgs.end(), widg), widgs.end());
  }
  widg->place.was_top_level = true;
  const auto place = std::upper_bound(
      widgs.begin(), widgs.end(), widg,
      [](const Widg* a, const Widg* b) { return a->place.order < b->place.order; });
  widgs.insert(place, widg);
}

void CatchUpTopLevel() {
  if (index_.top_level_indexed) return;
  index_.top_level_indexed = true;
  for (Widg* widg = top_widget; widg; widg = widg->next) {
    if (widg->place.parent == kTopLevel) InsertTopLevel(widg);
  }
}

// Different names may have the same hash.
Widg* FirstNamed(Widg* widg, const char* name) {
  while (widg && OsiStrcmp(widg->gil_name, name) != 0) widg = widg->place.same_hash;
  return widg;
}

}  // namespace

void NameIndexMade(Widg* widg) {
  widg->place.made = ++index_.made;
  widg->place.oldest = widg->place.made;
  widg->place.unit = static_cast<uint32_t>(index_.units.size() - 1);
  widg->place.made_before = index_.newest;
  index_.newest = widg;
}

void NameIndexForget(Widg* widg) {
  if (widg->place.hash == 0) return;
  const auto first = index_.by_hash.find(widg->place.hash);
  Widg** link = &first.value();
  while (*link != widg) link = &(*link)->place.same_hash;
  *link = widg->place.same_hash;
  if (!first->second) index_.by_hash.erase(first);
  widg->place.same_hash = nullptr;
  widg->place.hash = 0;
}

void NameIndexRemember(Widg* widg) {
  ++index_.renamed;
  NameIndexTopLevel(widg);
  if (widg->place.made > index_.indexed) return;  // comes with the next search
  widg->place.hash = HashOf(widg->gil_name);
  Insert(widg);
}

void NameIndexTopLevel(Widg* widg) {
  if (index_.top_level_indexed && widg->place.parent == kTopLevel) InsertTopLevel(widg);
}

void NameIndexNewUnit() { index_.units.push_back({index_.made, index_.units.back().file_start}); }

void NameIndexNewFile() { index_.units.push_back({index_.made, index_.made}); }

uint32_t UnitStartOf(const Widg* widg) { return index_.units[widg->place.unit].start; }

uint32_t FileStartOf(const Widg* widg) { return index_.units[widg->place.unit].file_start; }

Widg* NewestOfName(const char* name) {
  CatchUp();
  const auto newest = index_.by_hash.find(HashOf(name));
  return newest == index_.by_hash.end() ? nullptr : FirstNamed(newest->second, name);
}

Widg* OlderOfName(const Widg* widg) { return FirstNamed(widg->place.same_hash, widg->gil_name); }

Widg* FirstTopLevelOfName(const char* name, bool with_child) {
  CatchUpTopLevel();
  const auto found = index_.top_level.find(HashOf(name));
  if (found == index_.top_level.end()) return nullptr;
  std::vector<Widg*>& widgs = found.value();
  const auto HasLeft = [](const Widg* widg) { return widg->place.parent != kTopLevel; };
  // Those in front that are gone would be passed over again and again.
  const auto first = std::find_if_not(widgs.begin(), widgs.end(), HasLeft);
  widgs.erase(widgs.begin(), first);
  for (Widg* widg : widgs) {
    if (!HasLeft(widg) && OsiStrcmp(widg->gil_name, name) == 0 && (widg->child || !with_child)) {
      return widg;
    }
  }
  return nullptr;
}

unsigned NameChanges() { return index_.renamed; }

void ResetNameIndex() { index_ = Index(); }
