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
  SetColor(widg, "XmNbackground", TakeValue(obj, FOREGROUND_COLOR));
  RemoveResource(widg, "XmNforeground");
  return SpecProcObjLabel(obj, widg, 0);
}

Widg* SpecProcGauge(Obj* obj, Widg* scale) {
  // A gauge is a scale that nobody can move.
  AddResource(scale, "XmNsensitive", "false");
  return SpecProcObjLabel(obj, scale, 0);
}

// Turns a text field into a text of several lines.
static void MakeText(Widg* widg) {
  widg->class_name = "XmText";
  widg->extra_height = 10;
  widg->extra_width = 5;
  AddResource(widg, "XmNeditMode", "XmMULTI_LINE_EDIT");
  AddResource(widg, "XmNwordWrap", "true");
}

static void MakeSingleLine(Widg* widg, int32_t text_type) {
  static char procedure[] = "ZoVerifyNumericCB";
  if (text_type == NUMERIC && usezo && !zo25) {
    AddCallback(widg, "XmNmodifyVerifyCallback", procedure, "");
  }
  // Motif's font decides how high a single line is.
  RemoveResource(widg, "XmNheight");
}

Widg* SpecProcTextField(Obj* obj, Widg* widg) {
  widg->extra_width = 5;
  widg->extra_height = 22;
  if (const Value* text_type = TakeValue(obj, TEXT_TYPE)) {
    if (text_type->ival == MULTILINE) {
      MakeText(widg);
    } else {
      MakeSingleLine(widg, text_type->ival);
    }
  }
  char* columns = nullptr;
  if (GetAttrValueString(obj, VALUE_LENGTH, &columns, 0)) {
    AddResource(widg, "XmNcolumns", StringToInt(columns) > 0 ? columns : "1");
  }
  return SpecProcObjLabel(obj, widg, group_labels);
}
