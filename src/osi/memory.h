// SPDX-License-Identifier: MIT
// The allocator behind names, growing buffers and the other Osi functions: the X Toolkit's. An
// exhausted heap ends the program with the toolkit's own message, so the result for a size above 0
// is never null and callers do not test it. The records of a conversion are in arena.h instead.
#ifndef PANDREL_OSI_MEMORY_H
#define PANDREL_OSI_MEMORY_H

#include <cstddef>

// A block of `size` bytes, uninitialised; null for 0.
void* OsiMalloc(std::size_t size);

// A block of `size` zero bytes; null for 0.
void* OsiZalloc(std::size_t size);

// `block` (null: a new one) resized to `size` bytes, perhaps moved. A size of 0 gives null and
// leaves `block` alone: it is still valid, not freed.
void* OsiRealloc(void* block, std::size_t size);

// Releases a block of the functions above; null is allowed.
void OsiFree(void* block);

#endif
