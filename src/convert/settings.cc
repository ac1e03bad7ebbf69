// SPDX-License-Identifier: MIT
#include "convert/settings.h"

#include <cstdio>

#include "convert/companions.h"
#include "convert/label_type.h"
#include "convert/object_label.h"
#include "convert/std_attributes.h"
#include "flags/flags.h"
#include "gil/object.h"
#include "gil/tokens.h"
#include "gil/value.h"
#include "osi/fatal.h"
#include "widget/gil_name.h"
#include "widget/links.h"
#include "widget/resources.h"
#include "widget/tree.h"

// Takes the lists of the choices; the attribute `selection` tells which are chosen initially. False
// when there is no list of choices.
static bool TakeChoices(Obj* obj, int32_t selection, Item* choices) {
  if (!GetAttrValue(obj, CHOICES, &choices->label, 1)) return false;
  choices->label_type = TakeValue(obj, CHOICE_LABEL_TYPES);
  choices->color = TakeValue(obj, CHOICE_COLORS);
  choices->selected = TakeValue(obj, selection);
  return true;
}

// Takes a count of columns or rows. False unless its text starts with "1" or above, which leaves
// out 0 and negative numbers.
static bool TakeCount(Obj* obj, int32_t name, char** text) {
  return GetAttrValueString(obj, name, text, 1) && **text >= '1';
}

static void SetBoxLayout(Obj* obj, Widg* box) {
  const int32_t layout = ValueToken(PeekValue(obj, LAYOUT_TYPE), VERTICAL);
  AddResource(box, "XmNorientation", layout == HORIZONTAL ? "XmHORIZONTAL" : "XmVERTICAL");
  // A row-column counts in its main direction: columns when vertical, rows when horizontal.
  char* count = nullptr;
  if (TakeCount(obj, COLUMNS, &count)) {
    AddResource(box, "XmNorientation", "XmVERTICAL");
  } else if (TakeCount(obj, ROWS, &count)) {
    AddResource(box, "XmNorientation", "XmHORIZONTAL");
  } else {
    AddResource(box, "XmNpacking", "XmPACK_TIGHT");
    return;
  }
  AddResource(box, "XmNnumColumns", count);
  AddResource(box, "XmNpacking", "XmPACK_COLUMN");
}

// The look of OPEN LOOK: boxes that are pressed in instead of indicators.
static void SetOpenLook(Widg* toggle, int32_t setting_type) {
  if (setting_type == CHECK) {
    AddResource(toggle, "XmNborderWidth", "0");
  } else {
    AddResource(toggle, "XmNindicatorOn", "false");
    AddResource(toggle, "XmNborderWidth", "1");
  }
}

static Widg* MakeToggle(const Widg* box, const Item& choice, int32_t setting_type) {
  Widg* toggle = MakeNamedAfter("XmToggleButton", box, "_toggle_b");
  if (!motif_l_and_f) SetOpenLook(toggle, setting_type);
  if (ValueToken(choice.selected, NIL) == T) AddResource(toggle, "XmNset", "true");
  HandleWidgLabelAndType(toggle, choice.label, choice.label_type);
  SetColor(toggle, "XmNforeground", choice.color);
  return toggle;
}

// Fills the box with a toggle button for each choice. A setting without choices ends the run.
static void CreateSettingToggleBox(Obj* obj, Widg* box, int32_t setting_type) {
  SetBoxLayout(obj, box);
  Item choices;
  if (!TakeChoices(obj, INITIAL_SELECTIONS, &choices)) Error("Setting doesn't have choices\n");
  if (!choices.label) {
    choices.label = stringValue(1, "\"\"", 2);
    choices.label_type = nullptr;
  }
  MakeItems(box, choices, [&](const Item& item) { return MakeToggle(box, item, setting_type); });
  if (setting_type == EXCLUSIVE) {
    AddResource(box, "XmNradioBehavior", "true");
    AddResource(box, "XmNspacing", "0");
  }
}

static Widg* MakeOptionButton(const Widg* setting, const Item& choice, Widg* pulldown) {
  Widg* button = MakeNamedAfter("XmPushButton", setting, "_push_b");
  HandleWidgLabelAndType(button, choice.label, choice.label_type);
  // The name is shared: an action that renames the button renames it here too.
  if (ValueToken(choice.selected, NIL) == T) AddResource(pulldown, "XmNmenuHistory", button->name);
  SetColor(button, "XmNforeground", choice.color);
  return button;
}

// Returns a new option menu that replaces the row-column, which is dropped with its size and
// colours.
static Widg* SpecProcStackSetting(Obj* obj, Widg* widg) {
  Widg* menu = MakeNamedAfter("XmOptionMenu", widg, "_option_menu");
  // Actions name the setting.
  SetGilName(menu, widg->gil_name);
  CopyGilGeometry(widg, menu);
  MovePositionResources(widg, menu);
  MoveVisibilityResources(widg, menu);
  Value* label = nullptr;
  if (GetAttrValue(obj, LABEL, &label, 1)) AddResource(menu, "XmNlabelString", ValueText(label));

  Item choices;
  if (!TakeChoices(obj, CHOICE_DEFAULTS, &choices) || !choices.label) return menu;
  Widg* pulldown = MakeNamedAfter("XmPulldownMenu", widg, "_option_pulldown");
  SetChildren(menu, pulldown);
  MakeItems(pulldown, choices,
            [&](const Item& item) { return MakeOptionButton(widg, item, pulldown); });
  return menu;
}

Widg* SpecProcSetting(Obj* obj, Widg* widg) {
  const int32_t type = ValueToken(TakeValue(obj, SETTING_TYPE), EXCLUSIVE);
  switch (type) {
    case CHECK:
    case EXCLUSIVE:
    case NONEXCLUSIVE:
      CreateSettingToggleBox(obj, widg, type);
      return SpecProcObjLabel(obj, widg, group_labels);
    case STACK:
      return SpecProcStackSetting(obj, widg);
    default:
      std::fprintf(stderr, "SpecProcSetting: cannot handle SETTING_TYPE: %d\n",
                   static_cast<int>(type));
      return widg;
  }
}
