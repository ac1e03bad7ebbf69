// SPDX-License-Identifier: MIT
#include "convert/std_attributes.h"

#include <cstdio>

#include "flags/flags.h"
#include "gil/object.h"
#include "gil/tokens.h"
#include "gil/value.h"
#include "osi/fatal.h"
#include "text/uil_text.h"
#include "widget/callbacks.h"
#include "widget/tree.h"

int IsStdAttribute(const Attr* attr) {
  switch (attr->name) {
    case X:
    case Y:
    case WIDTH:
    case HEIGHT:
    case BACKGROUND_COLOR:
    case FOREGROUND_COLOR:
    case INITIAL_STATE:
    case SHOW_BORDER:
    case HELP:
      return 1;
    default:
      return 0;
  }
}

char* MakeColorVal(const char* text) {
  return JoinTexts("color(", text, ")", "Out of memory in MakeColorVal");
}

char* MakeWidgetAttachment(const Widg* widg) {
  return JoinTexts(widg->class_name, " ", widg->name, "Out of memory in MakeWidgetAttachment");
}

void SetColor(Widg* widg, const char* resource, const Value* color) {
  if (HasGilText(color)) AddResource(widg, resource, MakeColorVal(ValueText(color)));
}

// A message sizes itself for Motif's font. The layout still knows its size from the fields.
static void SetSize(const Obj* obj, Widg* widg, const char* resource, int32_t size) {
  if (obj->type == MESSAGE && reposition) return;
  AddResource(widg, resource, IntToString(size));
}

// Only the builder's version 3.0 shows help.
static void SetHelp(Widg* widg, const Value* help) {
  static char procedure[] = "ZoHelpCB";
  if (!HasGilText(help) || !usezo || zo25) return;
  AddCallback(widg, "XmNhelpCallback", procedure, ReplaceNewlines(ValueText(help)));
}

static void SetInitialState(Widg* widg, int32_t state) {
  switch (state) {
    case INACTIVE:
      AddResource(widg, "XmNsensitive", "false");
      break;
    case INVISIBLE:
      if (!map_all) AddResource(widg, "XmNmappedWhenManaged", "false");
      break;
    case ACTIVE:
    case VISIBLE:
    case OPEN:
      break;
    case ICONIC:
      AddResource(widg, "XmNiconic", "true");
      break;
    default:
      std::fprintf(stderr, "Unknown value for INITIAL_STATE %d\n", static_cast<int>(state));
      break;
  }
}

void ProcessStdAttributes(const Obj* obj, Widg* widg, const Attr* attr) {
  const Value* value = attr->value;
  const int32_t number = ValueToken(value, 0);
  switch (attr->name) {
    case BACKGROUND_COLOR:
      SetColor(widg, "XmNbackground", value);
      break;
    case FOREGROUND_COLOR:
      SetColor(widg, "XmNforeground", value);
      break;
    case HEIGHT:
      widg->height = number;
      SetSize(obj, widg, "XmNheight", number);
      break;
    case WIDTH:
      widg->width = number;
      SetSize(obj, widg, "XmNwidth", number);
      break;
    case X:
      widg->x = number;
      AddResource(widg, "XmNx", IntToString(number));
      break;
    case Y:
      widg->y = number;
      AddResource(widg, "XmNy", IntToString(number));
      break;
    case SHOW_BORDER:
      if (number == T) AddResource(widg, "XmNborderWidth", "2");
      break;
    case HELP:
      SetHelp(widg, value);
      break;
    case INITIAL_STATE:
      SetInitialState(widg, number);
      break;
    default:
      Error("Bad attribute passed to ProcessStdAttributes");
  }
}
