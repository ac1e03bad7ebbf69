// SPDX-License-Identifier: MIT
#include "osi/text_map.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace {

TEST(TextMap, FindsByTheTextNotByItsPlace) {
  TextMap<int> map;
  const char key[] = "name";
  map.emplace(key, 7);
  const std::string same = "name";
  EXPECT_EQ(map.find(same.c_str())->second, 7);
  EXPECT_EQ(map.find(std::string_view("names").substr(0, 4))->second, 7);
  EXPECT_EQ(map.find("names"), map.end());
  EXPECT_EQ(map.find("Name"), map.end());
}

TEST(TextMap, FirstOfEqualKeysStays) {
  TextMap<int> map;
  EXPECT_TRUE(map.emplace("a", 1).second);
  EXPECT_FALSE(map.emplace(std::string("a").c_str(), 2).second);
  EXPECT_EQ(map.find("a")->second, 1);
}

TEST(TextMap, NullIsTheEmptyText) {
  TextMap<int> map;
  map.emplace(static_cast<const char*>(nullptr), 3);
  EXPECT_EQ(map.find("")->second, 3);
  EXPECT_EQ(map.find(std::string_view())->second, 3);
  EXPECT_FALSE(map.emplace("", 4).second);
}

TEST(TextMap, HoldsManyTexts) {
  std::vector<std::string> texts;
  for (int i = 0; i < 100'000; ++i) texts.push_back("text" + std::to_string(i));
  TextMap<std::size_t> map;
  for (std::size_t i = 0; i < texts.size(); ++i) map.emplace(texts[i].c_str(), i);
  EXPECT_EQ(map.size(), texts.size());
  for (std::size_t i = 0; i < texts.size(); ++i) {
    ASSERT_EQ(map.find(std::string(texts[i]).c_str())->second, i);
  }
  EXPECT_EQ(map.find("text100000"), map.end());
}

TEST(TextSet, HoldsEachTextOnce) {
  TextSet set;
  EXPECT_TRUE(set.insert("a").second);
  EXPECT_FALSE(set.insert(std::string("a").c_str()).second);
  EXPECT_TRUE(set.insert(nullptr).second);
  EXPECT_EQ(set.count(""), 1U);
}

}  // namespace
