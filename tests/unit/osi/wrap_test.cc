// SPDX-License-Identifier: MIT
#include "osi/wrap.h"

#include <gtest/gtest.h>

TEST(WrapAdd, AddsAndWrapsAt32Bits) {
  EXPECT_EQ(WrapAdd(2, 3), 5);
  EXPECT_EQ(WrapAdd(-2, 3), 1);
  EXPECT_EQ(WrapAdd(INT32_MAX, 1), INT32_MIN);
  EXPECT_EQ(WrapAdd(INT32_MIN, -1), INT32_MAX);
}

TEST(WrapSub, SubtractsAndWrapsAt32Bits) {
  EXPECT_EQ(WrapSub(2, 3), -1);
  EXPECT_EQ(WrapSub(INT32_MIN, 1), INT32_MAX);
  EXPECT_EQ(WrapSub(0, INT32_MIN), INT32_MIN);
}
