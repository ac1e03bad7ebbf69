// SPDX-License-Identifier: MIT
// Labels that are a text or a glyph.
#ifndef PANDREL_CONVERT_LABEL_TYPE_H
#define PANDREL_CONVERT_LABEL_TYPE_H

struct Value;
struct Widg;

// Makes the widget show the label: a text when the type is the token STRING (or there is none),
// else the glyph file of that name, which may be converted on the spot.
void HandleWidgLabelAndType(Widg* widg, const Value* label, const Value* label_type);

#endif
