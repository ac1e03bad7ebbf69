// SPDX-License-Identifier: MIT
#include "gil/value.h"

#include "gil/tokens.h"
#include "unit/support/gil_objects.h"
#include "unit/support/session_fixture.h"

using ValueTest = SessionFixture;

TEST_F(ValueTest, TakingAValueTakesTheAttributeOffTheObject) {
  Value* value = StrValue("Ok");
  Obj* obj = makeObj(BUTTON, makeAttr(LABEL, value), nullptr);
  EXPECT_EQ(PeekValue(obj, LABEL), value);
  EXPECT_EQ(TakeValue(obj, LABEL), value);
  EXPECT_EQ(TakeValue(obj, LABEL), nullptr);
  EXPECT_EQ(PeekValue(obj, LABEL), nullptr);
}

TEST_F(ValueTest, TextIsShared) {
  Value* value = IdValue("name");
  EXPECT_EQ(ValueText(value), value->sval);
}

TEST_F(ValueTest, MissingTextIsEmpty) {
  EXPECT_STREQ(ValueText(nullptr), "");
  EXPECT_STREQ(ValueText(tokenValue(NIL)), "");
  EXPECT_STREQ(ValueText(intValue(3)), "");
}

TEST_F(ValueTest, MissingTokenIsWhatTheCallerSays) {
  EXPECT_EQ(ValueToken(nullptr, ACTIVE), ACTIVE);
  EXPECT_EQ(ValueToken(tokenValue(INACTIVE), ACTIVE), INACTIVE);
}

TEST_F(ValueTest, OnlyStringsAreStringValues) {
  EXPECT_TRUE(IsStringValue(StrValue("")));
  EXPECT_FALSE(IsStringValue(tokenValue(NIL)));
  EXPECT_FALSE(IsStringValue(intValue(0)));
  EXPECT_FALSE(IsStringValue(nullptr));
}

TEST_F(ValueTest, EmptyStringIsTwoQuotes) {
  EXPECT_TRUE(IsEmptyGilString("\"\""));
  EXPECT_FALSE(IsEmptyGilString(""));
  EXPECT_FALSE(IsEmptyGilString(nullptr));
  EXPECT_FALSE(IsEmptyGilString("\" \""));
}

TEST_F(ValueTest, TextCountsUnlessItIsTwoQuotes) {
  EXPECT_TRUE(HasGilText(StrValue("a")));
  EXPECT_FALSE(HasGilText(StrValue("")));
  EXPECT_FALSE(HasGilText(nullptr));
}

TEST_F(ValueTest, StepStaysAtTheEnd) {
  Value* list = tokenValue(T);
  list->next = tokenValue(NIL);
  Step(&list);
  EXPECT_EQ(list->ival, NIL);
  Step(&list);
  EXPECT_EQ(list, nullptr);
  Step(&list);
  EXPECT_EQ(list, nullptr);
}

TEST_F(ValueTest, LastElementOfAList) {
  Value* list = tokenValue(T);
  EXPECT_EQ(LastValue(list), list);
  list->next = tokenValue(NIL);
  EXPECT_EQ(LastValue(list), list->next);
  EXPECT_EQ(LastValue(nullptr), nullptr);
}
