// SPDX-License-Identifier: MIT
// Sketches of what OPEN LOOK showed, drawn from the objects of GIL files. Places, sizes and texts
// are those of the file; looks and widths of letters are approximate.
#ifndef PANDREL_PORT_SKETCH_H
#define PANDREL_PORT_SKETCH_H

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace port {

struct Model;

enum class SketchKind : uint8_t {
  kWindow,
  kDialog,
  kMenu,
  kPart,  // a pane that starts hidden in its window, or an object that no window holds
};

// Texts are page text.
struct Sketch {
  SketchKind kind = SketchKind::kWindow;
  int object = -1;      // in the model
  std::string name;     // of the object
  std::string title;    // its label; empty when it has none
  bool hidden = false;  // it starts so
  int width = 0;        // of the picture, in pixels
  int height = 0;
  std::string svg;
  std::vector<std::string> missing_glyphs;  // as the files name them
};

// A sketch for each window, each menu, and each part that no window shows at first, in the order of
// the model. Glyphs come from the folders.
std::vector<Sketch> DrawSketches(const Model& model,
                                 const std::vector<std::filesystem::path>& glyph_folders);

}  // namespace port

#endif
