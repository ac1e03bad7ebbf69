// SPDX-License-Identifier: MIT
#include "convert/windows.h"

#include "convert/companions.h"
#include "flags/flags.h"
#include "gil/object.h"
#include "gil/tokens.h"
#include "gil/value.h"
#include "text/uil_text.h"
#include "widget/callbacks.h"
#include "widget/links.h"
#include "widget/nesting.h"
#include "widget/resources.h"
#include "widget/tree.h"

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
  Value* state = nullptr;
  if (GetAttrValue(obj, INITIAL_STATE, &state, 1) && ValueToken(state, 0) == INVISIBLE) {
    RemoveResource(shell, "XmNmappedWhenManaged");
    // A dialog is shown by managing what is in it.
    if (!map_all) shell->child->managed = 0;
  }
  MoveCallback(shell, shell->child, "XmNhelpCallback");
  return shell;
}

// Scroll bars are there when the object says something of both and yes to one of them; the vertical
// attribute is not even looked at without the horizontal one.
static bool TakeScrollbars(Obj* obj) {
  Value* horizontal = nullptr;
  Value* vertical = nullptr;
  if (!GetAttrValue(obj, HORIZONTAL_SCROLLBAR, &horizontal, 1)) return false;
  if (!GetAttrValue(obj, VERTICAL_SCROLLBAR, &vertical, 1)) return false;
  return ValueToken(horizontal, NIL) == T || ValueToken(vertical, NIL) == T;
}

Widg* SpecProcCanvasPane(Obj* obj, Widg* canvas) {
  AddResource(canvas, "XmNborderWidth", "1");
  if (!TakeScrollbars(obj)) return canvas;
  Widg* sw = MakeNamedAfter("XmScrolledWindow", canvas, "_sw");
  canvas->wrapped = 1;
  CopyGilGeometry(canvas, sw);
  TakePlace(sw, canvas);
  SetChildren(sw, canvas);
  CopySizeResources(canvas, sw);
  MovePositionResources(canvas, sw);
  AddResource(sw, "XmNscrollingPolicy", "XmAUTOMATIC");
  AddResource(sw, "XmNscrollBarDisplayPolicy", "XmSTATIC");
  return sw;
}
