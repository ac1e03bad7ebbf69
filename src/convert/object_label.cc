// SPDX-License-Identifier: MIT
#include "convert/object_label.h"

#include "convert/companions.h"
#include "gil/object.h"
#include "gil/tokens.h"
#include "gil/value.h"
#include "osi/wrap.h"
#include "text/uil_text.h"
#include "widget/links.h"
#include "widget/resources.h"
#include "widget/tree.h"

// Room that a row-column needs between a label and the control below it.
static constexpr int32_t kVerticalSpacing = 3;

// The width of a vertical scale: its slider width is its height.
static constexpr int32_t kVerticalScaleWidth = 20;

static Widg* MakeCompanion(const char* class_name, const Widg* widg, const char* suffix) {
  return MakeWidg(class_name, MergeStrings(widg->name, suffix));
}

static Widg* WrapInRowColumn(Obj* obj, Widg* label, Widg* widg) {
  Widg* rc = MakeCompanion("XmRowColumn", widg, "_rc");
  Value* layout = nullptr;
  GetAttrValue(obj, LAYOUT_TYPE, &layout, 0);
  const bool vertical = ValueToken(layout, HORIZONTAL) == VERTICAL;
  rc->extra_height = widg->extra_height + (vertical ? kVerticalSpacing : 0);
  AddResource(rc, "XmNorientation", vertical ? "XmVERTICAL" : "XmHORIZONTAL");
  rc->height = widg->height;
  widg->wrapped = 1;
  TakePlace(rc, widg);
  label->next = widg;
  SetChildren(rc, label);
  MovePositionResources(widg, rc);
  return rc;
}

static void SetFromAttr(Obj* obj, int32_t name, Widg* widg, const char* resource) {
  char* text = nullptr;
  if (GetAttrValueString(obj, name, &text, 0)) AddResource(widg, resource, text);
}

// The position of the object is the label's; the value's position is the control's.
static void PlaceBeside(Obj* obj, Widg* label, Widg* widg) {
  SetFromAttr(obj, X, label, "XmNx");
  SetFromAttr(obj, Y, label, "XmNy");
  SetFromAttr(obj, VALUE_Y, widg, "XmNy");
  SetFromAttr(obj, VALUE_X, widg, "XmNx");
}

// The width that is left for the control behind its label.
static void SetControlWidth(Obj* obj, Widg* widg) {
  Value* value = nullptr;
  if (!GetAttrValue(obj, WIDTH, &value, 0)) return;
  int32_t width = ValueToken(value, 0);
  char* value_x = nullptr;
  if (obj->type != SCROLLING_LIST && GetAttrValueString(obj, VALUE_X, &value_x, 0)) {
    width = WrapSub(width, StringToInt(value_x));
  }
  Value* slider_width = nullptr;
  Value* orientation = nullptr;
  if ((obj->type == GAUGE || obj->type == SLIDER) &&
      GetAttrValue(obj, SLIDER_WIDTH, &slider_width, 1) &&
      GetAttrValue(obj, ORIENTATION, &orientation, 0)) {
    if (ValueToken(orientation, 0) == HORIZONTAL) {
      width = ValueToken(slider_width, 0);
    } else {
      AddResource(widg, "XmNheight", IntToString(ValueToken(slider_width, 0)));
      width = kVerticalScaleWidth;
    }
  }
  AddResource(widg, "XmNwidth", IntToString(width));
}

static void CopyIfSet(const Widg* from, const char* name, Widg* to) {
  if (HasResource(from, name)) AddResource(to, name, GetResourceValue(from, name));
}

Widg* SpecProcObjLabel(Obj* obj, Widg* widg, int useRowColumn) {
  // Made even when the object turns out to have no label, and its name stays taken: the numbers of
  // later names depend on it.
  Widg* label = MakeCompanion("XmLabel", widg, "_label");
  Value* text = nullptr;
  if (!GetAttrValue(obj, LABEL, &text, 1) || !HasGilText(text)) return widg;

  AddResource(label, "XmNlabelString", ValueText(text));
  Widg* result = widg;
  if (useRowColumn) {
    result = WrapInRowColumn(obj, label, widg);
  } else {
    label->next = widg->next;
    widg->next = label;
    PlaceBeside(obj, label, widg);
  }
  SetControlWidth(obj, widg);
  // A gauge is insensitive only so that nobody moves it.
  if (obj->type != GAUGE) CopyIfSet(widg, "XmNsensitive", label);
  CopyIfSet(widg, "XmNmappedWhenManaged", label);
  return result;
}
