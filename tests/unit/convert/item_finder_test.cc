// SPDX-License-Identifier: MIT
#include "convert/item_finder.h"

#include <gtest/gtest.h>

#include <string>

#include "gil/scanner.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/links.h"
#include "widget/tree.h"

namespace {

using ItemFinderTest = SessionFixture;

// A row of that many items, labelled "0", "1", ...; each third has a glyph "g0", "g1", ... as well.
Widg* Row(int items) {
  Widg* row = NewWidg("XmRowColumn", "row");
  for (int i = 0; i < items; ++i) {
    Widg* item = NewWidg("XmPushButton", "item");
    AddResource(item, "XmNlabelString", Writable(std::to_string(i)));
    if (i % 3 == 0) {
      AddResource(item, "XmNoriginalPixmapName", Writable("g" + std::to_string(i / 3)));
    }
    AddChildWidg(row, item);
  }
  return row;
}

// The label of what is found, or "none".
std::string Found(ItemFinder* items, const std::string& text) {
  const Widg* item = items->Find(text.c_str());
  return item ? GetResourceValue(item, "XmNlabelString") : "none";
}

TEST_F(ItemFinderTest, FindsByLabelOrGlyph) {
  ItemFinder items(Row(4));
  EXPECT_EQ(Found(&items, "2"), "2");
  EXPECT_EQ(Found(&items, "g1"), "3");
  EXPECT_EQ(Found(&items, "4"), "none");
}

TEST_F(ItemFinderTest, FindsTheSameHoweverOftenItIsAsked) {
  for (const bool repeated : {false, true}) {
    texts_are_repeated = repeated;
    ItemFinder items(Row(120));
    for (int i = 0; i < 120; ++i) {
      EXPECT_EQ(Found(&items, std::to_string(i)), std::to_string(i));
      EXPECT_EQ(Found(&items, "g" + std::to_string(i)),
                i < 40 ? std::to_string(i * 3) : std::string("none"));
    }
  }
}

TEST_F(ItemFinderTest, FindsTheFirstOfEqualOnesBeforeAndAfterManyQuestions) {
  Widg* row = Row(50);
  Widg* first = row->child->next;
  for (Widg* item = first; item; item = item->next) AddResource(item, "XmNlabelString", "same");
  ItemFinder items(row);
  for (int i = 0; i < 1000; ++i) {
    ASSERT_EQ(items.Find("same"), first);
    ASSERT_EQ(items.Find("nowhere"), nullptr);
  }
}

// A missing label is the empty text, and so is a null one.
TEST_F(ItemFinderTest, EmptyTextFindsAnItemWithoutAGlyph) {
  Widg* row = Row(60);
  ItemFinder items(row);
  for (int i = 0; i < 100; ++i) {
    ASSERT_EQ(items.Find(""), row->child->next);
    ASSERT_EQ(items.Find(nullptr), row->child->next);
    ASSERT_EQ(items.Find("nowhere"), nullptr);
  }
}

// A text that is changed in place while the items are asked for is found as it is now.
TEST_F(ItemFinderTest, RepeatedTextsMayChangeMeanwhile) {
  texts_are_repeated = true;
  Widg* row = Row(60);
  char label[] = "name1";
  AddResource(row->child, "XmNlabelString", label);
  ItemFinder items(row);
  for (int i = 0; i < 100; ++i) ASSERT_EQ(items.Find("name1"), row->child);
  for (int i = 0; i < 100; ++i) ASSERT_EQ(items.Find("nowhere"), nullptr);
  label[4] = 'A';
  EXPECT_EQ(items.Find("name1"), nullptr);
  EXPECT_EQ(items.Find("nameA"), row->child);
}

TEST_F(ItemFinderTest, NoChildrenHoldNothing) {
  Widg* alone = NewWidg("XmRowColumn", "row");
  ItemFinder items(alone);
  EXPECT_EQ(items.Find(""), nullptr);
}

}  // namespace
