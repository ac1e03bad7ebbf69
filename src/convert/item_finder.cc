// SPDX-License-Identifier: MIT
#include "convert/item_finder.h"

#include "gil/scanner.h"
#include "osi/strings.h"
#include "widget/tree.h"

// From so many children looked at on, an index pays.
static constexpr std::size_t kMany = 1000;

static const char* LabelOf(const Widg* item) { return GetResourceValue(item, "XmNlabelString"); }

static const char* GlyphOf(const Widg* item) {
  return GetResourceValue(item, "XmNoriginalPixmapName");
}

void ItemFinder::MakeIndex() {
  // A name that is changed in place, for the builder's version 2.5, may then be a label, too.
  if (texts_are_repeated) return;
  first_with_ = std::make_unique<TextMap<Widg*>>();
  for (Widg* item = widg_->child; item; item = item->next) {
    first_with_->emplace(LabelOf(item), item);
    first_with_->emplace(GlyphOf(item), item);
  }
}

Widg* ItemFinder::Find(const char* text) {
  if (first_with_) {
    const auto found = first_with_->find(text);
    return found == first_with_->end() ? nullptr : found->second;
  }
  Widg* item = widg_->child;
  for (; item; item = item->next) {
    ++looked_at_;
    if (OsiStrcmp(LabelOf(item), text) == 0 || OsiStrcmp(GlyphOf(item), text) == 0) break;
  }
  if (looked_at_ > kMany) MakeIndex();
  return item;
}
