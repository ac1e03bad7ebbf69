// SPDX-License-Identifier: MIT
#include <string>

#include "gil/object.h"
#include "gil/parser.h"
#include "gil/tokens.h"
#include "unit/support/session_fixture.h"

class OwnersTest : public SessionFixture {
 protected:
  // The forest of a file whose objects hold these attributes, as in "a(b c(d)) e"; an object
  // without a name is "?". What was reported is in `err`.
  std::string Forest(std::initializer_list<const char*> objects) {
    std::string input = "(";
    for (const char* attrs : objects) input += std::string("(:type :button ") + attrs + ")\n";
    err = Run([] { top = yyparse() == 0 ? resolveChildren(gilFile) : nullptr; }, input + ")").err;
    return List(top);
  }

  static std::string List(const Obj* objects) {
    std::string text;
    for (const Obj* obj = objects; obj; obj = obj->next) {
      if (!text.empty()) text += ' ';
      text += obj->name ? obj->name : "?";
      if (obj->children) text.append("(").append(List(obj->children)).append(")");
    }
    return text;
  }

  static inline Obj* top = nullptr;
  std::string err;
};

TEST_F(OwnersTest, NoObjectsGiveNone) { EXPECT_EQ(resolveChildren(nullptr), nullptr); }

TEST_F(OwnersTest, ObjectsWithoutOwnersStayInFileOrder) {
  EXPECT_EQ(Forest({":name a", ":name b", ":name c"}), "a b c");
  EXPECT_EQ(err, "");
}

TEST_F(OwnersTest, NilOwnerIsNone) {
  EXPECT_EQ(Forest({":name a", ":name b :owner nil", ":name c :owner a"}), "a(c) b");
  EXPECT_EQ(err, "");
}

TEST_F(OwnersTest, ChildrenStandInFileOrder) {
  EXPECT_EQ(Forest({":name a", ":name b :owner a", ":name c :owner b", ":name d :owner a"}),
            "a(b(c) d)");
}

TEST_F(OwnersTest, OwnersMayComeLater) {
  EXPECT_EQ(Forest({":name c :owner b", ":name b :owner a", ":name a"}), "a(b(c))");
}

TEST_F(OwnersTest, OrphansAreReportedAndStayAmongTheTopLevel) {
  EXPECT_EQ(Forest({":name a", ":name b :owner x", ":name c", ":name d :owner y"}), "a b c d");
  EXPECT_EQ(err, "Cannot find owner y, ignoring...\nCannot find owner x, ignoring...\n");
}

TEST_F(OwnersTest, OrphansOfOneOwnerAreReportedEach) {
  EXPECT_EQ(Forest({":name a :owner x", ":name b :owner x"}), "a b");
  EXPECT_EQ(err, "Cannot find owner x, ignoring...\nCannot find owner x, ignoring...\n");
}

TEST_F(OwnersTest, NamesAreCaseSensitive) {
  EXPECT_EQ(Forest({":name a", ":name b :owner A"}), "a b");
  EXPECT_EQ(err, "Cannot find owner A, ignoring...\n");
}

TEST_F(OwnersTest, QuotedNamesMatchQuotedOwnersOnly) {
  EXPECT_EQ(Forest({":name \"a\"", ":name b :owner \"a\""}), "\"a\"(b)");
  EXPECT_EQ(Forest({":name \"a\"", ":name b :owner a"}), "\"a\" b");
}

TEST_F(OwnersTest, OfTwoEqualNamesTheLastInTheFileOwns) {
  EXPECT_EQ(Forest({":name a", ":name a", ":name b :owner a"}), "a a(b)");
}

TEST_F(OwnersTest, LastNameOfAnObjectCounts) {
  EXPECT_EQ(Forest({":name a :name b", ":name c :owner b"}), "b(c)");
}

TEST_F(OwnersTest, LastOwnerOfAnObjectCounts) {
  EXPECT_EQ(Forest({":name a", ":name b", ":name c :owner a :owner b"}), "a b(c)");
}

TEST_F(OwnersTest, ObjectThatOwnsItselfDisappearsWithItsChildren) {
  EXPECT_EQ(Forest({":name a :owner a", ":name b :owner a", ":name c"}), "c");
  EXPECT_EQ(err, "");
}

TEST_F(OwnersTest, RingOfOwnersDisappears) {
  EXPECT_EQ(Forest({":name a :owner b", ":name b :owner a"}), "");
}

TEST_F(OwnersTest, ObjectsMayLackAName) {
  EXPECT_EQ(Forest({":x 1", ":name nil", ":name a"}), "? ? a");
}

TEST_F(OwnersTest, NameIsSharedWithItsAttribute) {
  Forest({":name a :x 1"});
  ASSERT_NE(top, nullptr);
  Value* name = nullptr;
  EXPECT_EQ(GetAttrValue(top, 361, &name, 0), 1);
  EXPECT_EQ(top->name, name->sval);
}

TEST_F(OwnersTest, FlatListKeepsTheParsersOrder) {
  Forest({":name a", ":name b :owner a", ":name c"});
  std::string names;
  for (const Obj* obj = gilFile; obj; obj = obj->allNext) names += obj->name;
  EXPECT_EQ(names, "cba");
}

// Once more over what the last pass left at the top level.
TEST_F(OwnersTest, SecondPassGoesByTheNamesThatAreLeft) {
  EXPECT_EQ(Forest({":name p1 :name p2", ":name q :owner p1"}), "p2 q");
  EXPECT_EQ(err, "Cannot find owner p1, ignoring...\n");
  Value* name = nullptr;
  ASSERT_EQ(GetAttrValue(top, 361, &name, 1), 1);
  EXPECT_EQ(Run([] { top = resolveChildren(top); }).err, "");
  EXPECT_EQ(List(top), "p1(q)");
}

TEST_F(OwnersTest, ConsumedNameIsNoName) {
  Forest({":name p", ":name q :owner P"});
  Value* name = nullptr;
  ASSERT_EQ(GetAttrValue(top, 361, &name, 1), 1);
  name->sval[0] = 'P';
  const Outcome outcome = Run([] { top = resolveChildren(top); });
  EXPECT_EQ(outcome.err, "Cannot find owner P, ignoring...\n");
  // The list was in file order this time, and so is reversed.
  EXPECT_EQ(List(top), "q ?");
}

// Only a text that was changed can be empty.
TEST_F(OwnersTest, EmptyOwnerIsTheObjectWithoutAName) {
  Forest({":x 1", ":name q :owner P"});
  Obj* q = top->next;
  Value* owner = nullptr;
  ASSERT_EQ(GetAttrValue(q, OWNER, &owner, 0), 1);
  owner->sval[0] = '\0';
  EXPECT_EQ(Run([] { top = resolveChildren(top); }).err, "");
  EXPECT_EQ(List(top), "?(q)");
}

TEST_F(OwnersTest, ChangedNameIsTakenAsItStands) {
  Forest({":name p", ":name q :owner P"});
  top->name[0] = 'P';
  EXPECT_EQ(Run([] { top = resolveChildren(top); }).err, "");
  EXPECT_EQ(List(top), "P(q)");
}
