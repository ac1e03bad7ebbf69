// SPDX-License-Identifier: MIT
// What a generated file shall hold, and the two things that every model needs to write it: a place
// to put the objects and names for them.
#ifndef PANDREL_BENCH_GILGEN_PLAN_H
#define PANDREL_BENCH_GILGEN_PLAN_H

#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "gilgen/object.h"
#include "gilgen/random.h"
#include "gilgen/text_output.h"

// How far the numbers in the names of controls run on: through the file, as the editor counts, or
// starting again at 1 in every window, as in files joined by hand. Windows, control areas, menus
// and groups are always counted through the file, since they are referred to by name.
enum class Numbering : uint8_t { kFile, kWindow };

struct Plan {
  uint64_t objects = 1000;  // how many to write; ~0 when `bytes` decides
  uint64_t bytes = 0;       // when not 0: no further window is begun from here on
  uint64_t length = 1000;   // of a list, text or chain, where the shape has one
  bool reversed = false;    // owners after their children, where the shape has a chain
  Numbering numbering = Numbering::kFile;
};

// Takes one object; it may be changed as soon as the call returns.
using Emit = std::function<void(const Object&)>;

// Where a model writes to.
struct Target {
  Emit emit;
  TextOutput* out;  // for texts that are no objects: comments, blanks
};

// Hands out the editor's names: button1, button2, ...
class Names {
 public:
  explicit Names(Numbering numbering) : numbering_(numbering) {}

  void StartWindow();
  std::string Next(Kind kind);

 private:
  Numbering numbering_;
  std::array<uint64_t, 13> used_{};
};

#endif
