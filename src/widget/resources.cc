// SPDX-License-Identifier: MIT
#include "widget/resources.h"

#include <cstdint>

#include "osi/wrap.h"
#include "text/uil_text.h"
#include "widget/tree.h"

static void CopyResource(const Widg* from, const char* name, Widg* to) {
  const char* value = GetResourceValue(from, name);
  if (*value) AddResource(to, name, value);
}

void MovePositionResources(Widg* from, Widg* to) {
  MoveResource(from, "XmNx", to);
  MoveResource(from, "XmNy", to);
}

void CopySizeResources(Widg* from, Widg* to) {
  CopyResource(from, "XmNwidth", to);
  CopyResource(from, "XmNheight", to);
}

void MoveVisibilityResources(Widg* from, Widg* to) {
  MoveResource(from, "XmNmappedWhenManaged", to);
}

void ReparentGeometry(const Widg* new_parent, Widg* widg) {
  const int32_t x = WrapSub(GetResourceInt(widg, "XmNx"), GetResourceInt(new_parent, "XmNx"));
  const int32_t y = WrapSub(GetResourceInt(widg, "XmNy"), GetResourceInt(new_parent, "XmNy"));
  AddResource(widg, "XmNx", IntToString(x));
  AddResource(widg, "XmNy", IntToString(y));
}

void SetTightBoard(Widg* board) {
  AddResource(board, "XmNmarginWidth", "0");
  AddResource(board, "XmNmarginHeight", "0");
  AddResource(board, "XmNresizePolicy", "XmRESIZE_GROW");
}

char* MakeWidgList(const char* text) {
  return JoinTexts("\"(WL)[", text, "]\"", "Out of memory in MakeWidgList");
}
