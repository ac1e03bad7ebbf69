// SPDX-License-Identifier: MIT
// An allocator for containers of the standard library.
#ifndef PANDREL_OSI_ALLOCATOR_H
#define PANDREL_OSI_ALLOCATOR_H

#include <cstddef>

// `Memory` has two static functions: Allocate(size), whose result is never null, and Free(block).
template <typename T, typename Memory>
struct Allocator {
  using value_type = T;

  Allocator() = default;
  template <typename U>
  explicit(false) Allocator(const Allocator<U, Memory>& /*other*/) {}

  T* allocate(std::size_t count) {
    // T may be a pointer, as in the buckets of a hash table.
    return static_cast<T*>(
        Memory::Allocate(count * sizeof(T)));  // NOLINT(bugprone-sizeof-expression)
  }
  void deallocate(T* block, std::size_t /*count*/) { Memory::Free(block); }

  template <typename U>
  bool operator==(const Allocator<U, Memory>& /*other*/) const {
    return true;
  }
};

#endif
