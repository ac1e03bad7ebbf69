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
#include "widget/links.h"
#include "widget/resources.h"
#include "widget/tree.h"

// The choices and what goes with them, walked in step: lists that may be shorter, or missing.
struct ChoiceLists {
  Value* label = nullptr;
  Value* label_type = nullptr;
  Value* color = nullptr;
  Value* selected = nullptr;
};

// Consumes the lists of the choices; `selection` names the one that tells what is chosen initially.
// False when there is no list of choices.
static bool TakeChoices(Obj* obj, int32_t selection, ChoiceLists* lists) {
  if (!GetAttrValue(obj, CHOICES, &lists->label, 1)) return false;
  GetAttrValue(obj, CHOICE_LABEL_TYPES, &lists->label_type, 1);
  GetAttrValue(obj, CHOICE_COLORS, &lists->color, 1);
  GetAttrValue(obj, selection, &lists->selected, 1);
  return true;
}

static void StepChoices(ChoiceLists* lists) {
  Step(&lists->label);
  Step(&lists->label_type);
  Step(&lists->color);
  Step(&lists->selected);
}

static void SetChoiceColor(Widg* widg, const Value* color) {
  if (HasGilText(color)) AddResource(widg, "XmNforeground", MakeColorVal(ValueText(color)));
}

// Consumes a count of columns or rows. False unless its text starts with "1" or above, which leaves
// out 0 and negative numbers.
static bool TakeCount(Obj* obj, int32_t name, char** text) {
  return GetAttrValueString(obj, name, text, 1) && **text >= '1';
}

static void SetBoxLayout(Obj* obj, Widg* box) {
  Value* layout = nullptr;
  GetAttrValue(obj, LAYOUT_TYPE, &layout, 0);
  AddResource(box, "XmNorientation",
              ValueToken(layout, VERTICAL) == HORIZONTAL ? "XmHORIZONTAL" : "XmVERTICAL");
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

static Widg* MakeToggle(const Widg* box, const ChoiceLists& choice, int32_t setting_type) {
  Widg* toggle = MakeNamedAfter("XmToggleButton", box, "_toggle_b");
  if (!motif_l_and_f) SetOpenLook(toggle, setting_type);
  if (ValueToken(choice.selected, NIL) == T) AddResource(toggle, "XmNset", "true");
  HandleWidgLabelAndType(toggle, choice.label, choice.label_type);
  SetChoiceColor(toggle, choice.color);
  return toggle;
}

Widg* CreateSettingToggleBox(Obj* obj, Widg* box, int32_t settingType) {
  SetBoxLayout(obj, box);
  ChoiceLists choices;
  if (!TakeChoices(obj, INITIAL_SELECTIONS, &choices)) Error("Setting doesn't have choices\n");
  if (!choices.label) {
    choices.label = stringValue(1, "\"\"", 2);
    choices.label_type = nullptr;
  }
  Widg* toggles = nullptr;
  for (; choices.label; StepChoices(&choices)) {
    Widg* toggle = MakeToggle(box, choices, settingType);
    toggle->next = toggles;
    toggles = toggle;
  }
  SetChildren(box, toggles);
  if (settingType == EXCLUSIVE) {
    AddResource(box, "XmNradioBehavior", "true");
    AddResource(box, "XmNspacing", "0");
  }
  return box;
}

static Widg* MakeOptionButton(const Widg* setting, const ChoiceLists& choice, Widg* pulldown) {
  Widg* button = MakeNamedAfter("XmPushButton", setting, "_push_b");
  HandleWidgLabelAndType(button, choice.label, choice.label_type);
  // The name is shared: an action that renames the button renames it here too.
  if (ValueToken(choice.selected, NIL) == T) AddResource(pulldown, "XmNmenuHistory", button->name);
  SetChoiceColor(button, choice.color);
  return button;
}

Widg* SpecProcStackSetting(Obj* obj, Widg* widg) {
  Widg* menu = MakeNamedAfter("XmOptionMenu", widg, "_option_menu");
  // Actions name the setting.
  SetGilName(menu, widg->gil_name);
  CopyGilGeometry(widg, menu);
  MovePositionResources(widg, menu);
  MoveVisibilityResources(widg, menu);
  Value* label = nullptr;
  if (GetAttrValue(obj, LABEL, &label, 1)) AddResource(menu, "XmNlabelString", ValueText(label));

  ChoiceLists choices;
  if (!TakeChoices(obj, CHOICE_DEFAULTS, &choices) || !choices.label) return menu;
  Widg* pulldown = MakeNamedAfter("XmPulldownMenu", widg, "_option_pulldown");
  SetChildren(menu, pulldown);
  Widg* buttons = nullptr;
  for (; choices.label; StepChoices(&choices)) {
    Widg* button = MakeOptionButton(widg, choices, pulldown);
    button->next = buttons;
    buttons = button;
  }
  SetChildren(pulldown, buttons);
  return menu;
}

Widg* SpecProcSetting(Obj* obj, Widg* widg) {
  Value* type_value = nullptr;
  GetAttrValue(obj, SETTING_TYPE, &type_value, 1);
  const int32_t type = ValueToken(type_value, EXCLUSIVE);
  switch (type) {
    case CHECK:
    case EXCLUSIVE:
    case NONEXCLUSIVE:
      return SpecProcObjLabel(obj, CreateSettingToggleBox(obj, widg, type), group_labels);
    case STACK:
      return SpecProcStackSetting(obj, widg);
    default:
      std::fprintf(stderr, "SpecProcSetting: cannot handle SETTING_TYPE: %d\n",
                   static_cast<int>(type));
      return widg;
  }
}
