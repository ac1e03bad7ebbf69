// SPDX-License-Identifier: MIT
#include "uilfix/reserved_words.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace uilfix {
namespace {

TEST(ReservedWords, AreSortedAndDifferent) {
  const auto words = ReservedWords();
  EXPECT_TRUE(std::is_sorted(words.begin(), words.end()));
  EXPECT_EQ(std::adjacent_find(words.begin(), words.end()), words.end());
}

TEST(ReservedWords, AreFound) {
  for (const auto word : {"list", "value", "widget", "pixels", "in", "iso_latin1", "XmText"}) {
    EXPECT_TRUE(IsReservedWord(word)) << word;
  }
  for (const auto word : {"", "file", "icon", "any", "List", "xmText", "lis", "listx"}) {
    EXPECT_FALSE(IsReservedWord(word)) << word;
  }
}

TEST(ReservedWords, NameForm) {
  for (const auto name : {"a", "_", "$x", "A9_$"}) EXPECT_TRUE(HasNameForm(name)) << name;
  for (const auto name : {"", "9a", "a.b", "a b", "\"a\"", "a-b", "\xE9t\xE9"}) {
    EXPECT_FALSE(HasNameForm(name)) << name;
  }
}

}  // namespace
}  // namespace uilfix
