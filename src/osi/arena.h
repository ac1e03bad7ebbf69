// SPDX-License-Identifier: MIT
// Storage for everything that lives as long as one conversion: records and the texts they point at.
// Nothing is freed one by one; ArenaReset gives all of it back at once, which the program itself
// never needs and tests call between conversions. Blocks come out side by side, without a header
// each, so that a file's attributes cost little more than their fields.
//
// Built with sanitizers every block is an allocation of its own, so that a byte written past one
// record is caught instead of landing in the next.
#ifndef PANDREL_OSI_ARENA_H
#define PANDREL_OSI_ARENA_H

#include <cstddef>
#include <new>

// A block of `size` bytes aligned for any record of ours, uninitialised; null when memory is
// exhausted (the caller says in its own words what could not be had).
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

// realloc for a buffer of its own outside the arena, which its user frees; null when memory is
// exhausted.
void* TryRealloc(void* block, std::size_t size);

// Frees every block handed out so far.
void ArenaReset();

#endif
