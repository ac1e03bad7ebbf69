// SPDX-License-Identifier: MIT
#include "names/name_table.h"

#include <sstream>
#include <string>

#include "unit/support/numbered.h"
#include "unit/support/session_fixture.h"

class NameTableTest : public SessionFixture {
 protected:
  // The name that a request is given.
  std::string Create(const char* name) { return NameGet(&table, NameCreate(&table, name)); }

  NameTable table;
};

TEST_F(NameTableTest, FirstNameHasHandleZero) {
  EXPECT_EQ(NamePosition(&table, "a"), 0);
  EXPECT_EQ(NameCreate(&table, "a"), 0);
  EXPECT_STREQ(NameGet(&table, 0), "a");
}

TEST_F(NameTableTest, HandlesAreInOrderOfCreation) {
  EXPECT_EQ(NameCreate(&table, "b"), 0);
  EXPECT_EQ(NameCreate(&table, "a"), 1);
  EXPECT_EQ(NameCreate(&table, "c"), 2);
  EXPECT_STREQ(NameGet(&table, 0), "b");
  EXPECT_STREQ(NameGet(&table, 1), "a");
  EXPECT_STREQ(NameGet(&table, 2), "c");
}

TEST_F(NameTableTest, PositionsAreInOrderOfTheBytes) {
  for (const char* name : {"b", "a", "c", "B"}) NameCreate(&table, name);
  EXPECT_EQ(NamePosition(&table, "B"), 0);
  EXPECT_EQ(NamePosition(&table, "a"), 1);
  EXPECT_EQ(NamePosition(&table, "b"), 2);
  EXPECT_EQ(NamePosition(&table, "c"), 3);
  EXPECT_EQ(NamePosition(&table, "bb"), 3);
  EXPECT_EQ(NamePosition(&table, "z"), 4);
}

TEST_F(NameTableTest, UnknownHandlesHaveNoName) {
  NameCreate(&table, "a");
  EXPECT_EQ(NameGet(&table, -1), nullptr);
  EXPECT_EQ(NameGet(&table, -2), nullptr);
  EXPECT_EQ(NameGet(&table, 1), nullptr);
  EXPECT_EQ(NameInUse(&table, -1), 0);
  EXPECT_EQ(NameInUse(&table, 1), 0);
}

TEST_F(NameTableTest, HandlesStayThroughManyInsertions) {
  for (int i = 500; i > 0; --i) Create((Numbered("n", i)).c_str());
  for (int i = 500; i > 0; --i) {
    EXPECT_EQ(NameGet(&table, 500 - i), Numbered("n", i));
  }
}

TEST_F(NameTableTest, TakenNameIsNumberedFromOne) {
  EXPECT_EQ(Create("button"), "button");
  EXPECT_EQ(Create("button"), "button1");
  EXPECT_EQ(Create("button"), "button2");
}

TEST_F(NameTableTest, TakenNameWithANumberStartsFromOneAgain) {
  Create("button");
  Create("button1");
  EXPECT_EQ(Create("button1"), "button2");
  Create("item7");
  EXPECT_EQ(Create("item7"), "item1");
}

TEST_F(NameTableTest, LowestFreeNumberIsTaken) {
  for (const char* name : {"button", "button1", "button3"}) Create(name);
  EXPECT_EQ(Create("button"), "button2");
  EXPECT_EQ(Create("button"), "button4");
}

TEST_F(NameTableTest, NumbersOfOneBaseAreSharedByItsForms) {
  for (const char* name : {"a", "a", "a5"}) Create(name);
  EXPECT_EQ(Create("a5"), "a2");
  EXPECT_EQ(Create("a"), "a3");
  EXPECT_EQ(Create("a1"), "a4");
  EXPECT_EQ(Create("a"), "a6");
}

TEST_F(NameTableTest, NameOfDigitsKeepsItsFirst) {
  EXPECT_EQ(Create("12"), "12");
  EXPECT_EQ(Create("12"), "11");
  EXPECT_EQ(Create("12"), "13");
}

TEST_F(NameTableTest, WhiteSpaceAndThenDigitsAreStripped) {
  EXPECT_EQ(Create("a 7 \t"), "a 7 \t");
  EXPECT_EQ(Create("a 7 \t"), "a 1");
}

TEST_F(NameTableTest, NullNameIsTheEmptyOne) {
  EXPECT_EQ(Create(nullptr), "");
  EXPECT_EQ(Create(""), "1");
}

TEST_F(NameTableTest, NamesAreCaseSensitive) {
  Create("ok");
  EXPECT_EQ(Create("Ok"), "Ok");
}

TEST_F(NameTableTest, DeletedNameIsRevived) {
  for (const char* name : {"b", "a", "c"}) Create(name);
  NameDelete(&table, "b");
  EXPECT_EQ(NameInUse(&table, 0), 0);
  EXPECT_STREQ(NameGet(&table, 0), "b");
  EXPECT_EQ(NameCreate(&table, "b"), 0);
  EXPECT_EQ(NameInUse(&table, 0), 1);
  EXPECT_EQ(Create("b"), "b1");
}

TEST_F(NameTableTest, DeletedNameIsStillFound) {
  Create("a");
  NameDelete(&table, "a");
  EXPECT_EQ(NameLookup(&table, "a"), 0);
}

TEST_F(NameTableTest, DeletedNumberedNameIsRevivedInPassing) {
  for (int i = 0; i < 4; ++i) Create("a");
  NameDelete(&table, "a1");
  EXPECT_EQ(NameCreate(&table, "a"), 1);
  EXPECT_EQ(Create("a"), "a4");
}

TEST_F(NameTableTest, DeletingNeverGoesBelowZero) {
  Create("a");
  for (int i = 0; i < 3; ++i) NameDelete(&table, "a");
  EXPECT_EQ(NameCopy(&table, "a"), 0);
  EXPECT_EQ(NameInUse(&table, 0), 1);
}

TEST_F(NameTableTest, NullAndUnknownNamesAreNotDeleted) {
  Create("a");
  Create("");
  NameDelete(&table, nullptr);
  NameDelete(&table, "b");
  EXPECT_EQ(NameInUse(&table, 0), 1);
  EXPECT_EQ(NameInUse(&table, 1), 1);
}

TEST_F(NameTableTest, CopyOfAPresentNameNeedsTwoDeletes) {
  Create("a");
  EXPECT_EQ(NameCopy(&table, "a"), 0);
  NameDelete(&table, "a");
  EXPECT_EQ(NameInUse(&table, 0), 1);
  NameDelete(&table, "a");
  EXPECT_EQ(NameInUse(&table, 0), 0);
}

TEST_F(NameTableTest, CopyOfAnAbsentNameMakesIt) {
  EXPECT_EQ(NameCopy(&table, "a"), 0);
  EXPECT_STREQ(NameGet(&table, 0), "a");
}

TEST_F(NameTableTest, CopyOfNullIsNoName) {
  EXPECT_EQ(NameCopy(&table, nullptr), -1);
  EXPECT_EQ(NameLookup(&table, ""), kNoName);
}

TEST_F(NameTableTest, TextIsACopy) {
  char name[] = "abc";
  NameCreate(&table, name);
  name[0] = 'x';
  EXPECT_STREQ(NameGet(&table, 0), "abc");
}

// The search for a free number goes on where the last one ended, whichever form asked.
TEST_F(NameTableTest, FormsOfOneBaseAskInTurn) {
  for (const char* name : {"a", "a7", "a1"}) Create(name);
  EXPECT_EQ(Create("a"), "a2");
  EXPECT_EQ(Create("a7"), "a3");
  EXPECT_EQ(Create("a7"), "a4");
  EXPECT_EQ(Create("a"), "a5");
  EXPECT_EQ(Create("a1"), "a6");
  EXPECT_EQ(Create("a"), "a8");
  EXPECT_EQ(Create("a7"), "a9");
}

TEST_F(NameTableTest, DeletedNameIsFoundByBothForms) {
  for (int i = 0; i < 4; ++i) Create("a");
  NameDelete(&table, "a2");
  EXPECT_EQ(NameCreate(&table, "a3"), 2);  // a2 again
  NameDelete(&table, "a1");
  EXPECT_EQ(NameCreate(&table, "a"), 1);
  EXPECT_EQ(Create("a3"), "a4");
  EXPECT_EQ(Create("a"), "a5");
}

TEST_F(NameTableTest, DeletedNumberedNameIsRevivedByTheNextRequest) {
  EXPECT_EQ(NameCreate(&table, "item7"), 0);
  EXPECT_EQ(NameCreate(&table, "item7"), 1);  // item1
  EXPECT_EQ(NameCreate(&table, "item7"), 2);  // item2
  NameDelete(&table, "item1");
  EXPECT_EQ(NameCreate(&table, "item7"), 1);
  EXPECT_EQ(NameInUse(&table, 1), 1);
  EXPECT_EQ(Create("item7"), "item3");
}

// The instance names

static const char kReserved[] =
    "arguments callbacks controls end exported false gadget identifier include list module off on "
    "object private procedure procedures true value widget any argument asciz_string_table "
    "asciz_table "
    "background boolean case_insensitive case_sensitive character_set color color_table "
    "compound_string compound_string_table file float font font_table fontset foreground icon "
    "imported integer integer_table keysym managed names objects reason rgb right_to_left "
    "single_float string string_table translation_table unmanaged user_defined version "
    "wide_character widget1 xbitmapfile";

TEST_F(NameTableTest, ReservedWordsAreEnteredInOrder) {
  AddUILKeyWordsToTable(&table);
  std::istringstream words(kReserved);
  NameHandle handle = 0;
  for (std::string word; words >> word; ++handle) EXPECT_EQ(NameGet(&table, handle), word);
  EXPECT_EQ(handle, 60);
  EXPECT_EQ(NameGet(&table, 60), nullptr);
}

TEST_F(NameTableTest, InstanceNamesAvoidReservedWords) {
  NameTable* names = InstanceNameTbl();
  EXPECT_STREQ(NameGet(names, NameCreate(names, "object")), "object1");
  EXPECT_STREQ(NameGet(names, NameCreate(names, "widget")), "widget2");
  EXPECT_STREQ(NameGet(names, NameCreate(names, "Object")), "Object");
}

TEST_F(NameTableTest, InstanceNamesAreOneTableFilledOnce) {
  NameTable* names = InstanceNameTbl();
  EXPECT_EQ(InstanceNameTbl(), names);
  EXPECT_EQ(NameCreate(names, "first"), 60);
}

TEST_F(NameTableTest, ResetForgetsTheInstanceNames) {
  NameCreate(InstanceNameTbl(), "mine");
  ResetNameTable();
  EXPECT_EQ(NameLookup(InstanceNameTbl(), "mine"), kNoName);
  EXPECT_NE(NameLookup(InstanceNameTbl(), "object"), kNoName);
}

// Entry points for other code

TEST_F(NameTableTest, LegalCharacters) {
  EXPECT_STREQ(GetSetIdentifierLegalChars(), "_$");
  EXPECT_STREQ(GetSetTypeLegalChars(), "_$.()[]&->:");
}
