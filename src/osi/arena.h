// SPDX-License-Identifier: MIT
// Storage for everything that lives as long as one conversion: records and the texts they point at.
// Nothing is freed one by one. ArenaReset frees all of it; the program never does so, tests do
// between conversions. Blocks lie side by side without headers, so that an attribute takes little
// more than its fields.
//
// With sanitizers every block is an allocation of its own, so that they catch a write past the end
// of one record.
#ifndef PANDREL_OSI_ARENA_H
#define PANDREL_OSI_ARENA_H

#include <cstddef>
#include <new>

// A block of `size` bytes aligned for any record of ours, uninitialised; null when memory is
// exhausted, which the caller reports.
void* ArenaAlloc(std::size_t size);

// A block of `size` bytes for text, with no alignment; null when memory is exhausted.
char* ArenaTextBlock(std::size_t size);

// A private copy of the first `length` bytes of `text`, NUL-terminated; null when memory is
// exhausted.
char* ArenaText(const char* text, std::size_t length);

// A zeroed record; null when memory is exhausted. Its destructor never runs.
template <typename Record>
Record* ArenaNew() {
  void* block = ArenaAlloc(sizeof(Record));
  return block ? new (block) Record() : nullptr;
}

// The arena as the memory of an allocator (osi/allocator.h), for containers that live as long as
// the conversion. What they outgrow stays in the arena.
struct ArenaMemory {
  static void* Allocate(std::size_t size);  // ends the run when memory is exhausted
  static void Free(void* /*block*/) {}
};

// realloc, outside the arena: the caller frees the block with free(). Null when memory is
// exhausted.
void* TryRealloc(void* block, std::size_t size);

// Frees every block handed out so far.
void ArenaReset();

#endif
