// SPDX-License-Identifier: MIT
// Sums and differences of pixels that wrap to 32 bits: coordinates come from files and may be
// anything, and the overflow of a signed number is undefined in C++.
#ifndef PANDREL_OSI_WRAP_H
#define PANDREL_OSI_WRAP_H

#include <cstdint>

constexpr int32_t WrapAdd(int32_t a, int32_t b) {
  return static_cast<int32_t>(static_cast<uint32_t>(a) + static_cast<uint32_t>(b));
}

constexpr int32_t WrapSub(int32_t a, int32_t b) {
  return static_cast<int32_t>(static_cast<uint32_t>(a) - static_cast<uint32_t>(b));
}

#endif
