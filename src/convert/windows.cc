// SPDX-License-Identifier: MIT
#include "convert/windows.h"

#include "convert/companions.h"
#include "flags/flags.h"
#include "gil/object.h"
#include "gil/tokens.h"
#include "gil/value.h"
#include "text/uil_text.h"
#include "widget/callbacks.h"
#include "widget/nesting.h"
#include "widget/resources.h"
#include "widget/tree.h"

static bool HasOneChild(const Widg* widg) { return widg->child && !widg->child->next; }

Widg* SpecProcBaseWindow(Obj* /*obj*/, Widg* shell) {
  char board_name[] = "bboard";
  if (!HasOneChild(shell)) InsertWidgBelow(shell, "XmBulletinBoard", board_name);
  MoveCallback(shell, shell->child, "XmNhelpCallback");
  return shell;
}

Widg* SpecProcPopupWindow(Obj* obj, Widg* shell) {
  if (!HasOneChild(shell)) {
    InsertWidgBelow(shell, "XmBulletinBoard", MergeStrings(shell->gil_name, "_bboard"));
  }
  if (ValueToken(TakeValue(obj, INITIAL_STATE), 0) == INVISIBLE) {
    RemoveResource(shell, "XmNmappedWhenManaged");
    // Managing what is in a dialog shows it.
    if (!map_all) shell->child->managed = 0;
  }
  MoveCallback(shell, shell->child, "XmNhelpCallback");
  return shell;
}

// The canvas has scroll bars when the object has both attributes and at least one of them is true.
static bool TakeScrollbars(Obj* obj) {
  const Value* horizontal = TakeValue(obj, HORIZONTAL_SCROLLBAR);
  const Value* vertical = horizontal ? TakeValue(obj, VERTICAL_SCROLLBAR) : nullptr;
  return vertical && (ValueToken(horizontal, NIL) == T || ValueToken(vertical, NIL) == T);
}

Widg* SpecProcCanvasPane(Obj* obj, Widg* canvas) {
  AddResource(canvas, "XmNborderWidth", "1");
  if (!TakeScrollbars(obj)) return canvas;
  Widg* sw = MakeNamedAfter("XmScrolledWindow", canvas, "_sw");
  canvas->wrapped = 1;
  CopyGilGeometry(canvas, sw);
  CopySizeResources(canvas, sw);
  WrapIn(sw, canvas, nullptr);
  AddResource(sw, "XmNscrollingPolicy", "XmAUTOMATIC");
  AddResource(sw, "XmNscrollBarDisplayPolicy", "XmSTATIC");
  return sw;
}
