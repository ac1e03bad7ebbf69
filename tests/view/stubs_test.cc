// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <set>

// After GoogleTest, which uses names that X defines as macros.
#include "stubs.h"
#include "zo.h"

namespace view {
namespace {

TEST(Stubs, ReasonsHaveTheNamesOfTheirCallbacks) {
  EXPECT_EQ(ReasonName(XmCR_ACTIVATE), "XmNactivateCallback");
  EXPECT_EQ(ReasonName(XmCR_VALUE_CHANGED), "XmNvalueChangedCallback");
  EXPECT_EQ(ReasonName(XmCR_SINGLE_SELECT), "XmNsingleSelectionCallback");
  EXPECT_EQ(ReasonName(-7), "reason -7");
}

// Uses up all stubs, so it is the only test that asks for any.
TEST(Stubs, EachNameHasItsOwnUntilTheyRunOut) {
  std::set<XtCallbackProc> procedures;
  for (std::size_t i = 0; i < kMaxStubs; ++i) {
    const XtCallbackProc procedure = StubFor(std::to_string(i));
    ASSERT_NE(procedure, nullptr);
    EXPECT_TRUE(procedures.insert(procedure).second);
  }
  EXPECT_EQ(StubFor("one too many"), nullptr);
  EXPECT_EQ(StubFor("7"), StubFor("7"));
}

TEST(RunTime, KnowsItsProcedures) {
  for (const auto name : {"ZoManageCB", "ZoUnmanageCB", "ZoSetValuesCB", "ZoSetSensitiveCB",
                          "ZoSetInsensitiveCB", "ZoVerifyNumericCB", "ZoHelpCB"}) {
    EXPECT_NE(ZoProcedure(name), nullptr) << name;
  }
  EXPECT_EQ(ZoProcedure("open_file"), nullptr);
}

}  // namespace
}  // namespace view
