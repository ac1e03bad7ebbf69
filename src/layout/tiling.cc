// SPDX-License-Identifier: MIT
#include "layout/tiling.h"

#include <algorithm>

#include "layout/geometry.h"
#include "osi/wrap.h"
#include "text/uil_text.h"
#include "widget/resources.h"
#include "widget/walk.h"

// How an edge is read and moved.
struct EdgeRow {
  const char* name;
  const char* resource;  // what AddResource changes to move it
  int32_t (*Original)(const Widg*);
  int32_t (*Current)(const Widg*);
  int32_t (*Start)(const Widg*);  // the opposite edge, for a resource that is a size; else null
};

// In the order of the codes.
static const EdgeRow kEdges[] = {
    {"PositionLeft", "XmNx", [](const Widg* w) { return w->x; }, LeftSidePos, nullptr},
    {"PositionRight", "XmNwidth", [](const Widg* w) { return WrapAdd(w->x, w->width); },
     RightSidePos, LeftSidePos},
    {"PositionTop", "XmNy", [](const Widg* w) { return w->y; }, TopPos, nullptr},
    {"PositionBottom", "XmNheight", [](const Widg* w) { return WrapAdd(w->y, w->height); },
     BottomPos, TopPos},
};

static const EdgeRow* FindEdge(int32_t code) {
  return code >= kPositionLeft && code <= kPositionBottom ? &kEdges[code] : nullptr;
}

int32_t OrigPos(const Widg* widg, int32_t code) {
  const EdgeRow* edge = FindEdge(code);
  return edge ? edge->Original(widg) : 0;
}

int32_t GetPosition(const Widg* widg, int32_t code) {
  const EdgeRow* edge = FindEdge(code);
  return edge ? edge->Current(widg) : 0;
}

void SetPosition(Widg* widg, int32_t code, int32_t value) {
  const EdgeRow* edge = FindEdge(code);
  if (!edge) return;
  const int32_t start = edge->Start ? edge->Start(widg) : 0;
  if (edge->Start && value == start) return;
  AddResource(widg, edge->resource, IntToString(WrapSub(value, start)));
}

const char* PrintPos(int32_t code) {
  const EdgeRow* edge = FindEdge(code);
  return edge ? edge->name : "";
}

void InsertBefore(Widg** slots, Widg* widg, int32_t m) {
  // Each copy reads what the one before it wrote: note [inserting loses widgets].
  for (int32_t t = 0; t < m; ++t) slots[t + 1] = slots[t];
  slots[0] = widg;
}

void InsertByPosition(Widg** array, int32_t* count, Widg* widg, int32_t code) {
  if (*count == kMaxPositions) return;
  ++*count;
  const int32_t position = OrigPos(widg, code);
  for (int32_t k = 0; k <= *count - 2; ++k) {
    if (position < OrigPos(array[k], code)) {
      InsertBefore(array + k, widg, *count - k - 1);
      return;
    }
  }
  array[*count - 1] = widg;
}

void AlignWidgets(Widg** slots, int32_t m, int32_t code) {
  int32_t best = -1;
  for (int32_t i = 0; i < m; ++i) best = std::max(best, GetPosition(slots[i], code));
  for (int32_t i = 0; i < m; ++i) SetPosition(slots[i], code, best);
}

void AlignBBChildren(Widg** array, int32_t n, int32_t code) {
  for (int32_t i = 0; i < n - 1; ++i) {
    const int32_t position = OrigPos(array[i], code);
    if (position != OrigPos(array[i + 1], code)) continue;
    int32_t j = i + 1;
    while (j < n && OrigPos(array[j], code) == position) ++j;
    AlignWidgets(array + i, j - i, code);
    i = j;
  }
}

static void SortByPosition(Widg** array, int32_t n, int32_t code) {
  int32_t count = 0;
  for (int32_t i = 0; i < n; ++i) InsertByPosition(array, &count, array[i], code);
}

void TileBBoardChildren(const Widg* board) {
  Widg* array[kMaxPositions];
  int32_t n = 0;
  for (Widg* child = board->child; child; child = child->next) {
    if (IsClass(child, "XmBulletinBoard")) {
      InsertByPosition(array, &n, child, kPositionLeft);
    } else if (!IsClass(child, "XmDialogShell") && !IsClass(child, "XmPopupMenu")) {
      return;
    }
  }
  AlignBBChildren(array, n, kPositionLeft);
  for (int32_t code : {kPositionRight, kPositionTop, kPositionBottom}) {
    SortByPosition(array, n, code);
    AlignBBChildren(array, n, code);
  }
}

void FinalRepositionInterface(Widg* widg) {
  WalkWidgets(
      widg, {WalkStep::kChild, WalkStep::kNext, WalkStep::kSelf},
      [](const Widg* w) { return w->child != nullptr; },
      [](const Widg* w) {
        if (IsClass(w, "XmBulletinBoard")) TileBBoardChildren(w);
      });
}

void MoveSizeResources(Widg* from, Widg* to) {
  MoveResource(from, "XmNwidth", to);
  MoveResource(from, "XmNheight", to);
}

void MoveGeometryResources(Widg* from, Widg* to) {
  MovePositionResources(from, to);
  MoveSizeResources(from, to);
}
