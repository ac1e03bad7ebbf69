// SPDX-License-Identifier: MIT
#include "osi/huge_pages.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <new>
#include <vector>

namespace {

TEST(HugePageAllocator, LargeBlocksBeginAtAHugePage) {
  HugePageAllocator<char> allocator;
  const std::size_t size = kHugePageSize + 5;
  char* block = allocator.allocate(size);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % kHugePageSize, 0U);
  block[0] = block[size - 1] = 'x';
  allocator.deallocate(block, size);
}

TEST(HugePageAllocator, VectorsGrowFromSmallToLargeBlocks) {
  std::vector<int, HugePageAllocator<int>> numbers;
  const int count = 1'000'000;
  for (int i = 0; i < count; ++i) numbers.push_back(i);
  EXPECT_EQ(numbers.front(), 0);
  EXPECT_EQ(numbers[count / 2], count / 2);
  EXPECT_EQ(numbers.back(), count - 1);
}

TEST(HugePageAllocator, SizeThatCannotBeIsRefused) {
  HugePageAllocator<int64_t> allocator;
  EXPECT_THROW(allocator.allocate(SIZE_MAX / 4), std::bad_array_new_length);
}

TEST(HugePageAllocator, AllAreEqual) {
  EXPECT_TRUE(HugePageAllocator<int>() == HugePageAllocator<char>());
}

}  // namespace
