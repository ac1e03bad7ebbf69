// SPDX-License-Identifier: MIT
#include "driver/session.h"

#include <string>

#include "driver/driver.h"
#include "flags/flags.h"
#include "gil/parser.h"
#include "gil/position.h"
#include "gil/version.h"
#include "names/name_table.h"
#include "text/uil_text.h"
#include "uil/writer.h"
#include "unit/support/session_fixture.h"
#include "widget/procedures.h"
#include "widget/tree.h"

using SessionTest = SessionFixture;

static const char kInput[] =
    ";GIL-3\n((:type :base-window :name w :width 300 :height 100 :label \"A window\")\n"
    "(:type :control-area :name ca :owner w :x 0 :y 0 :width 300 :height 100)\n"
    "(:type :button :name b :owner ca :x 1 :y 2 :label \"Go\" :notify-handler go)\n"
    "(:type :scrolling-list :name l :owner ca :x 9 :y 30 :rows 3 :initial-list-values (\"a\" "
    "\"b\")))\n";

// The module of the input, on standard output.
static void Convert() {
  ProcessGILFile(&top_widget);
  ProcessActions();
  GenUILForWidgHierarchy(top_widget, stdout);
}

TEST_F(SessionTest, ResetForgetsEverything) {
  Run(Convert, kInput);
  ASSERT_NE(top_widget, nullptr);
  ASSERT_EQ(GetVersion(), 3);
  usezo = 0;
  ResetSession();
  EXPECT_EQ(top_widget, nullptr);
  EXPECT_EQ(gilFile, nullptr);
  EXPECT_EQ(project, nullptr);
  EXPECT_EQ(GetVersion(), 0);
  EXPECT_EQ(yylineno, 1);
  EXPECT_EQ(usezo, 1);
  char** procedures = nullptr;
  EXPECT_EQ(GetProcedures(&procedures), 0U);
  EXPECT_EQ(NameLookup(InstanceNameTbl(), "b"), kNoName);
  EXPECT_STREQ(MergeStringsUnique("", ""), "100");
}

TEST_F(SessionTest, SecondConversionEqualsTheFirst) {
  const Outcome first = Run(Convert, kInput);
  ResetSession();
  const Outcome second = Run(Convert, kInput);
  EXPECT_NE(first.out.find("end module;"), std::string::npos);
  EXPECT_EQ(second.out, first.out);
  EXPECT_EQ(second.err, first.err);
}

TEST_F(SessionTest, ConversionAfterAFatalEndIsAsAnyOther) {
  const Outcome first = Run(Convert, kInput);
  ResetSession();
  EXPECT_EQ(Run(Convert, std::string(kInput) + ")").status, -1);
  ResetSession();
  EXPECT_EQ(Run(Convert, kInput).out, first.out);
}

// Whatever request for storage fails, the run ends with a message.
TEST_F(SessionTest, ExhaustedMemoryAlwaysEndsTheRunWithAMessage) {
  long requests = 0;
  for (;; ++requests) {
    ResetSession();
    SetInput(kInput);
    const Outcome outcome = RunOutOfMemory(requests, Convert);
    if (!outcome.status) break;
    EXPECT_EQ(outcome.status, -1) << requests;
    EXPECT_NE(outcome.err.find("Out of memory "), std::string::npos) << requests << outcome.err;
  }
  EXPECT_GT(requests, 50);
}
