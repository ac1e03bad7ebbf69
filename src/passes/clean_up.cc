// SPDX-License-Identifier: MIT
#include "passes/clean_up.h"

#include "flags/flags.h"
#include "layout/tiling.h"
#include "passes/convenience.h"
#include "passes/popup_parents.h"
#include "widget/links.h"
#include "widget/tree.h"

static bool IsMenu(const Widg* widg) {
  return IsClass(widg, "XmPulldownMenu") || IsClass(widg, "XmPopupMenu");
}

// note [a menu behind the last window stays]
// Dropping a menu clears its own `next`, but the last widget kept still points at the first menu
// behind it. That menu therefore remains a top-level widget:
//   shell menu shell        -> shell shell
//   shell menu1 menu2       -> shell menu1
static Widg* DropMenus(Widg* first) {
  // Only the `next` of this widget is used, but it takes a name: later names depend on that.
  char no_name[] = "";
  Widg* head = MakeWidg("", no_name);
  Widg* last_kept = head;
  for (Widg* widg = first; widg;) {
    Widg* next = widg->next;
    if (IsClass(widg, "XmUnknownMenu")) widg->class_name = "XmPopupMenu";
    if (IsMenu(widg)) {
      DropTopLevel(widg);
    } else {
      last_kept->next = widg;
      last_kept = widg;
    }
    widg = next;
  }
  if (last_kept != head && last_kept->next) LinkTopLevel(&last_kept->next, last_kept->next);
  return head->next;
}

Widg* CleanUpTopLevelHierarchy(Widg** listLink) {
  Widg* top = DropMenus(*listLink);
  MenusAreDropped();
  if (usezo && zo25) {
    ReplaceConvenienceWidgets(top);
    MakePopupMenusValidForZO25(top);
  }
  if (reposition) FinalRepositionInterface(top);
  return top;
}
