// SPDX-License-Identifier: MIT
#include "convert/label_type.h"

#include <cstdlib>

#include "gil/tokens.h"
#include "gil/value.h"
#include "glyph/glyph.h"
#include "text/uil_text.h"
#include "widget/tree.h"

void HandleWidgLabelAndType(Widg* widg, const Value* label, const Value* label_type) {
  const char* text = ValueText(label);
  if (ValueToken(label_type, STRING) == STRING) {
    AddResource(widg, "XmNlabelString", text);
    return;
  }
  char* value = ProcessGlyphFilename(text);
  const char* pixmap = MergeStrings(value, "");
  std::free(value);
  // Never written; actions find the item of a setting or a menu by it.
  AddResource(widg, "XmNoriginalPixmapName", text);
  AddResource(widg, "XmNlabelType", "XmPIXMAP");
  AddResource(widg, "XmNlabelPixmap", pixmap);
}
