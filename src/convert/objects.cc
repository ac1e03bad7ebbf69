// SPDX-License-Identifier: MIT
#include "convert/objects.h"

#include <vector>

#include "convert/attributes.h"
#include "convert/controls.h"
#include "convert/groups.h"
#include "convert/lists.h"
#include "convert/menus.h"
#include "convert/settings.h"
#include "convert/std_attributes.h"
#include "convert/windows.h"
#include "flags/flags.h"
#include "gil/object.h"
#include "gil/tokens.h"
#include "gil/value.h"
#include "layout/geometry.h"
#include "osi/fatal.h"
#include "widget/links.h"
#include "widget/resources.h"
#include "widget/tree.h"

struct ClassRow {
  int32_t type;
  const char* class_name;
};

// Types that are not listed, such as terminals and drop targets, have no widget.
static const ClassRow kClasses[] = {
    {BASE_WINDOW, "TopLevelShell"},
    {BUTTON, "XmPushButton"},
    {CANVAS_PANE, "XmDrawingArea"},
    {CONTROL_AREA, "XmBulletinBoard"},
    {MENU, "XmUnknownMenu"},  // until a user of the menu or the clean-up decides
    {MESSAGE, "XmLabel"},
    {POPUP_WINDOW, "XmDialogShell"},
    {SETTING, "XmRowColumn"},
    {SLIDER, "XmScale"},
    {GAUGE, "XmScale"},
    {TEXT_FIELD, "XmTextField"},
    {TEXT_PANE, "XmScrolledText"},
    {SCROLLING_LIST, "XmList"},
    {GROUP, "XmBulletinBoard"},
};

const char* GilObjToMotifClassName(Obj* obj) {
  if (obj->type == BUTTON && IsStringValue(PeekValue(obj, MENU))) return "XmCascadeButton";
  if (obj->type == GROUP && ignore_groups) return "";
  for (const ClassRow& row : kClasses) {
    if (row.type == obj->type) return row.class_name;
  }
  return "";
}

static Widg* SpecProcBoardOfGroup(Obj* obj, Widg* widg) {
  AddResource(widg, "XmNmarginWidth", "0");
  AddResource(widg, "XmNmarginHeight", "0");
  return SpecProcGroup(obj, widg);
}

static Widg* SpecProcControlArea(Obj* /*obj*/, Widg* widg) {
  SetTightBoard(widg);
  return widg;
}

struct ExpansionRow {
  int32_t type;
  Widg* (*Expand)(Obj* obj, Widg* widg);
};

// Objects of other types are complete as they are.
static const ExpansionRow kExpansions[] = {
    {BASE_WINDOW, SpecProcBaseWindow},
    {SLIDER, SpecProcSlider},
    {TEXT_FIELD, SpecProcTextField},
    {SETTING, SpecProcSetting},
    {CANVAS_PANE, SpecProcCanvasPane},
    {BUTTON, MakeMenuButton},
    {MENU, SpecProcMenu},
    {GAUGE, SpecProcGauge},
    {CONTROL_AREA, SpecProcControlArea},
    {SCROLLING_LIST, SpecProcScrollingList},
    {POPUP_WINDOW, SpecProcPopupWindow},
    {GROUP, SpecProcBoardOfGroup},
};

// Expands the widget of the object into what Motif needs for it; returns the widget that now stands
// for the object, null for a dropped group.
static Widg* SpecialProcessing(Obj* obj, Widg* widg) {
  Widg* result = widg;
  for (const ExpansionRow& row : kExpansions) {
    if (row.type == obj->type) result = row.Expand(obj, widg);
  }
  // A button's menu is pulled down, any other's pops up, even that of a dropped group: it claims
  // the menu all the same.
  if (obj->type != BUTTON) AttachPopupMenu(obj, result ? result : widg);
  return result;
}

// Makes the object's widget and converts its attributes.
static Widg* BeginObj(Obj* obj) {
  char* name = nullptr;
  if (!GetAttrValueString(obj, NAME, &name, 1)) Error("Obj does not have a name");
  Widg* widg = MakeWidg(GilObjToMotifClassName(obj), name);
  widg->actions = obj->actions;
  // Converters may take attributes off the object meanwhile; a record that was taken keeps its
  // `next`, so the walk goes on.
  for (const Attr* attr = obj->attrs; attr; attr = attr->next) {
    if (IsStdAttribute(attr)) {
      ProcessStdAttributes(obj, widg, attr);
    } else {
      ProcessNonStdAttribute(obj, widg, attr);
    }
  }
  return widg;
}

static Widg* EndObj(Obj* obj, Widg* widg) {
  if (reposition) FixUpGeometry(widg);
  return SpecialProcessing(obj, widg);
}

// Owners nest as deeply as the file likes. The objects that wait for their children are therefore
// in a vector, not on the processor's stack.
Widg* ProcessObj(Obj* obj) {
  struct Frame {
    Obj* obj;
    Widg* widg;
    Widg* last_child;  // attached so far
    Obj* next_child;
  };
  std::vector<Frame> open;
  open.push_back({obj, BeginObj(obj), nullptr, obj->children});
  for (;;) {
    Frame& frame = open.back();
    if (Obj* child = frame.next_child) {
      frame.next_child = child->next;
      open.push_back({child, BeginObj(child), nullptr, child->children});
      continue;
    }
    const Frame done = frame;
    open.pop_back();
    Widg* result = EndObj(done.obj, done.widg);
    if (open.empty()) return result;
    Frame& owner = open.back();
    owner.last_child = AddChildBehind(owner.widg, owner.last_child, result);
  }
}
