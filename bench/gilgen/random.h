// SPDX-License-Identifier: MIT
// A small random-number generator whose sequence depends on the seed alone: the distributions of
// the standard library differ between implementations, and a benchmark input must not.
#ifndef PANDREL_BENCH_GILGEN_RANDOM_H
#define PANDREL_BENCH_GILGEN_RANDOM_H

#include <cstdint>

class Random {
 public:
  explicit Random(uint64_t seed) : state_(seed) {}

  // The next 64 bits (the splitmix64 sequence).
  uint64_t Next() {
    state_ += 0x9e3779b97f4a7c15U;
    uint64_t z = state_;
    z = (z ^ (z >> 30U)) * 0xbf58476d1ce4e5b9U;
    z = (z ^ (z >> 27U)) * 0x94d049bb133111ebU;
    return z ^ (z >> 31U);
  }

  // A number from `low` to `high`, both included.
  int Between(int low, int high) {
    return low + static_cast<int>(Next() % static_cast<uint64_t>(high - low + 1));
  }

  // A number from 0 to `count` - 1; `count` is at least 1.
  uint64_t Below(uint64_t count) { return Next() % count; }

  // True in `percent` of a hundred calls.
  bool Percent(int percent) { return Between(1, 100) <= percent; }

 private:
  uint64_t state_;
};

#endif
