// SPDX-License-Identifier: MIT
#include "passes/popup_parents.h"

#include "widget/climb.h"
#include "widget/nesting.h"
#include "widget/search.h"
#include "widget/walk.h"

Widg* PopupMenuChild(const Widg* widg) {
  for (Widg* child = widg->child; child; child = child->next) {
    if (IsClass(child, "XmPopupMenu")) return child;
  }
  return nullptr;
}

int ValidPopupMenuParent(const Widg* widg) {
  return IsClass(widg, "XmBulletinBoard") || IsClass(widg, "XmRowColumn") ||
         IsClass(widg, "XmForm");
}

Widg* PopupMenuParent(Widg* tree, Widg* widg) {
  Climb climb;
  for (Widg* at = widg; at && climb.IsNew(at); at = FindParentOfWidg(tree, at)) {
    if (ValidPopupMenuParent(at)) return at;
  }
  return widg;
}

static void MakePopupMenuValid(Widg* tree, Widg* widg) {
  Widg* menu = PopupMenuChild(widg);
  if (!menu || ValidPopupMenuParent(widg)) return;
  Widg* parent = PopupMenuParent(tree, widg);
  if (parent != widg) MoveWidgetInHierarchy(menu, widg, parent);
}

void MakePopupMenusValidForZO25(Widg* tree) {
  WalkWidgets(
      tree, {WalkStep::kNext, WalkStep::kChild, WalkStep::kSelf}, [](Widg*) { return true; },
      [tree](Widg* widg) { MakePopupMenuValid(tree, widg); });
}
