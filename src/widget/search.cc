// SPDX-License-Identifier: MIT
#include "widget/search.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "osi/strings.h"
#include "osi/text_map.h"
#include "widget/links.h"
#include "widget/name_index.h"
#include "widget/tree.h"

unsigned NewVisit() {
  static unsigned last_visit = 0;
  return ++last_visit;
}

// The first widget in search order that `Matches` holds for.
//
// Each widget is visited once. That finds what a search with a guard against the current path alone
// would find: whatever lies behind a widget that was visited on another way was tested then, or
// waits on the path and will be.
template <typename Predicate>
static Widg* FindFirst(Widg* tree, Predicate Matches) {
  const unsigned visit = NewVisit();
  static std::vector<Widg*> children;  // child lists that wait; the last one comes first
  children.assign(1, tree);
  while (!children.empty()) {
    Widg* widg = children.back();
    children.pop_back();
    for (; widg && widg->visit != visit; widg = widg->next) {
      widg->visit = visit;
      if (Matches(widg)) return widg;
      if (widg->child) children.push_back(widg->child);
    }
  }
  return nullptr;
}

Widg* FindWidgInTree(Widg* tree, const char* name) {
  return FindFirst(tree, [name](const Widg* widg) { return OsiStrcmp(widg->gil_name, name) == 0; });
}

Widg* FindWidgWithChildInTree(Widg* tree, const char* name) {
  return FindFirst(tree, [name](const Widg* widg) {
    return widg->child && OsiStrcmp(widg->gil_name, name) == 0;
  });
}

Widg* FindParentOfWidgInTree(Widg* tree, const Widg* widg) {
  return FindFirst(tree, [widg](const Widg* parent) { return IsChild(parent, widg); });
}

// What going through a tree once tells of all names and all children. Good until a link or a name
// changes.
struct Snapshot {
  Widg* tree = nullptr;
  unsigned link_changes = 0;
  unsigned name_changes = 0;
  std::unordered_map<std::string_view, Widg*> named;
  std::unordered_map<std::string_view, Widg*> named_with_child;
  std::unordered_map<const Widg*, Widg*> parents;
};

static Snapshot snapshot;

static void TakeSnapshot(Widg* tree) {
  snapshot = Snapshot();
  snapshot.tree = tree;
  snapshot.link_changes = LinkChanges();
  snapshot.name_changes = NameChanges();
  FindFirst(tree, [](Widg* widg) {
    snapshot.named.emplace(TextView(widg->gil_name), widg);
    if (widg->child) snapshot.named_with_child.emplace(TextView(widg->gil_name), widg);
    // Where a child has a parent already, that parent's list holds all behind it, too.
    for (Widg* child = widg->child; child; child = child->next) {
      if (!snapshot.parents.emplace(child, widg).second) break;
    }
    return false;
  });
}

static const Snapshot& SnapshotOf(Widg* tree) {
  if (snapshot.tree != tree || snapshot.link_changes != LinkChanges() ||
      snapshot.name_changes != NameChanges()) {
    TakeSnapshot(tree);
  }
  return snapshot;
}

template <typename Map, typename Key>
static Widg* LookUp(const Map& map, const Key& key) {
  const auto found = map.find(key);
  return found == map.end() ? nullptr : found->second;
}

enum Standing {
  kOutside,  // not in the tree under top_widget
  kInside,
  kUncertain,  // below a widget that is in two lists: only the tree can tell
};

// Where the widget stands; for kInside also the top-level widget that it is below, or is.
static Standing StandingOf(Widg* widg, Widg** root) {
  for (;; widg = widg->place.parent) {
    if (widg->place.parent == kTopLevel) {
      *root = widg;
      return kInside;
    }
    if (widg->place.shared) return kUncertain;
    if (!widg->place.parent) return kOutside;
  }
}

static int DepthOf(const Widg* widg) {
  int depth = 0;
  for (; widg->place.parent != kTopLevel; widg = widg->place.parent) ++depth;
  return depth;
}

// Whether a search meets `a` before `b`, two widgets inside: see note [search order].
static bool IsBefore(const Widg* a, const Widg* b) {
  const int depth_a = DepthOf(a);
  const int depth_b = DepthOf(b);
  const Widg* at_a = a;
  const Widg* at_b = b;
  for (int depth = depth_a; depth > depth_b; --depth) at_a = at_a->place.parent;
  for (int depth = depth_b; depth > depth_a; --depth) at_b = at_b->place.parent;
  if (at_a == at_b) return depth_a < depth_b;
  while (at_a->place.parent != at_b->place.parent) {
    at_a = at_a->place.parent;
    at_b = at_b->place.parent;
  }
  // In the list where the ways part, those that stand in it come before all that is below any of
  // them, and of what is below the last one's comes first.
  const bool in_list_a = at_a == a;
  const bool in_list_b = at_b == b;
  if (in_list_a != in_list_b) return in_list_a;
  return in_list_a ? at_a->place.order < at_b->place.order : at_a->place.order > at_b->place.order;
}

// What was found for names that many widgets have. Good until a link or a name changes.
struct Findings {
  unsigned link_changes = 0;
  unsigned name_changes = 0;
  TextMap<Widg*> named;
  TextMap<Widg*> named_with_child;
};

static Findings findings;

static TextMap<Widg*>& FindingsNow(bool with_child) {
  if (findings.link_changes != LinkChanges() || findings.name_changes != NameChanges()) {
    findings = Findings();
    findings.link_changes = LinkChanges();
    findings.name_changes = NameChanges();
  }
  return with_child ? findings.named_with_child : findings.named;
}

// So many widgets of one name are looked at before it is remembered what was found.
static constexpr int kFewNamesakes = 16;

// A widget with this number or a lower one, where it is in the tree at all, stands to the left of
// that root; see note [units] in widget/name_index.h.
static uint32_t StartOfItsLike(const Widg* root) {
  if (!UnitsAreMixed()) return UnitStartOf(root);
  return FilesAreMixed() ? 0 : FileStartOf(root);
}

// Looks the name up in the index and stores what a search from top_widget would find. False when
// the index cannot tell.
static bool FindInIndex(const char* name, bool with_child, Widg** found) {
  if (LinksAreTangled()) return false;
  *found = FirstTopLevelOfName(name, with_child);
  if (*found) return true;
  const Widg* best_root = nullptr;
  int looked_at = 0;
  Widg* const newest = NewestOfName(name);
  for (Widg* widg = newest; widg; widg = OlderOfName(widg)) {
    if (++looked_at == kFewNamesakes + 1) {
      const TextMap<Widg*>& known = FindingsNow(with_child);
      const auto finding = known.find(name);
      if (finding != known.end()) {
        *found = finding->second;
        return true;
      }
    }
    // Nothing made before the unit, or the file, of what was found can be before that.
    if (best_root && widg->place.made <= StartOfItsLike(best_root)) break;
    if ((with_child && !widg->child) || widg->place.parent == kTopLevel) continue;
    Widg* root = nullptr;
    const Standing standing = StandingOf(widg, &root);
    if (standing == kUncertain) return false;
    if (standing == kOutside || (*found && IsBefore(*found, widg))) continue;
    *found = widg;
    best_root = root;
  }
  // Under a text that outlives the question.
  if (looked_at > kFewNamesakes) FindingsNow(with_child).emplace(newest->gil_name, *found);
  return true;
}

static bool check_searches = false;
static unsigned searches = 0;

void CheckSearches(bool check) { check_searches = check; }

// Whether this search is to be checked: the first thousands of a conversion all, later ones now and
// then, since going through a large tree each time would take minutes.
static bool IsChecked() {
  constexpr unsigned kAll = 4000;
  constexpr unsigned kNowAndThen = 64;
  if (!check_searches) return false;
  ++searches;
  return searches <= kAll || searches % kNowAndThen == 0;
}

// The result of a search; `InTree` finds it by going through the tree.
template <typename Search>
static Widg* Checked(Widg* found, Search InTree) {
  if (IsChecked() && InTree() != found) {
    std::fputs("A search and the tree disagree\n", stderr);
    std::abort();
  }
  return found;
}

Widg* FindWidg(Widg* tree, const char* name) {
  Widg* found = nullptr;
  if (tree != top_widget) return FindWidgInTree(tree, name);
  if (!FindInIndex(name, false, &found)) found = LookUp(SnapshotOf(tree).named, TextView(name));
  return Checked(found, [=] { return FindWidgInTree(tree, name); });
}

Widg* FindWidgWithChild(Widg* tree, const char* name) {
  Widg* found = nullptr;
  if (tree != top_widget) return FindWidgWithChildInTree(tree, name);
  if (!FindInIndex(name, true, &found)) {
    found = LookUp(SnapshotOf(tree).named_with_child, TextView(name));
  }
  return Checked(found, [=] { return FindWidgWithChildInTree(tree, name); });
}

// Stores the parent of a widget as FindParentOfWidg gives it. False when the places cannot tell.
static bool FindParentInPlaces(const Widg* tree, Widg* widg, Widg** parent) {
  if (!tree || !widg || LinksAreTangled() || tree->place.parent != kTopLevel) return false;
  Widg* root = nullptr;
  const Standing standing = StandingOf(widg, &root);
  if (standing == kUncertain) return false;
  const bool has_parent = standing == kInside && widg->place.parent != kTopLevel &&
                          root->place.order >= tree->place.order;
  // A widget without one may be in the list of somebody who claimed a top-level widget: the rest of
  // the top level is in that list, too, and what was dropped from its head just now.
  if (!has_parent && TopLevelIsClaimed()) return false;
  *parent = has_parent ? widg->place.parent : nullptr;
  return true;
}

Widg* FindParentOfWidg(Widg* tree, Widg* widg) {
  Widg* parent = nullptr;
  if (!FindParentInPlaces(tree, widg, &parent)) parent = LookUp(SnapshotOf(tree).parents, widg);
  return Checked(parent, [=] { return FindParentOfWidgInTree(tree, widg); });
}

void ResetSearch() {
  snapshot = Snapshot();
  findings = Findings();
  searches = 0;
}

int IsChild(const Widg* parent, const Widg* widg) {
  if (!parent || !widg) return 0;
  for (const Widg* child = parent->child; child; child = child->next) {
    if (child == widg) return 1;
  }
  return 0;
}

Widg* PrevSibling(Widg* parent, const Widg* widg) {
  Widg* previous = parent;
  for (Widg* child = parent->child; child; child = child->next) {
    if (child == widg) return previous;
    previous = child;
  }
  return nullptr;
}
