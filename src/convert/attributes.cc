// SPDX-License-Identifier: MIT
#include "convert/attributes.h"

#include <cstdio>

#include "convert/label_type.h"
#include "convert/std_attributes.h"
#include "flags/flags.h"
#include "gil/object.h"
#include "gil/tokens.h"
#include "gil/value.h"
#include "osi/fatal.h"
#include "osi/strings.h"
#include "text/uil_text.h"
#include "widget/tree.h"

static void HandleBaseWindowAttribute(Obj* /*obj*/, Widg* widg, const Attr* attr) {
  if (attr->name == LABEL) AddResource(widg, "XmNtitle", ValueText(attr->value));
}

// An empty title is written like any other.
static void HandlePopupWindowAttribute(Obj* obj, Widg* widg, const Attr* attr) {
  HandleBaseWindowAttribute(obj, widg, attr);
}

static void HandleMessageAttribute(Obj* obj, Widg* widg, const Attr* attr) {
  if (attr->name != LABEL) return;
  Value* label_type = nullptr;
  if (!GetAttrValue(obj, LABEL_TYPE, &label_type, 1)) {
    Error("Message has label but no label-type");
  }
  HandleWidgLabelAndType(widg, attr->value, label_type);
}

// The label type is ignored: a glyph button shows the file's name.
static void HandleButtonAttribute(Obj* /*obj*/, Widg* widg, const Attr* attr) {
  if (attr->name == LABEL) AddResource(widg, "XmNlabelString", ValueText(attr->value));
}

static void HandleCanvasPaneAttribute(Obj* obj, Widg* /*widg*/, const Attr* attr) {
  if (attr->name != DRAWING_MODEL || !verbose) return;
  const int32_t model = ValueToken(attr->value, 0);
  if (model == XVIEW || model == POSTSCRIPT) {
    std::printf("CanvasPane %s: Motif does not support XVIEW or POSTSCRIPT drawing models\n",
                OsiOrEmpty(obj->name));
  }
}

static void HandleMenuAttribute(Obj* /*obj*/, Widg* widg, const Attr* attr) {
  // Motif 1.1 has no tear-off menus.
  if (attr->name == PINNABLE && motif12 && ValueToken(attr->value, 0) == T) {
    AddResource(widg, "XmNtearOffModel", "XmTEAR_OFF_ENABLED");
  }
}

static void HandleTextFieldAttribute(Obj* /*obj*/, Widg* widg, const Attr* attr) {
  const Value* value = attr->value;
  switch (attr->name) {
    case INITIAL_VALUE:
      if (IsStringValue(value)) {
        if (OsiStrlen(value->sval) > 0) AddResource(widg, "XmNvalue", value->sval);
      } else if (value && value->kind == kIntegerValue) {
        AddResource(widg, "XmNvalue", IntToQuotedString(value->ival));
      } else {
        std::fprintf(stderr, "TextField: Unknown INITIAL_VALUE type: %d\n",
                     value ? static_cast<int>(value->kind) : 0);
      }
      break;
    case READ_ONLY:
      if (ValueToken(value, 0) == T) AddResource(widg, "XmNsensitive", "false");
      break;
    case VALUE_UNDERLINED:
      if (ValueToken(value, 0) == NIL) AddResource(widg, "XmNshadowThickness", "0");
      break;
    default:
      break;
  }
}

// ProcessObj treats the colour and the state as standard attributes; only another caller passes
// them here.
static void HandleScrollingListAttribute(Obj* /*obj*/, Widg* widg, const Attr* attr) {
  const int32_t number = ValueToken(attr->value, 0);
  switch (attr->name) {
    case MULTIPLE_SELECTIONS:
      AddResource(widg, "XmNselectionPolicy",
                  number == NIL ? "XmBROWSE_SELECT" : "XmMULTIPLE_SELECT");
      break;
    case ROWS:
      AddResource(widg, "XmNvisibleItemCount", IntToString(number));
      break;
    case FOREGROUND_COLOR:
      SetColor(widg, "XmNforeground", attr->value);
      break;
    case INITIAL_STATE:
      if (number == INVISIBLE && !map_all) AddResource(widg, "XmNmappedWhenManaged", "false");
      if (number == INACTIVE) AddResource(widg, "XmNsensitive", "false");
      break;
    default:
      break;
  }
}

static void HandleSliderAttribute(Obj* /*obj*/, Widg* widg, const Attr* attr) {
  const int32_t number = ValueToken(attr->value, 0);
  switch (attr->name) {
    case MAX_VALUE:
      AddResource(widg, "XmNmaximum", IntToString(number));
      break;
    case MIN_VALUE:
      AddResource(widg, "XmNminimum", IntToString(number));
      break;
    case ORIENTATION:
      if (number != HORIZONTAL && number != VERTICAL) Error("Bad Value: Slider ORIENTATION");
      AddResource(widg, "XmNorientation", number == HORIZONTAL ? "XmHORIZONTAL" : "XmVERTICAL");
      break;
    case SHOW_VALUE:
      if (number == T) AddResource(widg, "XmNshowValue", "true");
      break;
    default:
      break;
  }
}

struct HandlerRow {
  int32_t type;
  void (*Handle)(Obj* obj, Widg* widg, const Attr* attr);
};

// Control areas, text panes, settings and groups have none.
static const HandlerRow kHandlers[] = {
    {BASE_WINDOW, HandleBaseWindowAttribute},
    {MESSAGE, HandleMessageAttribute},
    {BUTTON, HandleButtonAttribute},
    {CANVAS_PANE, HandleCanvasPaneAttribute},
    {MENU, HandleMenuAttribute},
    {TEXT_FIELD, HandleTextFieldAttribute},
    {SCROLLING_LIST, HandleScrollingListAttribute},
    {POPUP_WINDOW, HandlePopupWindowAttribute},
    {SLIDER, HandleSliderAttribute},
    {GAUGE, HandleSliderAttribute},
};

void ProcessNonStdAttribute(Obj* obj, Widg* widg, const Attr* attr) {
  for (const HandlerRow& row : kHandlers) {
    if (row.type == obj->type) {
      row.Handle(obj, widg, attr);
      return;
    }
  }
}
