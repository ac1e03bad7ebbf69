// SPDX-License-Identifier: MIT
//
// note [places]
// A widget's place names one list that it is in. For most widgets that is the whole truth. Two
// kinds of sharing are told apart:
//   - a top-level widget that somebody claimed (a menu, while its file is converted) counts as
//     top-level, which is where a search meets it first; when it is dropped from there, its place
//     is with the one who claimed it;
//   - a widget below the top level that comes into a second list is marked `shared`, and what a
//     search finds through it must be looked for in the tree.
// All other sharing (a shared widget that is unlinked, or followed by others) tangles the links:
// from then on every search goes through the tree.
#include "widget/links.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>

#include "osi/strings.h"
#include "widget/name_index.h"
#include "widget/resources.h"
#include "widget/search.h"
#include "widget/tree.h"

namespace {

Widg top_level;

struct LinkState {
  unsigned changes = 0;
  uint32_t last_order = 0;
  unsigned claims = 0;  // top-level widgets that somebody below claims
  bool tangled = false;
  bool units_mixed = false;
  bool files_mixed = false;
};

LinkState state;

// The widget at the top of the chain of parents.
Widg* RootOf(Widg* widg) {
  while (widg->place.parent && widg->place.parent != kTopLevel) widg = widg->place.parent;
  return widg;
}

// Tells all above a widget how old what is below it may be.
void NoteOldest(Widg* widg) {
  const uint32_t oldest = widg->place.oldest;
  while (widg->place.parent && widg->place.parent != kTopLevel) {
    widg = widg->place.parent;
    widg->place.oldest = std::min(widg->place.oldest, oldest);
  }
  if (!widg->place.parent) return;
  if (oldest <= UnitStartOf(widg)) state.units_mixed = true;
  if (oldest <= FileStartOf(widg)) state.files_mixed = true;
}

// Writes down that the widget is now in the parent's list, behind all that are.
void Enter(Widg* parent, Widg* widg) {
  widg->place.parent = parent;
  widg->place.order = ++state.last_order;
  parent->place.last_child = widg;
  if (parent == kTopLevel) {
    NameIndexTopLevel(widg);
    NoteOldest(widg);
  } else {
    parent->place.oldest = std::min(parent->place.oldest, widg->place.oldest);
  }
}

// The widget may be from an earlier unit or file, and is met with a later one from now on.
void MarkShared(Widg* widg) {
  widg->place.shared = true;
  state.units_mixed = state.files_mixed = true;
}

// Writes down that a widget that is in a list has come into the parent's list, too.
void Share(Widg* parent, Widg* widg) {
  if (widg->place.parent == kTopLevel) {
    if (!widg->place.claimed_by) {
      ++state.claims;
    } else {
      MarkShared(widg);
    }
    widg->place.claimed_by = parent;
    return;
  }
  if (widg->next) state.tangled = true;
  MarkShared(widg);
}

// Writes down that the chain from `first` on is now in the parent's list, up to the first widget
// that was in a list before: those behind it were too.
void EnterChain(Widg* parent, Widg* first) {
  const Widg* root = RootOf(parent);
  for (Widg* widg = first; widg; widg = widg->next) {
    if (widg == root) {
      // The parent is below the widget, which so comes to lie below itself.
      state.tangled = true;
      return;
    }
    if (widg->place.parent) {
      Share(parent, widg);
      break;
    }
    Enter(parent, widg);
  }
  NoteOldest(parent);
}

void Leave(Widg* widg) {
  if (widg->place.shared || widg->place.claimed_by) state.tangled = true;
  widg->place.parent = nullptr;
}

// Lets go of the children that another list is about to replace.
void LetGo(Widg* parent) {
  for (Widg* child = parent->child; child; child = child->next) {
    if (child->place.parent != parent) {
      state.tangled = true;
      return;
    }
    Leave(child);
  }
}

}  // namespace

Widg* const kTopLevel = &top_level;

Widg* LastSibling(Widg* widg) {
  while (widg && widg->next) {
    // From the widget on which the list's own parent believes it ends there is not far to go.
    const Widg* parent = state.tangled ? nullptr : widg->place.parent;
    Widg* last = parent ? parent->place.last_child : nullptr;
    widg = last && last != widg && last->place.parent == parent ? last : widg->next;
  }
  return widg;
}

void SetChildren(Widg* parent, Widg* first) {
  ++state.changes;
  LetGo(parent);
  parent->child = first;
  EnterChain(parent, first);
}

void ClaimChild(Widg* parent, Widg* child) { SetChildren(parent, child); }

void AddChildWidg(Widg* parent, Widg* child) {
  if (!child) return;
  ++state.changes;
  if (!parent->child) {
    parent->child = child;
    EnterChain(parent, child);
  } else {
    Widg* last = LastSibling(parent->child);
    if (last == LastSibling(child)) return;
    last->next = child;
    if (last->place.shared) state.tangled = true;
    EnterChain(last->place.parent ? last->place.parent : parent, child);
  }
}

void AddChildLast(Widg* parent, Widg* child) {
  if (!IsChild(parent, child)) AddChildWidg(parent, child);
}

void LinkTopLevel(Widg** link, Widg* widg) {
  ++state.changes;
  if (*link) state.tangled = true;
  *link = widg;
  if (link != &top_widget) {
    // The widget may have left the top level meanwhile, and the list goes with it.
    static_assert(offsetof(Widg, next) == 0);
    if (reinterpret_cast<Widg*>(link)->place.parent != kTopLevel) state.tangled = true;
  }
  EnterChain(kTopLevel, widg);
}

void DropTopLevel(Widg* widg) {
  ++state.changes;
  widg->next = nullptr;
  Widg* claimed_by = widg->place.claimed_by;
  widg->place.claimed_by = nullptr;
  widg->place.parent = nullptr;
  if (!claimed_by) return;
  --state.claims;
  EnterChain(claimed_by, widg);
}

void RelinkTopLevel(Widg** link, Widg* first) {
  ++state.changes;
  if (link != &top_widget) {
    auto* previous = reinterpret_cast<Widg*>(link);
    for (const Widg* widg = first; widg; widg = widg->next) {
      if (widg != previous) continue;
      state.tangled = true;
      first = RemoveSibling(first, previous);
      break;
    }
  }
  *link = first;
}

void TopLevelIsCleaned() {
  if (state.claims > 0) state.tangled = true;
}

Widg* RemoveSibling(Widg* head, Widg* widg) {
  for (Widg** link = &head; *link; link = &(*link)->next) {
    if (*link != widg) continue;
    ++state.changes;
    *link = widg->next;
    widg->next = nullptr;
    Leave(widg);
    break;
  }
  return head;
}

void RemoveChild(Widg* parent, Widg* widg) { parent->child = RemoveSibling(parent->child, widg); }

Widg* RemoveWidg(Widg* tree, Widg* widg) {
  Widg* parent = FindParentOfWidg(tree, widg);
  if (!parent) return RemoveSibling(tree, widg);
  RemoveChild(parent, widg);
  return tree;
}

void MoveWidgetInHierarchy(Widg* widg, Widg* old_parent, Widg* new_parent) {
  RemoveChild(old_parent, widg);
  AddChildLast(new_parent, widg);
}

void MakeSubHier(Widg* parent, Widg* child, Widg* new_parent) {
  if (!PrevSibling(parent, child)) {
    std::fputs("ERROR: MakeSubHier: parent and child are not\n", stderr);
    return;
  }
  RemoveChild(parent, child);
  SetChildren(new_parent, child);
  MovePositionResources(child, new_parent);
}

void InsertWidgBelow(Widg* widg, FixedText class_name, char* name) {
  Widg* inserted = MakeWidg(class_name, name);
  Widg* children = widg->child;
  SetChildren(widg, inserted);
  SetChildren(inserted, children);
  CopySizeResources(widg, inserted);
  if (class_name == "XmBulletinBoard") SetTightBoard(inserted);
}

unsigned LinkChanges() { return state.changes; }

bool LinksAreTangled() { return state.tangled; }

bool TopLevelIsClaimed() { return state.claims > 0; }

bool UnitsAreMixed() { return state.units_mixed; }

bool FilesAreMixed() { return state.files_mixed; }

void ResetLinks() {
  state = LinkState();
  top_level = Widg();
}
