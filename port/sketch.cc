// SPDX-License-Identifier: MIT
#include "port/sketch.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "gil/tokens.h"
#include "port/model.h"
#include "port/object_attributes.h"
#include "port/page_text.h"
#include "port/sketch_controls.h"

namespace port {

static const int kHeader = 26;  // height of a window's header
static const int kFooter = 20;
static const int kSmallestWindow = 60;
static const int kMargin = 4;  // around a part or a menu
// Windows hold panes and panes hold controls; deeper files are hostile.
static const int kDeepest = 50;

static bool IsWindow(const PortObject& obj) {
  return obj.type == BASE_WINDOW || obj.type == POPUP_WINDOW;
}

// Groups and stacks arrange others and have no place of their own.
static bool IsArrangement(const PortObject& obj) { return obj.type == GROUP || obj.type == STACK; }

static bool StartsHidden(const PortObject& obj) {
  return TokenOf(obj, INITIAL_STATE, VISIBLE) == INVISIBLE;
}

static Box Union(const Box& a, const Box& b) {
  const int x = std::min(a.x, b.x);
  const int y = std::min(a.y, b.y);
  return {x, y, std::max(a.x + a.width, b.x + b.width) - x,
          std::max(a.y + a.height, b.y + b.height) - y};
}

static std::string TitleOf(const PortObject& obj) {
  std::string title = PageText(obj.name) + ": " + TypeName(obj.type);
  if (StartsHidden(obj)) title += ", hidden at first";
  return title;
}

// The colours of an object; parts without a colour in the file keep theirs.
static std::string StyleOf(const PortObject& obj) {
  std::string style;
  const auto add = [&](const std::string& declaration) {
    if (!style.empty()) style += ';';
    style += declaration;
  };
  const std::string color = CssColor(TextOf(obj, FOREGROUND_COLOR));
  if (!color.empty()) add("color:" + color);
  if (StartsHidden(obj)) add("opacity:.35");
  if (TokenOf(obj, INITIAL_STATE, ACTIVE) == INACTIVE) add("opacity:.5");
  return style;
}

// -- groups --

// The place of a group: around those of its members, and of the members of groups in it, that have
// one owner. Leaves out members in other windows.
struct GroupPlace {
  int group = -1;
  int owner = -1;
  Box box;
};

// The members of the group and of the groups among them.
static std::set<int> MembersOf(const Model& model, const std::map<std::string, int>& by_name,
                               int group) {
  std::set<int> members;
  std::vector<int> groups = {group};
  while (!groups.empty()) {
    const PortObject& each = model.objects[groups.back()];
    groups.pop_back();
    for (const std::string& name : TextsOf(each, MEMBERS)) {
      const auto found = by_name.find(name);
      if (found == by_name.end() || !members.insert(found->second).second) continue;
      if (model.objects[found->second].type == GROUP) groups.push_back(found->second);
    }
  }
  return members;
}

static GroupPlace PlaceOfGroup(const Model& model, const std::map<std::string, int>& by_name,
                               int group) {
  GroupPlace place;
  for (int index : MembersOf(model, by_name, group)) {
    const PortObject& member = model.objects[index];
    if (member.parent < 0 || IsArrangement(member)) continue;
    if (place.group < 0) {
      place = {group, member.parent, PlaceOf(member)};
    } else if (member.parent == place.owner) {
      place.box = Union(place.box, PlaceOf(member));
    }
  }
  return place;
}

// All groups that have a place, by the object that owns their members.
using Groups = std::multimap<int, GroupPlace>;

static Groups FindGroups(const Model& model) {
  Groups groups;
  for (const GilFile& file : model.files) {
    std::map<std::string, int> by_name;
    for (int index : file.objects) by_name[PageText(model.objects[index].name)] = index;
    for (int index : file.objects) {
      if (model.objects[index].type != GROUP) continue;
      const GroupPlace place = PlaceOfGroup(model, by_name, index);
      if (place.group >= 0) groups.emplace(place.owner, place);
    }
  }
  return groups;
}

// -- objects in their window --

// What sketches are drawn from.
struct Interface {
  const Model& model;
  Groups groups;
};

static void DrawContents(Sheet& sheet, const Interface& interface, int owner, int depth);

static void DrawObject(Sheet& sheet, const Interface& interface, int object, int depth) {
  const PortObject& obj = interface.model.objects[object];
  if (IsWindow(obj) || obj.type == MENU) return;
  if (IsPane(obj) && StartsHidden(obj)) {
    // The pane has a sketch of its own; here another one may be shown in its place.
    sheet.drawing.Open(0, 0, TitleOf(obj));
    sheet.drawing.Rect(PlaceOf(obj), paint::kOutline);
    sheet.drawing.Close();
    return;
  }
  sheet.drawing.Open(0, 0, TitleOf(obj), StyleOf(obj));
  DrawLook(sheet, obj);
  const bool moves = IsPane(obj);
  if (moves) sheet.drawing.Open(NumberOf(obj, X, 0), NumberOf(obj, Y, 0), "");
  DrawContents(sheet, interface, object, depth + 1);
  if (moves) sheet.drawing.Close();
  sheet.drawing.Close();
}

// The children of the object, over faint lines around groups, which the pointer finds.
static void DrawContents(Sheet& sheet, const Interface& interface, int owner, int depth) {
  if (depth > kDeepest) return;
  const auto [begin, end] = interface.groups.equal_range(owner);
  for (auto each = begin; each != end; ++each) {
    const GroupPlace& place = each->second;
    sheet.drawing.Open(0, 0, TitleOf(interface.model.objects[place.group]), "opacity:.5");
    sheet.drawing.Rect(
        {place.box.x - 2, place.box.y - 2, place.box.width + 4, place.box.height + 4},
        "fill:none;stroke:#888;stroke-dasharray:1 3");
    sheet.drawing.Close();
  }
  for (int child : interface.model.objects[owner].children) {
    DrawObject(sheet, interface, child, depth);
  }
}

// -- sketches --

static Sketch Finish(const Model& model, int object, SketchKind kind, Sheet& sheet, int width,
                     int height) {
  const PortObject& obj = model.objects[object];
  Sketch sketch;
  sketch.kind = kind;
  sketch.object = object;
  sketch.name = PageText(obj.name);
  sketch.title = TextOf(obj, obj.type == MENU ? MENU_TITLE : LABEL);
  sketch.hidden = StartsHidden(obj);
  sketch.width = width;
  sketch.height = height;
  sketch.svg = sheet.drawing.Finish(width, height, "Sketch of " + TitleOf(obj));
  sketch.missing_glyphs = std::move(sheet.missing_glyphs);
  return sketch;
}

static void DrawHeader(Sheet& sheet, const PortObject& obj, int width) {
  if (obj.type == POPUP_WINDOW) {
    DrawPin(sheet, 10, 4, IsTrue(obj, PINNED));
  } else {
    sheet.drawing.Rect({5, 5, 16, 16}, paint::kRaised);
    DrawMarkDown(sheet, 9, kHeader / 2);
  }
  const std::string title = TextOf(obj, LABEL);
  const int left = std::max((width - TextWidth(title, true)) / 2, 30);
  sheet.drawing.Text(left, 17, FitText(title, width - left - 4, true), true);
}

// The corners that a window is resized by.
static void DrawCorners(Sheet& sheet, int width, int height) {
  const std::string right = std::to_string(width);
  const std::string bottom = std::to_string(height);
  sheet.drawing.Path("M0 10V0H10 M" + right + " 10v-10h-10 M0 " + std::to_string(height - 10) +
                         "V" + bottom + "H10 M" + right + " " + std::to_string(height - 10) +
                         "v10h-10",
                     "fill:none;stroke:#333;stroke-width:3");
}

static Sketch DrawWindow(const Interface& interface, int object, Sheet& sheet) {
  const PortObject& obj = interface.model.objects[object];
  Box inside = {0, 0, NumberOf(obj, WIDTH, 0), NumberOf(obj, HEIGHT, 0)};
  if (inside.width <= 0 || inside.height <= 0) {
    for (int child : obj.children) inside = Union(inside, PlaceOf(interface.model.objects[child]));
  }
  const int width = std::max(inside.width, kSmallestWindow);
  const int footer = IsTrue(obj, SHOW_FOOTER) ? kFooter : 0;
  const int height = std::max(inside.height, kSmallestWindow) + kHeader + footer;
  const std::string color = CssColor(TextOf(obj, BACKGROUND_COLOR));
  const std::string background = color.empty() ? "" : ";fill:" + color;
  const SketchKind kind = obj.type == BASE_WINDOW ? SketchKind::kWindow : SketchKind::kDialog;

  sheet.drawing.Rect({0, 0, width, height}, "fill:#ccc;stroke:#333" + background);
  DrawHeader(sheet, obj, width);
  const Box body = {0, kHeader, width, height - kHeader - footer};
  sheet.drawing.Rect(body, "fill:#ddd;stroke:#333" + background);
  sheet.drawing.Open(body.x, body.y, "");
  DrawContents(sheet, interface, object, 0);
  sheet.drawing.Close();
  // What reaches beyond the body is cut there, as a window cuts it.
  if (footer > 0) {
    sheet.drawing.Rect({0, height - footer, width, footer}, "fill:#ccc;stroke:#333" + background);
  }
  if (IsTrue(obj, RESIZABLE)) DrawCorners(sheet, width, height);
  return Finish(interface.model, object, kind, sheet, width, height);
}

static Sketch DrawPart(const Interface& interface, int object, Sheet& sheet) {
  const PortObject& obj = interface.model.objects[object];
  const Box box = PlaceOf(obj);
  sheet.drawing.Open(kMargin - box.x, kMargin - box.y, TitleOf(obj));
  DrawLook(sheet, obj);
  sheet.drawing.Open(IsPane(obj) ? box.x : 0, IsPane(obj) ? box.y : 0, "");
  DrawContents(sheet, interface, object, 0);
  sheet.drawing.Close();
  sheet.drawing.Close();
  return Finish(interface.model, object, SketchKind::kPart, sheet, box.width + 2 * kMargin,
                box.height + 2 * kMargin);
}

// -- menus --

struct MenuItem {
  Face face;
  bool inactive = false;
  bool is_default = false;
  bool chosen = false;
  bool has_menu = false;
  std::string color;
};

template <typename T>
static T Nth(const std::vector<T>& list, std::size_t at, const T& missing) {
  return at < list.size() ? list[at] : missing;
}

static std::vector<MenuItem> ItemsOf(Sheet& sheet, const PortObject& menu) {
  const std::vector<std::string> labels = TextsOf(menu, MENU_ITEM_LABELS);
  const std::vector<int32_t> types = TokensOf(menu, MENU_ITEM_LABEL_TYPES);
  const std::vector<int32_t> states = TokensOf(menu, MENU_ITEM_STATES);
  const std::vector<int32_t> defaults = TokensOf(menu, MENU_ITEM_DEFAULTS);
  const std::vector<int32_t> chosen = TokensOf(menu, INITIAL_SELECTIONS);
  const std::vector<std::string> menus = TextsOf(menu, MENU_ITEM_MENUS);
  const std::vector<std::string> colors = TextsOf(menu, MENU_ITEM_COLORS);
  std::vector<MenuItem> items;
  for (std::size_t i = 0; i < labels.size(); ++i) {
    MenuItem item;
    item.face = MakeFace(sheet, labels[i], Nth<int32_t>(types, i, STRING) == GLYPH);
    item.inactive = Nth<int32_t>(states, i, ACTIVE) == INACTIVE;
    item.is_default = Nth<int32_t>(defaults, i, NIL) == T;
    item.chosen = Nth<int32_t>(chosen, i, NIL) == T;
    item.has_menu = !Nth<std::string>(menus, i, "").empty();
    item.color = CssColor(Nth<std::string>(colors, i, ""));
    items.push_back(std::move(item));
  }
  return items;
}

static void DrawItem(Sheet& sheet, const MenuItem& item, bool command, const Box& box) {
  const std::string color = item.color.empty() ? "" : "color:" + item.color;
  sheet.drawing.Open(0, 0, "", item.inactive ? color + ";opacity:.5" : color);
  if (!command) sheet.drawing.Rect(box, item.chosen ? paint::kChosen : paint::kRaised);
  if (command && item.is_default) sheet.drawing.Rect(box, paint::kLine, box.height / 2);
  DrawFace(sheet, item.face, box.x + 10, box.y, box.height);
  if (item.has_menu) DrawMarkRight(sheet, box.x + box.width - 16, box.y + box.height / 2);
  sheet.drawing.Close();
}

// Items fill columns downwards. The title, or the pin alone, stands above them.
static Sketch DrawMenu(const Model& model, int object, Sheet& sheet) {
  const PortObject& menu = model.objects[object];
  const std::vector<MenuItem> items = ItemsOf(sheet, menu);
  const int count = std::max(static_cast<int>(items.size()), 1);
  const int columns = std::clamp(NumberOf(menu, COLUMNS, 1), 1, count);
  const int rows = (count + columns - 1) / columns;
  const std::string title = TextOf(menu, MENU_TITLE);
  const bool pinnable = IsTrue(menu, PINNABLE);
  const bool command = TokenOf(menu, MENU_TYPE, COMMAND) == COMMAND;

  int item_width = 40;
  int item_height = 22;
  for (const MenuItem& item : items) {
    item_width = std::max(item_width, item.face.width + 20 + (item.has_menu ? 16 : 0));
    item_height = std::max(item_height, item.face.height + 6);
  }
  item_width = std::max(item_width, (TextWidth(title, true) + 40) / columns);
  const int header = pinnable || !title.empty() ? kHeader : 0;
  const int width = columns * item_width + 2 * kMargin;
  const int height = rows * item_height + 2 * kMargin + header;

  sheet.drawing.Rect({0, 0, width, height}, "fill:#ddd;stroke:#333");
  if (pinnable) DrawPin(sheet, 10, 4, false);
  sheet.drawing.Text(std::max((width - TextWidth(title, true)) / 2, 30), 17, title, true);
  for (int i = 0; i < static_cast<int>(items.size()); ++i) {
    DrawItem(sheet, items[i], command,
             {kMargin + i / rows * item_width, kMargin + header + i % rows * item_height,
              item_width, item_height});
  }
  return Finish(model, object, SketchKind::kMenu, sheet, width, height);
}

// -- all --

std::vector<Sketch> DrawSketches(const Model& model,
                                 const std::vector<std::filesystem::path>& glyph_folders) {
  const Interface interface { model, FindGroups(model) };
  std::vector<Sketch> sketches;
  for (std::size_t i = 0; i < model.objects.size(); ++i) {
    const PortObject& obj = model.objects[i];
    const int index = static_cast<int>(i);
    Sheet sheet{{}, glyph_folders, {}};
    if (IsWindow(obj)) {
      sketches.push_back(DrawWindow(interface, index, sheet));
    } else if (obj.type == MENU) {
      sketches.push_back(DrawMenu(model, index, sheet));
    } else if (!IsArrangement(obj) && (obj.parent < 0 || (IsPane(obj) && StartsHidden(obj)))) {
      sketches.push_back(DrawPart(interface, index, sheet));
    }
  }
  return sketches;
}

}  // namespace port
