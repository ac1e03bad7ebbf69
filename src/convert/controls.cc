// SPDX-License-Identifier: MIT
#include "convert/controls.h"

#include "convert/object_label.h"
#include "convert/std_attributes.h"
#include "flags/flags.h"
#include "gil/object.h"
#include "gil/tokens.h"
#include "gil/value.h"
#include "text/uil_text.h"
#include "widget/callbacks.h"
#include "widget/tree.h"

Widg* SpecProcSlider(Obj* obj, Widg* widg) {
  // OPEN LOOK paints the slider in its foreground colour, Motif in the background's.
  Value* color = nullptr;
  if (GetAttrValue(obj, FOREGROUND_COLOR, &color, 1) && HasGilText(color)) {
    AddResource(widg, "XmNbackground", MakeColorVal(ValueText(color)));
  }
  RemoveResource(widg, "XmNforeground");
  return SpecProcObjLabel(obj, widg, 0);
}

Widg* SpecProcGauge(Obj* /*obj*/, Widg* scale) {
  AddResource(scale, "XmNsensitive", "false");
  return scale;
}

Widg* MakeText(Obj* /*obj*/, Widg* widg) {
  widg->class_name = "XmText";
  widg->extra_height = 10;
  widg->extra_width = 5;
  AddResource(widg, "XmNeditMode", "XmMULTI_LINE_EDIT");
  AddResource(widg, "XmNwordWrap", "true");
  return widg;
}

// A field of one line is as high as Motif's font makes it.
static Widg* ApplyTextType(Obj* obj, Widg* widg, int32_t text_type) {
  static char procedure[] = "ZoVerifyNumericCB";
  if (text_type == MULTILINE) return MakeText(obj, widg);
  if (text_type == NUMERIC && usezo && !zo25) {
    AddCallback(widg, "XmNmodifyVerifyCallback", procedure, "");
  }
  RemoveResource(widg, "XmNheight");
  return widg;
}

Widg* SpecProcTextField(Obj* obj, Widg* widg) {
  widg->extra_width = 5;
  widg->extra_height = 22;
  Value* text_type = nullptr;
  if (GetAttrValue(obj, TEXT_TYPE, &text_type, 1)) {
    widg = ApplyTextType(obj, widg, ValueToken(text_type, ALPHANUMERIC));
  }
  char* columns = nullptr;
  if (GetAttrValueString(obj, VALUE_LENGTH, &columns, 0)) {
    const bool positive = StringToInt(columns) > 0;
    AddResource(widg, "XmNcolumns", positive ? columns : "1");
  }
  return SpecProcObjLabel(obj, widg, group_labels);
}
