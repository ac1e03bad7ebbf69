// SPDX-License-Identifier: MIT
#include "layout/geometry.h"

#include <algorithm>

#include "osi/wrap.h"
#include "text/uil_text.h"
#include "widget/tree.h"

// How many pixels more than its OPEN LOOK counterpart a control takes.
struct AllowanceRow {
  const char* class_name;
  int32_t dx, dy;
};

static const AllowanceRow kAllowances[] = {
    {"XmTextField", 5, 22},
    {"XmText", 5, 10},
    {"XmToggleButton", 30, 0},
    {"XmMenuBar", 0, 5},
};

int32_t LeftSidePos(const Widg* widg) { return GetResourceInt(widg, "XmNx"); }
int32_t TopPos(const Widg* widg) { return GetResourceInt(widg, "XmNy"); }
int32_t Width(const Widg* widg) { return GetResourceInt(widg, "XmNwidth"); }
int32_t Height(const Widg* widg) { return GetResourceInt(widg, "XmNheight"); }
int32_t RightSidePos(const Widg* widg) { return WrapAdd(LeftSidePos(widg), Width(widg)); }
int32_t BottomPos(const Widg* widg) { return WrapAdd(TopPos(widg), Height(widg)); }

int32_t ApproxRightSidePos(const Widg* widg) {
  const int32_t height = Height(widg);
  return WrapAdd(LeftSidePos(widg), height != 0 ? height : WrapAdd(widg->width, widg->extra_width));
}

int32_t ApproxBottomPos(const Widg* widg) {
  const int32_t height = Height(widg);
  return WrapAdd(TopPos(widg), height != 0 ? height : WrapAdd(widg->height, widg->extra_height));
}

void MoveWidgsToFit(Widg* first, int32_t bottom, int32_t dx, int32_t dy) {
  for (Widg* widg = first; widg; widg = widg->next) {
    const int32_t y = TopPos(widg);
    AddResource(widg, "XmNx", IntToString(WrapAdd(LeftSidePos(widg), dx)));
    if (y > bottom) AddResource(widg, "XmNy", IntToString(WrapAdd(y, dy)));
  }
}

// Makes the room that each widget of the sibling list needs, where the widgets before it have put
// it by then.
static void MakeRoom(Widg* first) {
  for (const Widg* widg = first; widg; widg = widg->next) {
    for (const AllowanceRow& row : kAllowances) {
      if (!IsClass(widg, row.class_name)) continue;
      MoveWidgsToFit(first, BottomPos(widg), row.dx, row.dy);
    }
  }
}

void FixUpGeometry(Widg* widg) {
  if (!widg->child) return;
  MakeRoom(widg->child);
  int32_t width = Width(widg);
  int32_t height = Height(widg);
  for (const Widg* child = widg->child; child; child = child->next) {
    width = std::max(width, ApproxRightSidePos(child));
    height = std::max(height, ApproxBottomPos(child));
  }
  AddResource(widg, "XmNwidth", IntToString(width));
  AddResource(widg, "XmNheight", IntToString(height));
}
