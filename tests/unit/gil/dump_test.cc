// SPDX-License-Identifier: MIT
#include "gil/dump.h"

#include <cstring>
#include <string>

#include "gil/object.h"
#include "gil/parser.h"
#include "gil/scanner.h"
#include "gil/tokens.h"
#include "unit/support/session_fixture.h"

class DumpTest : public SessionFixture {
 protected:
  static std::string Dump(const Obj* objects) {
    const Outcome outcome = Run([objects] { generate(objects); });
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.status, std::nullopt);
    return outcome.err;
  }

  // The dump of a file with owners resolved.
  static std::string DumpFile(const char* input) {
    SetInput(input);
    EXPECT_EQ(yyparse(), 0);
    return Dump(resolveChildren(gilFile));
  }

  // The dump of a button's only attribute.
  static std::string DumpAttr(int32_t name, Value* value) {
    return Dump(makeObj(BUTTON, makeAttr(name, value), nullptr));
  }
};

static Value* OfKind(int32_t kind, const char* text) {
  Value* value = stringValue(1, text, std::strlen(text));
  value->kind = kind;
  return value;
}

TEST_F(DumpTest, NothingPrintsNothing) { EXPECT_EQ(Dump(nullptr), ""); }

TEST_F(DumpTest, ObjectIsNamedByItsKeyword) {
  EXPECT_EQ(Dump(makeObj(BASE_WINDOW, nullptr, nullptr)), "Obj: base-window\n");
}

TEST_F(DumpTest, ValuesPrintByTheirKind) {
  EXPECT_EQ(DumpAttr(LABEL, OfKind(1, "\"a b\"")), "Obj: button\n\tlabel: (\"a b\" )\n");
  EXPECT_EQ(DumpAttr(X, intValue(-5)), "Obj: button\n\tx: (-5 )\n");
  EXPECT_EQ(DumpAttr(INITIAL_STATE, tokenValue(INACTIVE)),
            "Obj: button\n\tinitial-state: (inactive )\n");
  EXPECT_EQ(DumpAttr(PINNED, tokenValue(T)), "Obj: button\n\tpinned: (T )\n");
  EXPECT_EQ(DumpAttr(OWNER, tokenValue(NIL)), "Obj: button\n\towner: (NIL )\n");
}

TEST_F(DumpTest, IdentifierKindWouldPrintAsId) {
  EXPECT_EQ(DumpAttr(NAME, OfKind(3, "a")), "Obj: button\n\tname: (ID:a )\n");
}

TEST_F(DumpTest, UnknownKindIsToldAndTheListGoesOn) {
  Value* list = createValue(9);
  list->next = intValue(1);
  EXPECT_EQ(DumpAttr(X, list), "Obj: button\n\tx: (Illegal value type: 9\n1 )\n");
}

TEST_F(DumpTest, StringWithoutATextPrintsAsAnEmptyOne) {
  EXPECT_EQ(DumpAttr(LABEL, createValue(kStringValue)), "Obj: button\n\tlabel: ( )\n");
  EXPECT_EQ(DumpAttr(LABEL, createValue(3)), "Obj: button\n\tlabel: (ID: )\n");
}

TEST_F(DumpTest, NullValuePrintsNothingBetweenTheParentheses) {
  EXPECT_EQ(DumpAttr(USER_DATA, nullptr), "Obj: button\n\tuser-data: ()\n");
}

TEST_F(DumpTest, ListsPrintAsTheyAreHeld) {
  EXPECT_EQ(DumpFile("((:type :setting :choices (\"a\" \"b\") :members (a b)))"),
            "Obj: setting\n\tmembers: (a b )\n\tchoices: (\"b\" \"a\" )\n");
}

TEST_F(DumpTest, ChildrenStandOneTabFurtherIn) {
  EXPECT_EQ(DumpFile("((:type :base-window :name a)(:type :button :name b :owner a)"
                     "(:type :menu :name c))"),
            "Obj: base-window\n\tname: (a )\n"
            "\tObj: button\n\t\towner: (a )\n\t\tname: (b )\n"
            "Obj: menu\n\tname: (c )\n");
}

TEST_F(DumpTest, ActionsPrintTheirSixFields) {
  EXPECT_EQ(DumpFile("((:type :button :name a :actions ((:from (w a) :when (Notify) :to ()"
                     " :function_type :user_defined :arg_type (:void :string) :action (f nil)))))"),
            "Obj: button\n\tname: (a )\n\tAction:\n"
            "\t\tfrom: w a \n\t\twhen: Notify \n\t\tto: \n\t\tfunc_type: user_defined \n"
            "\t\targ_type: string void \n\t\taction_name: f NIL \n");
}

TEST_F(DumpTest, DepthIsTheSameForTheNextDump) {
  const Obj* obj = makeObj(MENU, nullptr, nullptr);
  EXPECT_EQ(Dump(obj), Dump(obj));
}

TEST_F(DumpTest, RecordsStayAsTheyAre) {
  const std::string first = DumpFile("((:type :button :name a :x 1))");
  EXPECT_EQ(Dump(gilFile), first);
}

TEST_F(DumpTest, TypeWithoutAKeywordIsReportedBeforeItsLine) {
  EXPECT_EQ(Dump(makeObj(PROJECT, nullptr, nullptr)),
            "\n*** 1: Internal error: Can't find keyword in table at \nObj: ?\n");
}

TEST_F(DumpTest, KeywordNameHasNoColon) {
  EXPECT_STREQ(KeywordName(BASE_WINDOW), "base-window");
  EXPECT_STREQ(KeywordName(VOID_TOK), "void");
}

TEST_F(DumpTest, TokenWithoutAKeywordIsReportedWithTheCurrentToken) {
  SetInput("\nhere");
  yylex();
  const char* text = "";
  const Outcome outcome = Run([&text] { text = KeywordName(PROJECT); });
  EXPECT_EQ(text, nullptr);
  EXPECT_EQ(outcome.err, "\n*** 2: Internal error: Can't find keyword in table at here\n");
}
