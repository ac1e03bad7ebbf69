// SPDX-License-Identifier: MIT
// How each type of object looks in a sketch, apart from windows and menus, which have sketches of
// their own.
#ifndef PANDREL_PORT_SKETCH_CONTROLS_H
#define PANDREL_PORT_SKETCH_CONTROLS_H

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "port/bitmap.h"
#include "port/svg.h"

namespace port {

struct PortObject;

// What a sketch is drawn on.
struct Sheet {
  Drawing drawing;
  const std::vector<std::filesystem::path>& glyph_folders;
  std::vector<std::string> missing_glyphs;
};

// What a label shows: a text, or a glyph. A glyph without a file keeps its name as the text.
struct Face {
  std::string text;
  bool is_glyph = false;
  std::optional<Bitmap> bitmap;
  int width = 0;
  int height = 0;
};

// `bold` counts for a text only.
Face MakeFace(Sheet& sheet, const std::string& label, bool is_glyph, bool bold = false);

// Draws the face from x on, in the middle between y and y + height.
void DrawFace(Sheet& sheet, const Face& face, int x, int y, int height, bool bold = false);

// The mark of OPEN LOOK on menu buttons and on items with a sub-menu, 9 pixels wide, around the
// middle line y.
void DrawMarkDown(Sheet& sheet, int x, int y);
void DrawMarkRight(Sheet& sheet, int x, int y);

// A pushpin, 20 pixels wide, stuck in or lying beside its hole.
void DrawPin(Sheet& sheet, int x, int y, bool pinned);

// The place that the file gives the object in its owner; also from its value and label where it
// leaves the size out.
Box PlaceOf(const PortObject& obj);

// Draws the object, in the coordinates of its owner, without the objects that it owns. Draws
// nothing for a type that shows nothing by itself.
void DrawLook(Sheet& sheet, const PortObject& obj);

// Whether the type holds others at places of their own: panes do.
bool IsPane(const PortObject& obj);

}  // namespace port

#endif
