// SPDX-License-Identifier: MIT
#include "osi/memory.h"

#include <X11/Intrinsic.h>

#include <cstdio>
#include <cstring>
#include <limits>

#include "osi/fatal.h"

// note [toolkit sizes]
// The toolkit counts bytes in a Cardinal, which is narrower than size_t: XtMalloc of 4 GB and 1
// byte would return 1 byte. A size beyond its range is therefore an allocation that fails, and it
// ends as the toolkit's own do, with their message and status.
static Cardinal ToolkitSize(std::size_t size, const char* function) {
  if (size > std::numeric_limits<Cardinal>::max()) {
    std::fprintf(stderr, "Error: Cannot perform %s\n", function);
    OsiExit(1);
  }
  return static_cast<Cardinal>(size);
}

void* OsiMalloc(std::size_t size) {
  return size == 0 ? nullptr : XtMalloc(ToolkitSize(size, "malloc"));
}

void* OsiZalloc(std::size_t size) {
  void* block = OsiMalloc(size);
  return block ? std::memset(block, 0, size) : nullptr;
}

void* OsiRealloc(void* block, std::size_t size) {
  if (size == 0) return nullptr;
  return XtRealloc(static_cast<char*>(block), ToolkitSize(size, "realloc"));
}

void OsiFree(void* block) { XtFree(static_cast<char*>(block)); }
