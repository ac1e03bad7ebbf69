// SPDX-License-Identifier: MIT
#include "passes/procedure_names.h"

#include "flags/flags.h"
#include "names/name_table.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/callbacks.h"
#include "widget/procedures.h"
#include "widget/tree.h"

namespace {

class ProcedureNames : public SessionFixture {
 protected:
  // Plain UIL unless a test says otherwise.
  ProcedureNames() { usezo = 0; }

  // Runs the pass; returns what it told.
  std::string Fix() { return Run(FixProcedureNames).err; }

  char quit[5] = "quit";
};

TEST_F(ProcedureNames, ProcedureNamedLikeAnInstanceIsCapitalisedWhereverItIsShared) {
  Widg* button = NewWidg("XmPushButton", "quit");
  AddCallback(button, "XmNactivateCallback", quit, "");
  EXPECT_EQ(Fix(), "Changing procedure named quit to Quit to avoid name collision\n");
  EXPECT_STREQ(quit, "Quit");
  EXPECT_STREQ(button->callbacks->procedure, "Quit");
  char** procedures = nullptr;
  ASSERT_EQ(GetProcedures(&procedures), 1U);
  EXPECT_STREQ(procedures[0], "Quit");
}

TEST_F(ProcedureNames, OtherCopyOfTheProcedureKeepsItsName) {
  char copy[] = "quit";
  Widg* first = NewWidg("XmPushButton", "quit");
  Widg* second = NewWidg("XmPushButton", "b");
  AddCallback(first, "XmNactivateCallback", quit, "");
  AddCallback(second, "XmNactivateCallback", copy, "");
  Fix();
  EXPECT_STREQ(first->callbacks->procedure, "Quit");
  EXPECT_STREQ(second->callbacks->procedure, "quit");
}

TEST_F(ProcedureNames, OtherProceduresStay) {
  NewWidg("XmPushButton", "other");
  InsertProcedure(quit);
  EXPECT_EQ(Fix(), "");
  EXPECT_STREQ(quit, "quit");
}

TEST_F(ProcedureNames, ReservedWordIsCapitalised) {
  char on[] = "on";
  InsertProcedure(on);
  EXPECT_EQ(Fix(), "Changing procedure named on to On to avoid name collision\n");
  EXPECT_STREQ(on, "On");
}

TEST_F(ProcedureNames, FirstAndLastLetterOfTheAlphabetAreRaised) {
  char a[] = "apply";
  char z[] = "zoom";
  for (char* name : {a, z}) {
    NameCreate(InstanceNameTbl(), name);
    InsertProcedure(name);
  }
  Fix();
  EXPECT_STREQ(a, "Apply");
  EXPECT_STREQ(z, "Zoom");
}

TEST_F(ProcedureNames, NameThatBeginsWithNoLetterStays) {
  char name[] = "_quit";
  NameCreate(InstanceNameTbl(), name);
  InsertProcedure(name);
  EXPECT_EQ(Fix(), "Changing procedure named _quit to _quit to avoid name collision\n");
}

TEST_F(ProcedureNames, CapitalisedNameIsNotLookedUpAgain) {
  NewWidg("XmLabel", "quit");
  NameCreate(InstanceNameTbl(), "Quit");
  InsertProcedure(quit);
  EXPECT_EQ(Fix(), "Changing procedure named quit to Quit to avoid name collision\n");
  EXPECT_STREQ(quit, "Quit");
}

TEST_F(ProcedureNames, NameThatIsCapitalAlreadyIsToldAndStays) {
  NameCreate(InstanceNameTbl(), "Quit");
  quit[0] = 'Q';
  InsertProcedure(quit);
  EXPECT_EQ(Fix(), "Changing procedure named Quit to Quit to avoid name collision\n");
  EXPECT_STREQ(quit, "Quit");
}

TEST_F(ProcedureNames, BuilderKeepsThem) {
  usezo = 1;
  NewWidg("XmPushButton", "quit");
  InsertProcedure(quit);
  EXPECT_EQ(Fix(), "");
  EXPECT_STREQ(quit, "quit");
}

}  // namespace
