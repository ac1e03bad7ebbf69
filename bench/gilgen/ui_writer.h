// SPDX-License-Identifier: MIT
// Writes the same objects as a Qt Designer form: one widget for each, with the same geometry, texts
// and items, so that `uic` can be given a form of as many controls as the converter's interface.
#ifndef PANDREL_BENCH_GILGEN_UI_WRITER_H
#define PANDREL_BENCH_GILGEN_UI_WRITER_H

#include <cstdint>
#include <string>
#include <vector>

#include "gilgen/object.h"
#include "gilgen/text_output.h"

class UiWriter {
 public:
  // `output` is shared and outlives the writer.
  explicit UiWriter(TextOutput* output) : out_(output) {}

  void Begin();
  // Nests by the objects' depths: an object stays open until one of its own depth or less comes.
  void Write(const Object& object);
  void End();

 private:
  void Indent();
  void Text(const char* property, std::string_view text);
  void CloseTo(int depth);

  TextOutput* out_;
  std::vector<int> open_;  // depths of the open widgets
  uint64_t actions_ = 0;   // menu entries so far: their names must differ
};

#endif
