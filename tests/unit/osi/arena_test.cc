// SPDX-License-Identifier: MIT
#include "osi/arena.h"
#include "osi/arena_testing.h"
#include "osi/by_text.h"

#include <gtest/gtest.h>
#include <malloc.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace {

class ArenaTest : public testing::Test {
 protected:
  ~ArenaTest() override { ArenaReset(); }
};

bool IsAligned(const void* block) {
  return reinterpret_cast<std::uintptr_t>(block) % alignof(void*) == 0;
}

TEST_F(ArenaTest, BlocksAreAlignedWhateverTextsComeBetween) {
  for (std::size_t size = 1; size < 40; ++size) {
    EXPECT_TRUE(IsAligned(ArenaAlloc(size))) << size;
    ASSERT_NE(ArenaText("abcdefghijklmnopqrstuvwxyz", size % 26), nullptr);
  }
}

struct Record {
  Record* next;
  int number;
  char text[9];
};

TEST_F(ArenaTest, RecordsAreZeroed) {
  std::memset(ArenaAlloc(1000), 0xff, 1000);
  ArenaReset();
  auto* record = ArenaNew<Record>();
  ASSERT_NE(record, nullptr);
  EXPECT_EQ(record->next, nullptr);
  EXPECT_EQ(record->number, 0);
  EXPECT_EQ(std::string(record->text, 9), std::string(9, '\0'));
}

TEST_F(ArenaTest, TextIsAPrivateTerminatedCopyOfItsFirstBytes) {
  char original[] = "button_label";
  char* copy = ArenaText(original, 6);
  original[0] = 'B';
  EXPECT_STREQ(copy, "button");
  EXPECT_STREQ(ArenaText(nullptr, 0), "");
  EXPECT_EQ(std::memcmp(ArenaText("a\0b", 3), "a\0b", 4), 0);
}

// Many records and texts of all sizes, over several chunks, checked only when all are written.
TEST_F(ArenaTest, BlocksDoNotOverlap) {
  struct Written {
    unsigned char* block;
    std::size_t size;
    unsigned char byte;
  };
  std::vector<Written> all;
  for (unsigned i = 0; i < 5000; ++i) {
    std::size_t size = i * 37 % 500 + 1;
    void* block = i % 2 == 0 ? ArenaAlloc(size) : ArenaTextBlock(size);
    ASSERT_NE(block, nullptr);
    auto byte = static_cast<unsigned char>(i);
    std::memset(block, byte, size);
    all.push_back({static_cast<unsigned char*>(block), size, byte});
  }
  for (const Written& written : all) {
    ASSERT_EQ(std::string(written.block, written.block + written.size),
              std::string(written.size, static_cast<char>(written.byte)));
  }
}

TEST_F(ArenaTest, BlocksMayBeLargerThanAChunk) {
  const std::size_t size = 3 << 20;
  auto* record = static_cast<char*>(ArenaAlloc(size));
  char* text = ArenaTextBlock(size + 1);
  ASSERT_NE(record, nullptr);
  ASSERT_NE(text, nullptr);
  std::memset(record, 1, size);
  std::memset(text, 2, size + 1);
  EXPECT_EQ(record[size - 1], 1);
  EXPECT_EQ(text[0], 2);
  EXPECT_STREQ(ArenaText("still here", 10), "still here");
}

TEST_F(ArenaTest, FailsAfterTheGivenNumberOfRequests) {
  ArenaFailAfter(2);
  EXPECT_NE(ArenaAlloc(8), nullptr);
  EXPECT_NE(ArenaText("a", 1), nullptr);
  EXPECT_EQ(ArenaAlloc(8), nullptr);
  EXPECT_EQ(ArenaTextBlock(8), nullptr);
  EXPECT_EQ(ArenaText("a", 1), nullptr);
  EXPECT_EQ(ArenaNew<Record>(), nullptr);
  ArenaFailAfter(-1);
  EXPECT_NE(ArenaAlloc(8), nullptr);
}

TEST_F(ArenaTest, ContainersTakeTheirMemoryFromIt) {
  ByText<int, ArenaMemory> numbers;
  numbers["one"] = 1;
  EXPECT_EQ(numbers["one"], 1);
  EXPECT_EXIT((ArenaFailAfter(0), numbers["two"] = 2), testing::ExitedWithCode(255),
              "Error: Out of memory in ArenaMemory\n");
  numbers.clear();
  ArenaFailAfter(0);
  EXPECT_EXIT(numbers["one"] = 1, testing::ExitedWithCode(255), "Out of memory")
      << "what the container gave back is used again";
}

TEST_F(ArenaTest, ResetLiftsTheLimitAndMayBeRepeated) {
  ArenaFailAfter(0);
  EXPECT_EQ(ArenaAlloc(8), nullptr);
  ArenaReset();
  ArenaReset();
  EXPECT_NE(ArenaAlloc(8), nullptr);
}

TEST_F(ArenaTest, ResetGivesTheMemoryBack) {
  // The allocator maps a block of this size by itself, and counts it.
  const std::size_t before = mallinfo2().hblkhd;
  EXPECT_NE(ArenaAlloc(100'000'000), nullptr);
  EXPECT_NE(ArenaAlloc(100'000'000), nullptr);
  ArenaReset();
  EXPECT_EQ(mallinfo2().hblkhd, before);
}

#ifndef PANDREL_SANITIZED  // the sanitizer's allocator ends the program for such a size
TEST_F(ArenaTest, GivesNullWhenMemoryIsExhausted) {
  EXPECT_EQ(ArenaAlloc(SIZE_MAX / 2), nullptr);
  EXPECT_EQ(ArenaTextBlock(SIZE_MAX / 2), nullptr);
  EXPECT_STREQ(ArenaText("still here", 10), "still here");
}
#endif

}  // namespace
