// SPDX-License-Identifier: MIT
// Finding the items of a setting or a menu by what they show.
#ifndef PANDREL_CONVERT_ITEM_FINDER_H
#define PANDREL_CONVERT_ITEM_FINDER_H

#include <cstddef>
#include <memory>

#include "osi/text_map.h"

struct Widg;

// For many questions about the children of one widget, which must stay as they are meanwhile.
class ItemFinder {
 public:
  explicit ItemFinder(Widg* widg) : widg_(widg) {}

  // The first child whose label or glyph is that text, or null.
  Widg* Find(const char* text);

 private:
  void MakeIndex();

  Widg* widg_;
  std::size_t looked_at_ = 0;  // children, in all questions so far
  std::unique_ptr<TextMap<Widg*>> first_with_;
};

#endif
