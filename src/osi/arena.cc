// SPDX-License-Identifier: MIT
#include "osi/arena.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "osi/huge_pages.h"

ArenaFree arena_free = {nullptr, nullptr};

namespace {

#ifdef PANDREL_SANITIZED
constexpr bool kOneBlockAChunk = true;
#else
constexpr bool kOneBlockAChunk = false;
#endif
// The first chunk is for the ordinary file. Each further one is four times as large, up to a size
// that the kernel can back by huge pages: in large files the first touch of small ones took as long
// as the parser.
constexpr std::size_t kFirstChunkSize = 256 * 1024;

// Chunks are linked through their headers only so that ArenaReset finds them.
struct Chunk {
  Chunk* previous;
};

struct ArenaState {
  Chunk* last = nullptr;
  // While requests are counted, the free part of the current chunk waits here, so that every
  // request takes the long way.
  ArenaFree waiting = {nullptr, nullptr};
  long successes_left = -1;
  bool first_chunk_taken = false;
  std::size_t chunk_size = kFirstChunkSize;  // of the next one from the heap
};

ArenaState state;

// Makes a block from the heap a chunk and returns what it has to give; null for null.
char* AddChunk(void* block) {
  if (!block) return nullptr;
  auto* chunk = static_cast<Chunk*>(block);
  chunk->previous = state.last;
  state.last = chunk;
  return reinterpret_cast<char*>(chunk + 1);
}

// A new chunk that holds `size` bytes; null when memory is exhausted.
char* NewChunk(std::size_t size) {
  if (size > SIZE_MAX - sizeof(Chunk)) return nullptr;
  return AddChunk(std::malloc(sizeof(Chunk) + size));
}

// The same in a huge page of its own, which its header is a part of.
char* NewHugeChunk() {
  void* block = std::aligned_alloc(kHugePageSize, kHugePageSize);
  if (block) WantHugePages(block, kHugePageSize);
  return AddChunk(block);
}

// Whether another request may be served.
bool CountRequest() {
  if (state.successes_left < 0) return true;
  if (state.successes_left == 0) return false;
  --state.successes_left;
  return true;
}

// A block of a chunk of its own.
char* AllocAlone(std::size_t size) { return CountRequest() ? NewChunk(size) : nullptr; }

// Where an ordinary file fits as a whole: part of the program, so that it need not be asked for.
alignas(void*) char first_chunk[kFirstChunkSize];

// Makes a new chunk the current one. What was left of the former one is given up: less than the
// block that did not fit.
bool StartChunk() {
  std::size_t room = state.chunk_size;
  char* start = nullptr;
  if (!state.first_chunk_taken) {
    state.first_chunk_taken = true;
    start = first_chunk;
  } else if (state.chunk_size < kHugePageSize) {
    start = NewChunk(room);
    state.chunk_size *= 4;
  } else {
    room = kHugePageSize - sizeof(Chunk);
    start = NewHugeChunk();
  }
  if (!start) {
    // Memory is short: perhaps there is some left for less.
    room = kFirstChunkSize;
    start = NewChunk(room);
  }
  if (!start) return false;
  arena_free = {start, start + room};
  return true;
}

bool WantsChunkOfItsOwn(std::size_t size) {
  return kOneBlockAChunk || state.successes_left >= 0 || size > kFirstChunkSize / 16;
}

}  // namespace

void* ArenaAllocSlowly(std::size_t size) {
  if (WantsChunkOfItsOwn(size)) return AllocAlone(size);
  return StartChunk() ? ArenaAlloc(size) : nullptr;
}

char* ArenaTextBlockSlowly(std::size_t size) {
  if (WantsChunkOfItsOwn(size)) return AllocAlone(size);
  return StartChunk() ? ArenaTextBlock(size) : nullptr;
}

char* ArenaText(const char* text, std::size_t length) {
  if (length == SIZE_MAX) return nullptr;
  char* copy = ArenaTextBlock(length + 1);
  if (!copy) return nullptr;
  if (length > 0) std::memcpy(copy, text, length);
  copy[length] = '\0';
  return copy;
}

void* TryRealloc(void* block, std::size_t size) {
  return CountRequest() ? std::realloc(block, size) : nullptr;
}

void ArenaReset() {
  while (state.last) {
    Chunk* previous = state.last->previous;
    std::free(state.last);
    state.last = previous;
  }
  state = ArenaState();
  arena_free = {nullptr, nullptr};
}

void ArenaFailAfter(long successes) {
  if (state.successes_left < 0 && successes >= 0) {
    state.waiting = arena_free;
    arena_free = {nullptr, nullptr};
  } else if (state.successes_left >= 0 && successes < 0) {
    arena_free = state.waiting;
  }
  state.successes_left = successes;
}
