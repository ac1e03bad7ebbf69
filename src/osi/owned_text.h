// SPDX-License-Identifier: MIT
// Smart pointers and containers of the standard library over OsiMalloc memory, so that an exhausted
// heap ends the run as OsiMalloc does.
#ifndef PANDREL_OSI_OWNED_TEXT_H
#define PANDREL_OSI_OWNED_TEXT_H

#include <cstddef>
#include <memory>

#include "osi/memory.h"

struct OsiDeleter {
  void operator()(void* block) const { OsiFree(block); }
};

// Frees a text of OsiMalloc memory with its holder.
using OsiOwnedText = std::unique_ptr<char, OsiDeleter>;

// An allocator over OsiMalloc and OsiFree.
template <typename T>
struct OsiAllocator {
  using value_type = T;

  OsiAllocator() = default;
  template <typename U>
  explicit(false) OsiAllocator(const OsiAllocator<U>& /*other*/) {}

  T* allocate(std::size_t count) {
    // T may be a pointer, as in the buckets of a hash table.
    return static_cast<T*>(OsiMalloc(count * sizeof(T)));  // NOLINT(bugprone-sizeof-expression)
  }
  void deallocate(T* block, std::size_t /*count*/) { OsiFree(block); }

  template <typename U>
  bool operator==(const OsiAllocator<U>& /*other*/) const {
    return true;
  }
};

#endif
