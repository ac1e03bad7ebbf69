// SPDX-License-Identifier: MIT
#include "convert/object_label.h"

#include "convert/companions.h"
#include "gil/object.h"
#include "gil/tokens.h"
#include "gil/value.h"
#include "osi/wrap.h"
#include "text/uil_text.h"
#include "widget/tree.h"

// The room, in pixels, that a row-column needs between a label and the control below it.
static constexpr int32_t kVerticalSpacing = 3;

// The width, in pixels, of a vertical scale, whose slider width is its height.
static constexpr int32_t kVerticalScaleWidth = 20;

static Widg* MakeCompanion(const char* class_name, const Widg* widg, const char* suffix) {
  return MakeWidg(class_name, MergeStrings(widg->name, suffix));
}

static Widg* WrapInRowColumn(Obj* obj, Widg* label, Widg* widg) {
  Widg* rc = MakeCompanion("XmRowColumn", widg, "_rc");
  const bool vertical = ValueToken(PeekValue(obj, LAYOUT_TYPE), HORIZONTAL) == VERTICAL;
  rc->extra_height = widg->extra_height + (vertical ? kVerticalSpacing : 0);
  AddResource(rc, "XmNorientation", vertical ? "XmVERTICAL" : "XmHORIZONTAL");
  rc->height = widg->height;
  widg->wrapped = 1;
  WrapIn(rc, widg, label);
  return rc;
}

static void SetFromAttr(Obj* obj, int32_t name, Widg* widg, const char* resource) {
  char* text = nullptr;
  if (GetAttrValueString(obj, name, &text, 0)) AddResource(widg, resource, text);
}

// The object's position is the label's; the position of its value is the control's.
static void PlaceBeside(Obj* obj, Widg* label, Widg* widg) {
  SetFromAttr(obj, X, label, "XmNx");
  SetFromAttr(obj, Y, label, "XmNy");
  SetFromAttr(obj, VALUE_Y, widg, "XmNy");
  SetFromAttr(obj, VALUE_X, widg, "XmNx");
}

// Sets the width that the label leaves to the control.
static void SetControlWidth(Obj* obj, Widg* widg) {
  const Value* object_width = PeekValue(obj, WIDTH);
  if (!object_width) return;
  int32_t width = object_width->ival;
  char* value_x = nullptr;
  if (obj->type != SCROLLING_LIST && GetAttrValueString(obj, VALUE_X, &value_x, 0)) {
    width = WrapSub(width, StringToInt(value_x));
  }
  const bool is_scale = obj->type == GAUGE || obj->type == SLIDER;
  const Value* slider_width = is_scale ? TakeValue(obj, SLIDER_WIDTH) : nullptr;
  const Value* orientation = PeekValue(obj, ORIENTATION);
  if (slider_width && orientation && orientation->ival == HORIZONTAL) {
    width = slider_width->ival;
  } else if (slider_width && orientation) {
    AddResource(widg, "XmNheight", IntToString(slider_width->ival));
    width = kVerticalScaleWidth;
  }
  AddResource(widg, "XmNwidth", IntToString(width));
}

static void CopyIfSet(const Widg* from, const char* name, Widg* to) {
  if (HasResource(from, name)) AddResource(to, name, GetResourceValue(from, name));
}

Widg* SpecProcObjLabel(Obj* obj, Widg* widg, int useRowColumn) {
  // Make the label even when the object has none: the numbers of later names depend on it.
  Widg* label = MakeCompanion("XmLabel", widg, "_label");
  const Value* text = TakeValue(obj, LABEL);
  if (!HasGilText(text)) return widg;

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
