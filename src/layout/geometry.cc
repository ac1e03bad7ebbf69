// SPDX-License-Identifier: MIT
#include "layout/geometry.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <numeric>
#include <vector>

#include "osi/wrap.h"
#include "text/uil_text.h"
#include "widget/tree.h"

// How much more room than its OPEN LOOK counterpart a control takes.
struct AllowanceRow {
  FixedText class_name;
  int32_t dx, dy;
};

static const AllowanceRow kAllowances[] = {
    {"XmTextField", 5, 22},
    {"XmText", 5, 10},
    {"XmToggleButton", 30, 0},
    {"XmMenuBar", 0, 5},
};

static constexpr int64_t kLargestAllowance = 22;

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

void MoveWidgsToFit(Widg* first, int32_t /*right*/, int32_t bottom, int32_t dx, int32_t dy) {
  for (Widg* widg = first; widg; widg = widg->next) {
    const int32_t y = TopPos(widg);
    AddResource(widg, "XmNx", IntToString(WrapAdd(LeftSidePos(widg), dx)));
    if (y > bottom) AddResource(widg, "XmNy", IntToString(WrapAdd(y, dy)));
  }
}

static const AllowanceRow* FindAllowance(const Widg* widg) {
  for (const AllowanceRow& row : kAllowances) {
    if (IsClass(widg, row.class_name)) return &row;
  }
  return nullptr;
}

void MakeRoomOneByOne(Widg* first) {
  for (const Widg* child = first; child; child = child->next) {
    const AllowanceRow* row = FindAllowance(child);
    if (!row) continue;
    MoveWidgsToFit(first, RightSidePos(child), BottomPos(child), row->dx, row->dy);
  }
}

// The tops of a sibling list while rows of it are shifted down. Kept in order of the tops, which a
// shift of all below some line does not change; the shifts themselves are kept as sums (a Fenwick
// tree over that order), so that a shift costs the logarithm of the list's length.
class Tops {
 public:
  explicit Tops(const std::vector<Widg*>& widgs) : rank_(widgs.size()), shifts_(widgs.size() + 1) {
    std::vector<std::size_t> by_top(widgs.size());
    std::iota(by_top.begin(), by_top.end(), std::size_t{0});
    for (const Widg* widg : widgs) sorted_.push_back(TopPos(widg));
    std::sort(by_top.begin(), by_top.end(),
              [this](std::size_t a, std::size_t b) { return sorted_[a] < sorted_[b]; });
    for (std::size_t rank = 0; rank < by_top.size(); ++rank) rank_[by_top[rank]] = rank;
    std::sort(sorted_.begin(), sorted_.end());
    first_shifted_ = widgs.size();
  }

  int64_t Of(std::size_t index) const { return TopAt(rank_[index]); }

  bool IsShifted(std::size_t index) const { return rank_[index] >= first_shifted_; }

  void ShiftAllBelow(int64_t line, int32_t dy) {
    std::size_t low = 0;
    std::size_t high = sorted_.size();
    while (low < high) {
      const std::size_t middle = low + (high - low) / 2;
      if (TopAt(middle) > line) {
        high = middle;
      } else {
        low = middle + 1;
      }
    }
    first_shifted_ = std::min(first_shifted_, low);
    for (std::size_t i = low + 1; i < shifts_.size(); i += i & (~i + 1)) shifts_[i] += dy;
  }

 private:
  int64_t TopAt(std::size_t rank) const {
    int64_t top = sorted_[rank];
    for (std::size_t i = rank + 1; i > 0; i -= i & (~i + 1)) top += shifts_[i];
    return top;
  }

  std::vector<std::size_t> rank_;
  std::vector<int64_t> sorted_;
  std::vector<int64_t> shifts_;
  std::size_t first_shifted_ = 0;
};

// Whether all sums of the list stay in 32 bits and no two widgets have a resource in common: then
// the shifts may be added up before they are written.
static bool CanAddUp(const std::vector<Widg*>& widgs) {
  constexpr int64_t kLimit = 1 << 30;
  int64_t largest = 0;
  for (const Widg* widg : widgs) {
    if (widg->shares_lists) return false;
    largest = std::max({largest, std::abs(int64_t{TopPos(widg)}), std::abs(int64_t{Height(widg)})});
  }
  const auto shifts = static_cast<int64_t>(widgs.size()) * kLargestAllowance;
  return largest < kLimit && shifts < kLimit;
}

// What MakeRoomOneByOne does, with one new text for each coordinate.
static void MakeRoom(Widg* first) {
  std::vector<Widg*> widgs;
  bool any = false;
  for (Widg* widg = first; widg; widg = widg->next) {
    widgs.push_back(widg);
    any = any || FindAllowance(widg);
  }
  if (!any) return;
  if (!CanAddUp(widgs)) {
    MakeRoomOneByOne(first);
    return;
  }
  Tops tops(widgs);
  int32_t dx = 0;
  for (std::size_t i = 0; i < widgs.size(); ++i) {
    const AllowanceRow* row = FindAllowance(widgs[i]);
    if (!row) continue;
    dx = WrapAdd(dx, row->dx);
    tops.ShiftAllBelow(tops.Of(i) + Height(widgs[i]), row->dy);
  }
  for (std::size_t i = 0; i < widgs.size(); ++i) {
    AddResource(widgs[i], "XmNx", IntToString(WrapAdd(LeftSidePos(widgs[i]), dx)));
    if (tops.IsShifted(i)) {
      AddResource(widgs[i], "XmNy", IntToString(static_cast<int32_t>(tops.Of(i))));
    }
  }
}

void FixUpGeometry(Widg* widg) {
  int32_t width = Width(widg);
  int32_t height = Height(widg);
  if (!widg->child) return;
  MakeRoom(widg->child);
  for (const Widg* child = widg->child; child; child = child->next) {
    width = std::max(width, ApproxRightSidePos(child));
    height = std::max(height, ApproxBottomPos(child));
  }
  AddResource(widg, "XmNwidth", IntToString(width));
  AddResource(widg, "XmNheight", IntToString(height));
}
