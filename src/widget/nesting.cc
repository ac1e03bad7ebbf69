// SPDX-License-Identifier: MIT
#include "widget/nesting.h"

#include <cstdio>

#include "osi/strings.h"
#include "widget/links.h"
#include "widget/resources.h"
#include "widget/search.h"
#include "widget/tree.h"

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

Widg* PrevSibling(Widg* parent, const Widg* widg) {
  Widg* previous = parent;
  for (Widg* child = parent->child; child; child = child->next) {
    if (child == widg) return previous;
    previous = child;
  }
  return nullptr;
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

void InsertWidgBelow(Widg* widg, const char* class_name, char* name) {
  Widg* inserted = MakeWidg(class_name, name);
  Widg* children = widg->child;
  SetChildren(widg, inserted);
  SetChildren(inserted, children);
  CopySizeResources(widg, inserted);
  if (OsiStrcmp(class_name, "XmBulletinBoard") == 0) SetTightBoard(inserted);
}
