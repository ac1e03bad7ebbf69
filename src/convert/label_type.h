// SPDX-License-Identifier: MIT
// Labels that are a text or a glyph.
#ifndef PANDREL_CONVERT_LABEL_TYPE_H
#define PANDREL_CONVERT_LABEL_TYPE_H

struct Value;
struct Widg;

// Makes the widget show the label. It is a text when the type is the token STRING or null, else the
// name of a glyph file, which this may convert.
void HandleWidgLabelAndType(Widg* widg, const Value* label, const Value* label_type);

#endif
