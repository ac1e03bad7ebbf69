// SPDX-License-Identifier: MIT
// What gilgen writes: one interface object at a time, still free of any file format. The models
// (realistic.h, shapes.h) fill one in; the writers (gil_writer.h, ui_writer.h) put it into words.
#ifndef PANDREL_BENCH_GILGEN_OBJECT_H
#define PANDREL_BENCH_GILGEN_OBJECT_H

#include <cstdint>
#include <string>
#include <vector>

enum class Kind : uint8_t {
  kBaseWindow,
  kPopupWindow,
  kControlArea,
  kCanvasPane,
  kButton,
  kMessage,
  kTextField,
  kSetting,
  kSlider,
  kGauge,
  kScrollingList,
  kMenu,
  kGroup,
};

// A connection from one object to another. The paths are the names within the parentheses of the
// file, from the window down to the object or to one of its items.
struct Connection {
  std::string from;
  std::string when;
  std::string to;
  std::string function_type;  // ":user_defined" or "CallFunction"
  std::string action;         // "Show", "Hide", "Enable", "Disable" or a procedure
};

// One object. An empty text means that the attribute has the editor's empty value; an empty owner
// or menu is written as nil.
struct Object {
  Kind kind = Kind::kButton;
  int depth =
      0;  // in the tree of windows: 0 for a base window; a menu or group counts as a control
  std::string name;
  std::string owner;
  std::string label;
  std::string menu;
  std::string procedure;  // the notify handler
  std::string style;      // of a setting, menu or text field: ":stack", ":exclusive", ":numeric"
  bool visible = true;
  bool vertical = false;
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  int columns = 0;
  std::vector<std::string> items;       // choices, menu items or list values, without quotes
  std::vector<std::string> item_menus;  // of a menu: a sub-menu per item, "nil" for none
  std::vector<std::string> members;     // of a group
  std::vector<Connection> connections;

  // Back to an object without contents, keeping the memory of the lists.
  void Clear();
};

inline void Object::Clear() {
  kind = Kind::kButton;
  depth = 0;
  for (std::string* text : {&name, &owner, &label, &menu, &procedure, &style}) text->clear();
  visible = true;
  vertical = false;
  x = y = width = height = columns = 0;
  items.clear();
  item_menus.clear();
  members.clear();
  connections.clear();
}

#endif
