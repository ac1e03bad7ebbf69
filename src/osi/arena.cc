// SPDX-License-Identifier: MIT
#include "osi/arena.h"

#include <sys/mman.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "osi/arena_testing.h"
#include "osi/fatal.h"

namespace {

constexpr std::size_t kHugePageSize = 2 * 1024 * 1024;  // as on most machines

// An ordinary file needs the first chunk or two. A large file uses whole chunks of the size of a
// huge page: ordinary pages, each at its first use, take a sixth of the time of a 4 MB file.
#ifdef PANDREL_SANITIZED
constexpr std::size_t kFirstChunkSize = 0;
constexpr std::size_t kLargeChunkSize = 0;
#else
constexpr std::size_t kFirstChunkSize = 256 * 1024;
constexpr std::size_t kLargeChunkSize = kHugePageSize;
#endif
constexpr std::size_t kAlignment = alignof(void*);

// The links are for ArenaReset.
struct Chunk {
  Chunk* previous;
};

struct Arena {
  Chunk* last = nullptr;
  // The free part of the current chunk. Records come from its start and texts, which need no
  // alignment, from its end, so that no padding is lost between them.
  char* start = nullptr;
  char* end = nullptr;
  long successes_left = -1;
};

Arena arena;

// Whether a test lets another request succeed.
bool CountRequest() {
  if (arena.successes_left < 0) return true;
  if (arena.successes_left == 0) return false;
  --arena.successes_left;
  return true;
}

// Memory for a chunk; where the kernel has one, a huge page for a large one. Asks for all of its
// pages at once. If the kernel refuses, each page comes when it is touched.
void* AllocateChunk(std::size_t size) {
  if (size != kHugePageSize) return std::malloc(size);
  void* chunk = std::aligned_alloc(kHugePageSize, size);
  if (!chunk) return nullptr;
  madvise(chunk, size, MADV_HUGEPAGE);
  madvise(chunk, size, MADV_POPULATE_WRITE);
  return chunk;
}

// Makes sure that `size` bytes are free. Gives up the rest of a chunk that has too few.
bool MakeRoom(std::size_t size) {
  if (!CountRequest()) return false;
  if (size <= static_cast<std::size_t>(arena.end - arena.start)) return true;
  const std::size_t usual = arena.last ? kLargeChunkSize : kFirstChunkSize;
  if (size > SIZE_MAX - sizeof(Chunk)) return false;
  const std::size_t needed = std::max(sizeof(Chunk) + size, usual);
  auto* chunk = static_cast<Chunk*>(AllocateChunk(needed));
  if (!chunk) return false;
  chunk->previous = arena.last;
  arena.last = chunk;
  arena.start = reinterpret_cast<char*>(chunk + 1);
  arena.end = reinterpret_cast<char*>(chunk) + needed;
  return true;
}

}  // namespace

void* ArenaAlloc(std::size_t size) {
  if (size > SIZE_MAX - kAlignment) return nullptr;
  const std::size_t rounded = (size + kAlignment - 1) / kAlignment * kAlignment;
  if (!MakeRoom(rounded)) return nullptr;
  char* block = arena.start;
  arena.start += rounded;
  return block;
}

char* ArenaTextBlock(std::size_t size) {
  if (!MakeRoom(size)) return nullptr;
  arena.end -= size;
  return arena.end;
}

char* ArenaText(const char* text, std::size_t length) {
  if (length == SIZE_MAX) return nullptr;
  char* copy = ArenaTextBlock(length + 1);
  if (!copy) return nullptr;
  if (length > 0) std::memcpy(copy, text, length);
  copy[length] = '\0';
  return copy;
}

void* ArenaMemory::Allocate(std::size_t size) {
  void* block = ArenaAlloc(size);
  if (!block) Error("Out of memory in ArenaMemory");
  return block;
}

void* TryRealloc(void* block, std::size_t size) {
  return CountRequest() ? std::realloc(block, size) : nullptr;
}

void ArenaReset() {
  while (arena.last) {
    Chunk* previous = arena.last->previous;
    std::free(arena.last);
    arena.last = previous;
  }
  arena = Arena();
}

void ArenaFailAfter(long successes) { arena.successes_left = successes; }
