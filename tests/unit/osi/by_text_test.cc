// SPDX-License-Identifier: MIT
#include "osi/by_text.h"

#include <gtest/gtest.h>

#include <string>

#include "osi/owned_text.h"

TEST(ByText, FindsAKeyByItsBytes) {
  ByText<int, OsiMemory> numbers;
  numbers["button"] = 7;
  const std::string copy = "button";
  ASSERT_TRUE(numbers.contains(copy));
  EXPECT_EQ(numbers[copy], 7);
  EXPECT_FALSE(numbers.contains("butto"));
  EXPECT_FALSE(numbers.contains("Button"));
}

TEST(ByText, KeyIsAViewOfTheHoldersText) {
  ByText<int, OsiMemory> numbers;
  const char text[] = "button";
  numbers[text] = 7;
  EXPECT_EQ(numbers.begin()->first.data(), text);
}
