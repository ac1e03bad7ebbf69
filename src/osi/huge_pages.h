// SPDX-License-Identifier: MIT
// Large blocks on huge pages. What a large file becomes is visited in no order of addresses, and
// with small pages half the time of each visit went to finding the page.
#ifndef PANDREL_OSI_HUGE_PAGES_H
#define PANDREL_OSI_HUGE_PAGES_H

#include <sys/mman.h>

#include <cstddef>
#include <cstdint>
#include <new>

constexpr std::size_t kHugePageSize = 2 * 1024 * 1024;

// Asks for huge pages below a block that begins at a multiple of kHugePageSize. A wish: where the
// kernel does not grant it, small pages do.
inline void WantHugePages(void* block, std::size_t size) {
  madvise(block, size / kHugePageSize * kHugePageSize, MADV_HUGEPAGE);
}

// NOLINTBEGIN(bugprone-sizeof-expression): lists of pointers are what is kept here.

// The standard allocator, but for blocks that fill a huge page. Fails as operator new does.
template <typename T>
struct HugePageAllocator {
  using value_type = T;

  HugePageAllocator() = default;
  template <typename U>
  HugePageAllocator(const HugePageAllocator<U>& /*other*/) {}

  T* allocate(std::size_t count) {
    if (count > std::size_t{PTRDIFF_MAX} / sizeof(T)) throw std::bad_array_new_length();
    const std::size_t size = count * sizeof(T);
    if (size < kHugePageSize) return static_cast<T*>(::operator new(size));
    void* block = ::operator new(size, std::align_val_t(kHugePageSize));
    WantHugePages(block, size);
    return static_cast<T*>(block);
  }

  void deallocate(T* block, std::size_t count) {
    if (count * sizeof(T) < kHugePageSize) {
      ::operator delete(block);
    } else {
      ::operator delete(block, std::align_val_t(kHugePageSize));
    }
  }

  template <typename U>
  bool operator==(const HugePageAllocator<U>& /*other*/) const {
    return true;
  }
};

// NOLINTEND(bugprone-sizeof-expression)

#endif
