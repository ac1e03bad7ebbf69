// SPDX-License-Identifier: MIT
#include "widget/procedures.h"

#include <gtest/gtest.h>

#include <string>

#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"

namespace {

using ProcedureList = SessionFixture;

std::string NumberedName(int number) { return std::string("p").append(std::to_string(number)); }

TEST_F(ProcedureList, StartsEmpty) {
  char** procedures = nullptr;
  EXPECT_EQ(GetProcedures(&procedures), 0u);
  EXPECT_FALSE(AlreadyInProcList("quit"));
}

TEST_F(ProcedureList, KeepsTheOrderOfFirstUse) {
  for (const char* name : {"quit", "about", "quit", "save", "about"}) {
    InsertProcedure(Writable(name));
  }
  EXPECT_EQ(Procedures(), "quit about save");
}

TEST_F(ProcedureList, TextsAreComparedExactly) {
  InsertProcedure(Writable("quit"));
  EXPECT_TRUE(AlreadyInProcList("quit"));
  EXPECT_FALSE(AlreadyInProcList("Quit"));
  EXPECT_FALSE(AlreadyInProcList("qui"));
}

TEST_F(ProcedureList, TextIsShared) {
  char text[] = "quit";
  InsertProcedure(text);
  char** procedures = nullptr;
  ASSERT_EQ(GetProcedures(&procedures), 1u);
  EXPECT_EQ(procedures[0], text);
}

TEST_F(ProcedureList, NullCountsAsEmpty) {
  InsertProcedure(Writable(""));
  InsertProcedure(nullptr);
  EXPECT_TRUE(AlreadyInProcList(nullptr));
  char** procedures = nullptr;
  EXPECT_EQ(GetProcedures(&procedures), 1u);
}

TEST_F(ProcedureList, HoldsMoreThanAFewGrowthSteps) {
  for (int i = 0; i < 200; ++i) InsertProcedure(Writable(NumberedName(i)));
  char** procedures = nullptr;
  ASSERT_EQ(GetProcedures(&procedures), 200u);
  for (int i = 0; i < 200; ++i) EXPECT_EQ(procedures[i], NumberedName(i));
}

TEST_F(ProcedureList, ResetEmptiesIt) {
  InsertProcedure(Writable("quit"));
  ResetProcedures();
  EXPECT_EQ(Procedures(), "");
  EXPECT_FALSE(AlreadyInProcList("quit"));
}

// Renames the text in place, as an action does that shares it.
void Change(char* text, char last) {
  const std::string former = text;
  text[former.size() - 1] = last;
  ProcedureTextChanged(text, former);
}

TEST_F(ProcedureList, ChangedTextIsFoundUnderItsNewName) {
  char text[] = "foo1";
  InsertProcedure(text);
  Change(text, 'B');
  EXPECT_TRUE(AlreadyInProcList("fooB"));
  EXPECT_FALSE(AlreadyInProcList("foo1"));
  InsertProcedure(Writable("fooB"));
  InsertProcedure(Writable("foo1"));
  EXPECT_EQ(Procedures(), "fooB foo1");
}

TEST_F(ProcedureList, TextThatComesToEqualALaterOneTakesItsPlace) {
  char text[] = "foo1";
  for (char* name : {text, Writable("quit"), Writable("fooB"), Writable("save")})
    InsertProcedure(name);
  Change(text, 'B');
  EXPECT_EQ(Procedures(), "fooB quit save");
  InsertProcedure(Writable("fooB"));
  EXPECT_EQ(Procedures(), "fooB quit save");
}

TEST_F(ProcedureList, TextThatComesToEqualAnEarlierOneLeaves) {
  char text[] = "foo1";
  for (char* name : {Writable("fooB"), text, Writable("save")}) InsertProcedure(name);
  Change(text, 'B');
  EXPECT_EQ(Procedures(), "fooB save");
}

TEST_F(ProcedureList, TextOfNoProcedureChangesNothing) {
  char text[] = "foo1";
  InsertProcedure(Writable("foo1"));
  Change(text, 'B');
  EXPECT_EQ(Procedures(), "foo1");
  EXPECT_FALSE(AlreadyInProcList("fooB"));
  EXPECT_TRUE(AlreadyInProcList("foo1"));
}

}  // namespace
