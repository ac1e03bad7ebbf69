// SPDX-License-Identifier: MIT
#include "osi/memory.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

TEST(OsiMalloc, GivesNullForNothing) { EXPECT_EQ(OsiMalloc(0), nullptr); }

TEST(OsiMalloc, GivesWritableMemory) {
  void* block = OsiMalloc(100);
  ASSERT_NE(block, nullptr);
  std::memset(block, 7, 100);
  OsiFree(block);
}

TEST(OsiZalloc, ClearsTheBlock) {
  auto* block = static_cast<unsigned char*>(OsiZalloc(1000));
  ASSERT_NE(block, nullptr);
  EXPECT_EQ(std::count(block, block + 1000, 0), 1000);
  OsiFree(block);
}

TEST(OsiZalloc, GivesNullForNothing) { EXPECT_EQ(OsiZalloc(0), nullptr); }

TEST(OsiRealloc, KeepsTheContents) {
  auto* block = static_cast<char*>(OsiMalloc(4));
  std::memcpy(block, "abc", 4);
  block = static_cast<char*>(OsiRealloc(block, 100000));
  EXPECT_STREQ(block, "abc");
  OsiFree(block);
}

TEST(OsiRealloc, MakesABlockFromNull) {
  void* block = OsiRealloc(nullptr, 10);
  ASSERT_NE(block, nullptr);
  std::memset(block, 0, 10);
  OsiFree(block);
}

TEST(OsiRealloc, LeavesTheBlockAloneForNothing) {
  auto* block = static_cast<char*>(OsiMalloc(4));
  std::memcpy(block, "abc", 4);
  EXPECT_EQ(OsiRealloc(block, 0), nullptr);
  EXPECT_STREQ(block, "abc");
  OsiFree(block);
}

TEST(OsiFree, AllowsNull) { OsiFree(nullptr); }

// Sizes that the toolkit's Cardinal cannot hold must not come out as what is left of them.
TEST(OsiMallocDeathTest, EndsTheProgramForASizeBeyondTheToolkits) {
  const std::size_t size = (std::size_t{1} << 32) + 1;
  EXPECT_EXIT(OsiMalloc(size), testing::ExitedWithCode(1), "^Error: Cannot perform malloc\n$");
  EXPECT_EXIT(OsiZalloc(size), testing::ExitedWithCode(1), "^Error: Cannot perform malloc\n$");
  EXPECT_EXIT(OsiRealloc(nullptr, size), testing::ExitedWithCode(1),
              "^Error: Cannot perform realloc\n$");
}

#ifndef PANDREL_SANITIZED  // the sanitizer's allocator ends the program in its own way
static void ExhaustHeap() {
  const rlimit little = {64 << 20, 64 << 20};
  setrlimit(RLIMIT_AS, &little);
  OsiMalloc(std::size_t{1} << 30);
}

TEST(OsiMallocDeathTest, EndsTheProgramWhenTheHeapIsExhausted) {
  EXPECT_EXIT(ExhaustHeap(), testing::ExitedWithCode(1), "Cannot perform malloc");
}
#endif
