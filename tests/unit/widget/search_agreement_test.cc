// SPDX-License-Identifier: MIT
// Searches answer from what the links wrote down. Whatever was linked, moved and claimed before,
// they must find what going through the tree finds.
#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/known_names.h"
#include "widget/links.h"
#include "widget/nesting.h"
#include "widget/plain_search.h"
#include "widget/search.h"
#include "widget/tree.h"

namespace {

constexpr int kNames = 6;
constexpr int kSteps = 60;

std::string NameOf(int number) { return std::string("n").append(std::to_string(number)); }

// A conversion that does what comes to its mind.
class RandomLinks {
 public:
  explicit RandomLinks(unsigned seed) : random_(seed) { TopLevel({New()}); }

  void Step() {
    switch (Number(9)) {
      case 0:
      case 1:
        TopLevel({New()});
        break;
      case 2:
      case 3:
        AddNewChild(Any());
        break;
      case 4:
        AddChildLast(Any(), Any());
        break;
      case 5:
        top_widget = RemoveWidg(top_widget, Any());
        break;
      case 6:
        InsertWidgBelow(Any(), "XmBulletinBoard", Writable(NameOf(Number(kNames))));
        break;
      case 7:
        MoveSomeWidget();
        break;
      default:
        ClaimForNewWindow(Any());
        break;
    }
  }

  void ExpectAgreement() {
    for (int i = 0; i < kNames; ++i) {
      const std::string name = NameOf(i);
      EXPECT_EQ(FindWidg(top_widget, name.c_str()), FindWidgPlainly(top_widget, name.c_str()));
      EXPECT_EQ(FindWidgWithChild(top_widget, name.c_str()),
                FindWidgWithChildPlainly(top_widget, name.c_str()));
    }
    for (Widg* widg : widgets_) {
      if (!IsInTree(widg)) continue;
      EXPECT_EQ(FindParentOfWidg(top_widget, widg), FindParentOfWidgPlainly(top_widget, widg));
    }
  }

 private:
  static bool IsInTree(const Widg* wanted) {
    return FindFirst(
        top_widget, NewVisit(), [](const Widg*) { return true; },
        [wanted](const Widg* widg) { return widg == wanted; });
  }

  int Number(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random_); }

  Widg* New() {
    widgets_.push_back(NewWidg("XmForm", NameOf(Number(kNames))));
    return widgets_.back();
  }

  Widg* Any() {
    return widgets_[static_cast<std::size_t>(Number(static_cast<int>(widgets_.size())))];
  }

  void AddNewChild(Widg* parent) { AddChildWidg(parent, New()); }

  void ClaimForNewWindow(Widg* child) {
    Widg* window = New();
    SetChildren(window, child);
    TopLevel({window});
  }

  // Moves go from one parent to another: what is at the top level, even if claimed, stays there.
  void MoveSomeWidget() {
    Widg* widg = Any();
    Widg* parent = FindParentOfWidgPlainly(top_widget, widg);
    if (parent && !IsTopLevel(widg)) MoveWidgetInHierarchy(widg, parent, Any());
  }

  static bool IsTopLevel(const Widg* widg) {
    const Widg* at = top_widget;
    while (at && at != widg) at = at->next;
    return at != nullptr;
  }

  std::mt19937 random_;
  std::vector<Widg*> widgets_;
};

class WidgSearchAgreement : public SessionFixture, public testing::WithParamInterface<unsigned> {};

TEST_P(WidgSearchAgreement, SearchesFindWhatTheTreeHolds) {
  for (unsigned round = 0; round < 40; ++round) {
    const unsigned seed = GetParam() * 1000 + round;
    SCOPED_TRACE(std::string("seed ").append(std::to_string(seed)));
    ResetTree();
    ResetKnownNames();
    RandomLinks links(seed);
    for (int step = 0; step < kSteps; ++step) {
      links.Step();
      links.ExpectAgreement();
      if (HasFailure()) return;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, WidgSearchAgreement, testing::Range(0u, 10u));

}  // namespace
