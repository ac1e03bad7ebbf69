// SPDX-License-Identifier: MIT
// Finds what does not fit, from the widgets as the toolkit made them.
#ifndef PANDREL_VIEW_CHECK_H
#define PANDREL_VIEW_CHECK_H

#include <ostream>
#include <string>
#include <vector>

#include "view_windows.h"

namespace view {

// In pixels from the upper left corner of the window.
struct Rectangle {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
};

struct Finding {
  enum class Kind {
    kOverlap,  // two visible siblings share a part of their container; `across` and `down`: its
               // size
    kCut,      // the text of a label or button is too large; by how many pixels
    kOutside,  // a control lies partly outside its container; by how many pixels
    kIcon,     // an icon cannot be read
    kColor,    // a colour is not known
  };

  Kind kind = Kind::kOverlap;
  std::string widget;
  std::string object;  // in the GIL file; empty when it is not known
  std::string window;
  Rectangle at;              // of the widget
  std::string other;         // the sibling, the container, the text, the file or the colour
  std::string other_object;  // of a sibling or container
  int across = 0;
  int down = 0;
};

// The overlaps, cut texts and controls outside their containers in a window that is shown, in the
// order of its widgets. Leaves out menus, whose size the toolkit sets, and the contents of scrolled
// windows. `gil_names` are the names of the objects in the GIL file.
std::vector<Finding> CheckWindow(const Window& window, const std::vector<std::string>& gil_names);

// A finding as a sentence, without line end.
std::string Sentence(const Finding& finding);

// A finding as a line of 12 fields with tabs between them, without line end: kind, widget, object,
// window, x, y, width, height, other, its object, across, down. In a text the bytes tab, line feed
// and backslash are written \t, \n and \\.
std::string TabLine(const Finding& finding);

}  // namespace view

#endif
