// SPDX-License-Identifier: MIT
// Smart pointers and containers of the standard library over OsiMalloc memory, so that an exhausted
// heap ends the run as OsiMalloc does.
#ifndef PANDREL_OSI_OWNED_TEXT_H
#define PANDREL_OSI_OWNED_TEXT_H

#include <cstddef>
#include <memory>

#include "osi/allocator.h"
#include "osi/memory.h"

struct OsiDeleter {
  void operator()(void* block) const { OsiFree(block); }
};

// Frees a text of OsiMalloc memory with its holder.
using OsiOwnedText = std::unique_ptr<char, OsiDeleter>;

// OsiMalloc as the memory of an allocator.
struct OsiMemory {
  static void* Allocate(std::size_t size) { return OsiMalloc(size); }
  static void Free(void* block) { OsiFree(block); }
};

template <typename T>
using OsiAllocator = Allocator<T, OsiMemory>;

#endif
