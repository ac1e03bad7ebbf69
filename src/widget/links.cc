// SPDX-License-Identifier: MIT
#include "widget/links.h"

#include "widget/known_names.h"
#include "widget/tree.h"

static bool IsInTree(const Widg* widg) { return widg->visit != 0; }

static Widg* RootOf(Widg* widg) {
  while (widg->parent) widg = widg->parent;
  return widg;
}

// Notes that a top-level widget has come into a parent's list as well, and so has all behind it.
static void Claim(Widg* parent, Widg* widg) {
  if (widg->parent) {
    widg->shared = true;
  } else {
    widg->parent = parent;
    CountClaims(1);
  }
}

// Notes that the rest of a list of children is now the rest of a second one, too.
static void Share(Widg* first) {
  for (Widg* widg = first; widg; widg = widg->next) {
    widg->shared = true;
    if (widg->top_level) EndKnownNames();
    if (IsInTree(widg)) NamesMoved(widg);
  }
}

// Notes that the chain from `first` on is now in the parent's list, up to the first widget that was
// in a list before: those behind it were, too.
static void Enter(Widg* parent, Widg* first) {
  ChildrenChanged();
  if (!NamesAreKnown()) return;
  for (Widg* widg = first; widg; widg = widg->next) {
    if (widg->top_level) return Claim(parent, widg);
    if (widg->parent) return Share(widg);
    // A widget that comes to lie below itself would make the chain of parents a circle.
    if (widg->child && RootOf(parent) == widg) return EndKnownNames();
    widg->parent = parent;
    if (IsInTree(parent)) NamesMoved(widg);
  }
}

// Notes that the widget is about to leave a list.
static void Leave(Widg* widg) {
  ChildrenChanged();
  if (widg->shared || widg->top_level) EndKnownNames();
  if (IsInTree(widg)) NamesMoved(widg);
  widg->parent = nullptr;
}

void SetChildren(Widg* parent, Widg* first) {
  for (Widg* child = parent->child; child; child = child->next) {
    if (child->parent != parent) EndKnownNames();
    Leave(child);
  }
  parent->child = first;
  Enter(parent, first);
}

Widg* AddChildBehind(Widg* parent, Widg* known, Widg* child) {
  if (!child) return known;
  if (!parent->child) {
    parent->child = child;
  } else {
    Widg* last = LastSibling(known ? known : parent->child);
    if (last == LastSibling(child)) return known;
    last->next = child;
    if (last->top_level || last->shared) EndKnownNames();
  }
  Enter(parent, child);
  return child;
}

void AddChildWidg(Widg* parent, Widg* child) { AddChildBehind(parent, nullptr, child); }

void AddChildLast(Widg* parent, Widg* child) {
  if (!IsChild(parent, child)) AddChildWidg(parent, child);
}

void LinkTopLevel(Widg** link, Widg* first) {
  if (*link) EndKnownNames();
  *link = first;
  for (Widg* widg = first; widg; widg = widg->next) {
    if (widg->top_level || widg->parent) return EndKnownNames();
    widg->top_level = true;
    NamesJoined(widg);
  }
}

void DropTopLevel(Widg* menu) {
  menu->next = nullptr;
  menu->top_level = false;
  if (menu->parent) CountClaims(-1);
  NamesDropped(menu);
}

void MenusAreDropped() {
  if (TopLevelIsClaimed()) EndKnownNames();
}

void RelinkTopLevel(Widg** link, Widg* first) {
  for (Widg* widg = first; widg; widg = widg->next) {
    if (&widg->next != link) continue;
    EndKnownNames();
    first = RemoveSibling(first, widg);
    break;
  }
  *link = first;
  NamesOfFileJoined(first);
}

Widg* RemoveSibling(Widg* head, Widg* widg) {
  for (Widg** link = &head; *link; link = &(*link)->next) {
    if (*link != widg) continue;
    Leave(widg);
    *link = widg->next;
    widg->next = nullptr;
    break;
  }
  return head;
}
