// SPDX-License-Identifier: MIT
#include "gil/object.h"

#include <string>

#include "gil/scanner.h"
#include "gil/tokens.h"
#include "unit/support/gil_objects.h"
#include "unit/support/session_fixture.h"

using ObjectTest = SessionFixture;

static Attr* Then(Attr* attr, Attr* next) {
  attr->next = next;
  return attr;
}

// An object with :x 10, :label "a" and :label "b", in this order.
static Obj* Labelled() {
  return makeObj(BUTTON,
                 Then(makeAttr(X, intValue(10)),
                      Then(makeAttr(LABEL, StrValue("a")), makeAttr(LABEL, StrValue("b")))),
                 nullptr);
}

static std::string Label(Obj* obj, int remove) {
  Value* value = nullptr;
  return GetAttrValue(obj, LABEL, &value, remove) ? value->sval : "none";
}

// Constructors

TEST_F(ObjectTest, NewValueIsEmptyButForItsKind) {
  const Value* value = createValue(2);
  EXPECT_EQ(value->next, nullptr);
  EXPECT_EQ(value->kind, 2);
  EXPECT_EQ(value->ival, 0);
  EXPECT_EQ(value->sval, nullptr);
}

TEST_F(ObjectTest, TokenValueHoldsAToken) {
  const Value* value = tokenValue(NIL);
  EXPECT_EQ(value->kind, 0);
  EXPECT_EQ(value->ival, 437);
  EXPECT_EQ(value->sval, nullptr);
}

TEST_F(ObjectTest, IntValueHoldsANumber) {
  const Value* value = intValue(-5);
  EXPECT_EQ(value->kind, 2);
  EXPECT_EQ(value->ival, -5);
  EXPECT_EQ(value->sval, nullptr);
}

TEST_F(ObjectTest, NumbersKeepTheirValueHoweverManyThereAre) {
  for (int32_t number : {0, 1, 511, 512, -1, 2147483647, -2147483647 - 1}) {
    const Value* value = intValue(number);
    intValue(number ^ 1);
    EXPECT_EQ(value->ival, number);
    EXPECT_EQ(value->kind, 2);
    EXPECT_EQ(value->next, nullptr);
  }
}

TEST_F(ObjectTest, StringValueHoldsACopy) {
  char text[] = "abcdef";
  const Value* value = stringValue(1, text, 3);
  text[0] = 'x';
  EXPECT_EQ(value->kind, 1);
  EXPECT_EQ(value->ival, 0);
  EXPECT_STREQ(value->sval, "abc");
}

TEST_F(ObjectTest, IdentifierIsAStringByKind) { EXPECT_EQ(stringValue(3, "abc", 3)->kind, 1); }

TEST_F(ObjectTest, StringValueEndsAtItsFirstNul) {
  EXPECT_STREQ(stringValue(1, "ab\0cd", 5)->sval, "ab");
}

TEST_F(ObjectTest, AttrHoldsNameAndValue) {
  Value* value = intValue(1);
  const Attr* attr = makeAttr(WIDTH, value);
  EXPECT_EQ(attr->next, nullptr);
  EXPECT_EQ(attr->name, WIDTH);
  EXPECT_EQ(attr->value, value);
}

TEST_F(ObjectTest, ActionHoldsItsSixFields) {
  Value* fields[6];
  for (Value*& field : fields) field = createValue(1);
  const Action* action =
      makeAction(fields[0], fields[1], fields[2], fields[3], fields[4], fields[5]);
  EXPECT_EQ(action->next, nullptr);
  EXPECT_EQ(action->from, fields[0]);
  EXPECT_EQ(action->when, fields[1]);
  EXPECT_EQ(action->to, fields[2]);
  EXPECT_EQ(action->functionType, fields[3]);
  EXPECT_EQ(action->argTypes, fields[4]);
  EXPECT_EQ(action->actionName, fields[5]);
}

TEST_F(ObjectTest, ObjHoldsTypeAttributesAndActions) {
  Attr* attr = makeAttr(USER_DATA, nullptr);
  Action* action = makeAction(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
  const Obj* obj = makeObj(MENU, attr, action);
  EXPECT_EQ(obj->type, 341);
  EXPECT_EQ(obj->attrs, attr);
  EXPECT_EQ(obj->actions, action);
  EXPECT_EQ(obj->next, nullptr);
  EXPECT_EQ(obj->children, nullptr);
}

// Exhausted memory

static std::string OutOfMemoryAt(const char* record) {
  return std::string("\n*** 1: Out of memory allocating ") + record + " at token\n";
}

class ObjectMemoryTest : public SessionFixture {
 protected:
  ObjectMemoryTest() {
    SetInput("token");
    yylex();
  }

  static void ExpectReport(const std::function<void()>& body, const char* record,
                           long requests = 0) {
    const Outcome outcome = RunOutOfMemory(requests, body);
    EXPECT_EQ(outcome.status, -1);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, OutOfMemoryAt(record));
  }
};

TEST_F(ObjectMemoryTest, ValuesAreReported) {
  ExpectReport([] { createValue(0); }, "a Value");
  ExpectReport([] { tokenValue(NIL); }, "a Value");
  ExpectReport([] { intValue(1000); }, "a Value");
  ExpectReport([] { StrValue("a"); }, "a Value");
}

TEST_F(ObjectMemoryTest, TextsOfValuesAreReported) {
  ExpectReport([] { StrValue("a"); }, "a Value", 1);
}

TEST_F(ObjectMemoryTest, AttributesAreReported) {
  ExpectReport([] { makeAttr(NAME, nullptr); }, "an attribute");
}

TEST_F(ObjectMemoryTest, ActionsAreReported) {
  ExpectReport([] { makeAction(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr); },
               "an action");
}

TEST_F(ObjectMemoryTest, ObjectsAreReported) {
  ExpectReport([] { makeObj(MENU, nullptr, nullptr); }, "an object");
}

// GetAttrValue

TEST_F(ObjectTest, AbsentAttributeLeavesTheResultAlone) {
  Value* value = intValue(7);
  Value* const before = value;
  EXPECT_EQ(GetAttrValue(Labelled(), WIDTH, &value, 0), 0);
  EXPECT_EQ(GetAttrValue(makeObj(BUTTON, nullptr, nullptr), WIDTH, &value, 1), 0);
  EXPECT_EQ(value, before);
}

TEST_F(ObjectTest, FirstAttributeOfThatNameIsFound) { EXPECT_EQ(Label(Labelled(), 0), "\"a\""); }

TEST_F(ObjectTest, LookingDoesNotConsume) {
  Obj* obj = Labelled();
  EXPECT_EQ(Label(obj, 0), "\"a\"");
  EXPECT_EQ(Label(obj, 0), "\"a\"");
}

TEST_F(ObjectTest, RemovingConsumesOneAttributeAtATime) {
  Obj* obj = Labelled();
  EXPECT_EQ(Label(obj, 1), "\"a\"");
  EXPECT_EQ(Label(obj, 1), "\"b\"");
  EXPECT_EQ(Label(obj, 1), "none");
  EXPECT_EQ(obj->attrs->name, X);
  EXPECT_EQ(obj->attrs->next, nullptr);
}

TEST_F(ObjectTest, RemovingTheOnlyAttributeTwiceFindsItOnce) {
  Obj* obj = makeObj(BUTTON, makeAttr(X, intValue(1)), nullptr);
  Value* value = nullptr;
  EXPECT_EQ(GetAttrValue(obj, X, &value, 1), 1);
  EXPECT_EQ(value->ival, 1);
  EXPECT_EQ(GetAttrValue(obj, X, &value, 1), 0);
  EXPECT_EQ(obj->attrs, nullptr);
}

TEST_F(ObjectTest, RemovingTheFirstAttributeMovesTheHead) {
  Obj* obj = Labelled();
  Value* value = nullptr;
  EXPECT_EQ(GetAttrValue(obj, X, &value, 1), 1);
  EXPECT_EQ(obj->attrs->name, LABEL);
}

TEST_F(ObjectTest, EmptyListIsFoundAsNull) {
  Obj* obj = makeObj(SETTING, makeAttr(CHOICES, nullptr), nullptr);
  Value* value = intValue(1);
  EXPECT_EQ(GetAttrValue(obj, CHOICES, &value, 0), 1);
  EXPECT_EQ(value, nullptr);
}

// GetAttrValueString

TEST_F(ObjectTest, TextOfAnAbsentAttributeIsNotFound) {
  char* text = nullptr;
  EXPECT_EQ(GetAttrValueString(Labelled(), TITLE, &text, 1), 0);
  EXPECT_EQ(text, nullptr);
}

TEST_F(ObjectTest, TextOfAStringIsShared) {
  Value* value = StrValue("a");
  Obj* obj = makeObj(BUTTON, makeAttr(LABEL, value), nullptr);
  char* text = nullptr;
  EXPECT_EQ(GetAttrValueString(obj, LABEL, &text, 0), 1);
  EXPECT_EQ(text, value->sval);
  EXPECT_NE(obj->attrs, nullptr);
}

TEST_F(ObjectTest, TextOfAnIntegerIsDecimal) {
  for (const auto& [number, decimal] :
       {std::pair{0, "0"}, {-5, "-5"}, {640, "640"}, {INT32_MIN, "-2147483648"}}) {
    Obj* obj = makeObj(BUTTON, makeAttr(X, intValue(number)), nullptr);
    char* text = nullptr;
    EXPECT_EQ(GetAttrValueString(obj, X, &text, 0), 1);
    EXPECT_STREQ(text, decimal);
  }
}

TEST_F(ObjectTest, TextOfATokenIsReportedAndNotFound) {
  Obj* obj = makeObj(BUTTON, makeAttr(NAME, tokenValue(NIL)), nullptr);
  char* text = nullptr;
  int found = 1;
  const Outcome outcome = Run([&] { found = GetAttrValueString(obj, NAME, &text, 0); });
  EXPECT_EQ(found, 0);
  EXPECT_EQ(text, nullptr);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, "Don't know how to deal with token types\n");
  EXPECT_NE(obj->attrs, nullptr);
}

TEST_F(ObjectTest, TextConsumesItsAttribute) {
  Obj* obj =
      makeObj(BUTTON, Then(makeAttr(X, intValue(1)), makeAttr(NAME, tokenValue(NIL))), nullptr);
  char* text = nullptr;
  EXPECT_EQ(GetAttrValueString(obj, X, &text, 1), 1);
  EXPECT_EQ(GetAttrValueString(obj, X, &text, 1), 0);
  Run([&] { GetAttrValueString(obj, NAME, &text, 1); });
  EXPECT_EQ(obj->attrs, nullptr);
}

TEST_F(ObjectTest, EmptyListHasNoText) {
  Obj* obj = makeObj(GROUP, makeAttr(MEMBERS, nullptr), nullptr);
  char* text = nullptr;
  EXPECT_EQ(GetAttrValueString(obj, MEMBERS, &text, 0), 0);
}

TEST_F(ObjectTest, TextOfAnIntegerWithoutMemoryEndsTheRun) {
  Obj* obj = makeObj(BUTTON, makeAttr(X, intValue(1)), nullptr);
  char* text = nullptr;
  const Outcome outcome = RunOutOfMemory(0, [&] { GetAttrValueString(obj, X, &text, 0); });
  EXPECT_EQ(outcome.status, -1);
  EXPECT_EQ(outcome.err, "Error: Out of memory in IntToString\n");
}
