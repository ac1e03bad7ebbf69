// SPDX-License-Identifier: MIT
// Searches answer from what the links wrote down. This test links, claims, copies and moves widgets
// in the ways and in the order of the converter, file after file of a project, with few names for
// many widgets, and has every search compared with going through the tree.
#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include "flags/flags.h"
#include "passes/clean_up.h"
#include "unit/support/checked_searches.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/copy.h"
#include "widget/gil_name.h"
#include "widget/known_names.h"
#include "widget/links.h"
#include "widget/nesting.h"
#include "widget/plain_search.h"
#include "widget/search.h"
#include "widget/tree.h"

namespace {

constexpr int kFiles = 3;
constexpr int kMaxObjects = 5;
constexpr int kMaxDepth = 3;
constexpr int kMaxMembers = 3;

class RandomProject {
 public:
  explicit RandomProject(unsigned seed) : random_(seed) {
    usezo = 1;
    zo25 = Chance(50);
    names_ = 2 + Number(6);
  }

  void Convert() {
    for (int file = 0; file < kFiles && !testing::Test::HasFailure(); ++file) ConvertFile();
  }

 private:
  static bool IsInTree(const Widg* wanted) {
    return FindFirst(
        top_widget, NewVisit(), [](const Widg*) { return true; },
        [wanted](const Widg* widg) { return widg == wanted; });
  }

  int Number(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random_); }
  bool Chance(int percent) { return Number(100) < percent; }

  // Some begin with a capital, which a copy changes in place.
  char* Name() {
    const int number = Number(names_);
    return Writable(std::string(number == 0 ? "N" : "n").append(std::to_string(number)));
  }

  Widg* New(const char* class_name) {
    widgets_.push_back(MakeWidg(class_name, Name()));
    return widgets_.back();
  }

  void ExpectAgreement() {
    ExpectAgreementOnNames();
    ExpectAgreementOnNames();  // now the searches remember
    for (Widg* widg : widgets_) {
      if (!IsInTree(widg)) continue;
      EXPECT_EQ(FindParentOfWidg(top_widget, widg), FindParentOfWidgPlainly(top_widget, widg));
    }
  }

  void ExpectAgreementOnNames() {
    for (int i = 0; i < names_; ++i) {
      for (const char* letter : {"n", "N"}) {
        const std::string name = std::string(letter).append(std::to_string(i));
        EXPECT_EQ(FindWidg(top_widget, name.c_str()), FindWidgPlainly(top_widget, name.c_str()));
        EXPECT_EQ(FindWidgWithChild(top_widget, name.c_str()),
                  FindWidgWithChildPlainly(top_widget, name.c_str()));
      }
    }
  }

  static Widg* ClaimAs(Widg* menu, const char* wanted, const char* other) {
    if (IsClass(menu, other)) menu = CopyWidgTree(menu);
    menu->class_name = wanted;
    return menu;
  }

  void ClaimPopup(Widg* widg) {
    Widg* menu = FindWidg(top_widget, Name());
    if (menu) AddChildLast(widg, ClaimAs(menu, "XmPopupMenu", "XmPulldownMenu"));
  }

  void ClaimPulldown(Widg* button) {
    Widg* menu = FindWidg(top_widget, Name());
    if (menu) SetChildren(button, ClaimAs(menu, "XmPulldownMenu", "XmPopupMenu"));
  }

  // A menu gets new items in the place of whatever it owned.
  void FillMenu(Widg* menu) {
    Widg* items = nullptr;
    for (int i = Number(3); i > 0; --i) {
      Widg* item = New("XmPushButton");
      if (Chance(40)) ClaimPulldown(item);
      item->next = items;
      items = item;
    }
    SetChildren(menu, items);
  }

  // Wraps a widget that is in no list yet.
  Widg* Wrap(Widg* widg) {
    Widg* wrapper = New("XmRowColumn");
    Widg* label = New("XmLabel");
    wrapper->next = widg->next;
    label->next = widg;
    widg->next = nullptr;
    SetChildren(wrapper, label);
    return wrapper;
  }

  // An option menu takes the place and the GIL name of a setting.
  Widg* Replace(Widg* setting) {
    Widg* menu = New("XmOptionMenu");
    SetGilName(menu, setting->gil_name);
    return menu;
  }

  // What a group does with its members; null when it is dropped.
  Widg* Gather(Widg* group) {
    Widg* parent = nullptr;
    bool found_any = false;
    for (int i = Number(kMaxMembers + 1); i > 0; --i) {
      Widg* member = FindWidg(top_widget, Name());
      if (!member || (found_any && !parent)) continue;
      if (!found_any) parent = FindParentOfWidg(top_widget, member);
      found_any = true;
      if (!parent) continue;
      top_widget = RemoveWidg(top_widget, member);
      member->next = nullptr;
      AddChildWidg(group, member);
    }
    if (!parent) return nullptr;
    AddChildWidg(parent, group);
    return group;
  }

  // Converts an object with what it owns; null for a dropped group.
  Widg* ConvertObject(const char* class_name, int depth) {
    Widg* widg = New(class_name);
    for (int i = depth < kMaxDepth ? Number(3) : 0; i > 0; --i) {
      static const char* const kOwned[] = {"XmBulletinBoard", "XmLabel", "XmScrolledText",
                                           "XmUnknownMenu"};
      Widg* child = ConvertObject(kOwned[Number(4)], depth + 1);
      if (child) AddChildWidg(widg, child);
    }
    if (IsClass(widg, "XmUnknownMenu")) FillMenu(widg);
    Widg* result = widg;
    switch (Number(8)) {
      case 0:
        InsertWidgBelow(widg, "XmBulletinBoard", Name());
        break;
      case 1:
        result = Wrap(widg);
        break;
      case 2:
        // A group of the top level is not linked there.
        if (depth > 0 && !widg->child) result = Gather(widg);
        break;
      case 3:
        result = Replace(widg);
        break;
      case 4:
        ClaimPulldown(widg);
        result = Wrap(widg);
        break;
      default:
        break;
    }
    if (Chance(30)) ClaimPopup(result ? result : widg);
    ExpectAgreement();
    return result;
  }

  void ConvertFile() {
    Widg** link = top_widget ? &LastSibling(top_widget)->next : &top_widget;
    Widg* last = nullptr;
    const int menus = Number(3);
    const int objects = menus + 1 + Number(kMaxObjects);
    for (int i = 0; i < objects && !testing::Test::HasFailure(); ++i) {
      const bool is_group = i > menus && Chance(20);
      Widg* widg = is_group ? New("XmBulletinBoard")
                            : ConvertObject(i < menus ? "XmUnknownMenu" : "XmForm", 0);
      if (is_group) Gather(widg);
      if (!widg || is_group) continue;
      LinkTopLevel(last && *link ? &last->next : link, widg);
      last = widg;
      ExpectAgreement();
    }
    RelinkTopLevel(link, CleanUpTopLevelHierarchy(link));
    ExpectAgreement();
  }

  std::mt19937 random_;
  int names_ = 0;
  std::vector<Widg*> widgets_;
};

class WidgSearchRandom : public SessionFixture, public testing::WithParamInterface<unsigned> {
 protected:
  // The clean-up searches by itself.
  WidgSearchRandom() { CheckSearches(true); }
  ~WidgSearchRandom() override { CheckSearches(false); }
};

// Links go wrong in the same way in either build; with the sanitizers the rounds take long.
#ifdef PANDREL_SANITIZED
constexpr unsigned kRounds = 20;
#else
constexpr unsigned kRounds = 100;
#endif

TEST_P(WidgSearchRandom, ProjectsAreSearchedAsTheTreeIs) {
  for (unsigned round = 0; round < kRounds; ++round) {
    const unsigned seed = GetParam() * 1000 + round;
    SCOPED_TRACE(std::string("seed ").append(std::to_string(seed)));
    ResetTree();
    ResetKnownNames();
    RandomProject(seed).Convert();
    if (HasFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, WidgSearchRandom, testing::Range(0u, 20u));

}  // namespace
