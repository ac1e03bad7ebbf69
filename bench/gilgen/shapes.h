// SPDX-License-Identifier: MIT
// The shapes of input that gilgen can write: the realistic one, those that ask one operation of the
// converter for all it can take, and the extremes of size and depth.
#ifndef PANDREL_BENCH_GILGEN_SHAPES_H
#define PANDREL_BENCH_GILGEN_SHAPES_H

#include <span>
#include <string_view>

#include "gilgen/plan.h"

struct Shape {
  const char* name;
  const char* summary;  // one line for --help
  void (*write)(const Plan& plan, Random* random, const Target& target);
};

// All shapes, in the order in which --help lists them.
std::span<const Shape> Shapes();

// The shape of that name, or null.
const Shape* FindShape(std::string_view name);

#endif
