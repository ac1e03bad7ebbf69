// SPDX-License-Identifier: MIT
// The fix-up adds shifts up before it writes them. On any container it must leave what comes of
// moving the children once for each of them that needs room.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "layout/geometry.h"
#include "text/uil_text.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/copy.h"
#include "widget/links.h"
#include "widget/tree.h"

namespace {

using LayoutGeometryRandom = SessionFixture;

constexpr int kContainers = 3000;
constexpr int kMaxChildren = 12;
constexpr int32_t kMax = 2147483647;

class RandomContainer {
 public:
  explicit RandomContainer(unsigned seed) : random_(seed) {
    spread_ = Number(4) == 0 ? kMax : 1 + Number(120);
    copies_ = Number(5) == 0;
  }

  Widg* Make() {
    Widg* container = NewWidg("XmBulletinBoard", "container");
    SetSome(container);
    std::vector<Widg*> children;
    for (int i = Number(kMaxChildren + 1); i > 0; --i) {
      static const FixedText kClasses[] = {"XmTextField", "XmText",       "XmToggleButton",
                                           "XmMenuBar",   "XmPushButton", "XmLabel"};
      Widg* child = NewWidg(kClasses[Number(6)], "child");
      if (copies_ && !children.empty() && Number(2) == 0) {
        child = CopyWidg(children.back());
      } else {
        SetSome(child);
        FromGil(child, 0, 0, Coordinate(), Coordinate());
      }
      children.push_back(child);
      AddChildWidg(container, child);
    }
    return container;
  }

 private:
  int Number(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random_); }

  int32_t Coordinate() {
    return std::uniform_int_distribution<int32_t>(-spread_, spread_)(random_);
  }

  // Some of the resources, in some order.
  void SetSome(Widg* widg) {
    std::vector<FixedText> names = {"XmNx", "XmNy", "XmNwidth", "XmNheight"};
    std::shuffle(names.begin(), names.end(), random_);
    for (const FixedText& name : names) {
      if (Number(4) > 0) AddResource(widg, name, IntToString(Coordinate()));
    }
  }

  std::mt19937 random_;
  int32_t spread_;
  bool copies_;
};

std::string Geometry(const Widg* container) {
  std::string text = Resources(container);
  for (const Widg* child = container->child; child; child = child->next) {
    text.append("; ").append(Resources(child));
  }
  return text;
}

void FixUpOneByOne(Widg* container) {
  int32_t width = Width(container);
  int32_t height = Height(container);
  if (!container->child) return;
  MakeRoomOneByOne(container->child);
  for (const Widg* child = container->child; child; child = child->next) {
    width = std::max(width, ApproxRightSidePos(child));
    height = std::max(height, ApproxBottomPos(child));
  }
  AddResource(container, "XmNwidth", IntToString(width));
  AddResource(container, "XmNheight", IntToString(height));
}

TEST_F(LayoutGeometryRandom, FixUpIsWhatMovingOneByOneGives) {
  for (unsigned seed = 0; seed < kContainers && !HasFailure(); ++seed) {
    SCOPED_TRACE(std::string("seed ").append(std::to_string(seed)));
    Widg* fixed = RandomContainer(seed).Make();
    Widg* moved = RandomContainer(seed).Make();
    ASSERT_EQ(Geometry(fixed), Geometry(moved));
    FixUpGeometry(fixed);
    FixUpOneByOne(moved);
    EXPECT_EQ(Geometry(fixed), Geometry(moved));
  }
}

}  // namespace
