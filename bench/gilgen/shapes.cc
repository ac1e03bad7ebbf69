// SPDX-License-Identifier: MIT
#include "gilgen/shapes.h"

#include <algorithm>

#include "gilgen/realistic.h"

namespace {

constexpr uint64_t kBoardSize = 50;  // controls in a control area, where the shape does not decide

std::string Numbered(const char* stem, uint64_t number) { return stem + std::to_string(number); }

// Boards of kBoardSize controls, a window for each, opened as controls come in. Window and area
// count as objects of the plan.
class Boards {
 public:
  Boards(const Plan& plan, const Target& target, uint64_t board_size = kBoardSize)
      : target_(target), board_size_(board_size), left_(plan.objects) {}

  // How many objects may still be written.
  uint64_t left() const { return left_; }
  const std::string& window() const { return window_; }
  bool full() const { return used_ == board_size_; }

  void Emit(const Object& object) {
    target_.emit(object);
    --left_;
  }

  // Prepares `control` as the next one of the current board, opening a board when there is none or
  // it is full. False when no object is left.
  bool Place(Object* control, Kind kind) {
    if (windows_ == 0 || full()) Open();
    if (left_ == 0) return false;
    control->Clear();
    control->kind = kind;
    control->depth = 2;
    control->owner = area_;
    control->x = 10 + static_cast<int>(used_ % 5) * 120;
    control->y = 10 + static_cast<int>(std::min<uint64_t>(used_ / 5, 3000)) * 30;
    control->width = 80;
    control->height = 20;
    ++used_;
    ++controls_;
    control->label = Numbered("Label ", controls_);
    return true;
  }
  uint64_t controls() const { return controls_; }

 private:
  void Open() {
    used_ = 0;
    ++windows_;
    window_ = Numbered("window", windows_);
    area_ = Numbered("controls", windows_);
    Object object;
    object.kind = Kind::kBaseWindow;
    object.name = window_;
    object.label = window_;
    object.width = 640;
    object.height = 400;
    if (left_ > 0) Emit(object);
    object.kind = Kind::kControlArea;
    object.depth = 1;
    object.name = area_;
    object.owner = window_;
    if (left_ > 0) Emit(object);
  }

  const Target& target_;
  uint64_t board_size_;
  uint64_t left_;
  uint64_t windows_ = 0;
  uint64_t controls_ = 0;
  uint64_t used_ = 0;
  std::string window_;
  std::string area_;
};

void WriteSameName(const Plan& plan, Random*, const Target& target) {
  Boards boards(plan, target);
  Object control;
  while (boards.Place(&control, Kind::kButton)) {
    control.name = "item";
    boards.Emit(control);
  }
}

void WriteSameNameTop(const Plan& plan, Random*, const Target& target) {
  Object object;
  object.name = "item";
  object.label = "Item";
  for (uint64_t i = 0; i < plan.objects; ++i) target.emit(object);
}

// The second half asks again for the names of the first: each request is taken, and its number with
// it, so that the search for a free one begins at 1 again.
void WriteRenumber(const Plan& plan, Random*, const Target& target) {
  Boards boards(plan, target);
  Object control;
  const uint64_t half = std::max<uint64_t>(plan.objects / 2, 1);
  while (boards.Place(&control, Kind::kMessage)) {
    control.name = Numbered("item", (boards.controls() - 1) % half + 1);
    boards.Emit(control);
  }
}

void WriteOneContainer(const Plan& plan, Random*, const Target& target) {
  Boards boards(plan, target, ~uint64_t{0});
  Object control;
  while (boards.Place(&control, Kind::kMessage)) {
    control.name = Numbered("message", boards.controls());
    boards.Emit(control);
  }
}

void WriteButtonMenus(const Plan& plan, Random*, const Target& target) {
  Boards boards(plan, target);
  Object control;
  Object menu;
  menu.kind = Kind::kMenu;
  menu.depth = 2;
  menu.label = "Menu";
  menu.items = {"First", "Second", "Third"};
  while (boards.Place(&control, Kind::kButton)) {
    control.name = Numbered("button", boards.controls());
    menu.name = Numbered("menu", boards.controls());
    if (boards.left() > 1) control.menu = menu.name;
    boards.Emit(control);
    if (!control.menu.empty()) boards.Emit(menu);
  }
}

// Every control of the boards exists, so that each look-up of a target succeeds.
void WriteActions(const Plan& plan, Random* random, const Target& target) {
  constexpr const char* kActions[] = {"Show", "Hide", "Enable", "Disable"};
  const uint64_t board = kBoardSize + 2;
  const uint64_t controls =
      plan.objects / board * kBoardSize + (plan.objects % board > 2 ? plan.objects % board - 2 : 0);
  Boards boards(plan, target);
  Object control;
  while (boards.Place(&control, Kind::kButton)) {
    control.name = Numbered("button", boards.controls());
    const std::string from = boards.window() + " " + control.name;
    const uint64_t other = random->Below(std::max<uint64_t>(controls, 1)) + 1;
    control.connections.push_back({from, "Notify", Numbered("button", other), ":user_defined",
                                   kActions[random->Below(std::size(kActions))]});
    boards.Emit(control);
  }
}

void WriteProcedures(const Plan& plan, Random*, const Target& target) {
  Boards boards(plan, target);
  Object control;
  while (boards.Place(&control, Kind::kButton)) {
    control.name = Numbered("button", boards.controls());
    control.procedure = Numbered("do_button", boards.controls());
    const std::string from = boards.window() + " " + control.name;
    control.connections.push_back({from, "Notify", from, "CallFunction", control.procedure});
    boards.Emit(control);
  }
}

// Every second control is in a group of five.
void WriteGrouped(const Plan& plan, Random*, const Target& target) {
  Boards boards(plan, target);
  Object control;
  Object group;
  group.kind = Kind::kGroup;
  group.depth = 2;
  std::vector<std::string> waiting;
  uint64_t groups = 0;
  while (boards.Place(&control, Kind::kButton)) {
    control.name = Numbered("button", boards.controls());
    if (boards.controls() % 2 == 1) waiting.push_back(control.name);
    boards.Emit(control);
    // A group may only name what was converted before it, that is, earlier windows.
    while (boards.full() && waiting.size() >= 5 && boards.left() > 0) {
      group.name = Numbered("group", ++groups);
      group.members.assign(waiting.end() - 5, waiting.end());
      waiting.resize(waiting.size() - 5);
      boards.Emit(group);
    }
  }
}

void WriteMissingMenus(const Plan& plan, Random*, const Target& target) {
  Boards boards(plan, target);
  Object control;
  while (boards.Place(&control, Kind::kButton)) {
    control.name = Numbered("button", boards.controls());
    control.menu = Numbered("menu", boards.controls());
    boards.Emit(control);
  }
}

void WriteSameMenu(const Plan& plan, Random*, const Target& target) {
  Object menu;
  menu.kind = Kind::kMenu;
  menu.name = "menu1";
  menu.label = "Menu";
  menu.items = {"First", "Second", "Third"};
  if (plan.objects > 0) target.emit(menu);
  Plan rest = plan;
  rest.objects = plan.objects > 0 ? plan.objects - 1 : 0;
  Boards boards(rest, target);
  Object control;
  while (boards.Place(&control, Kind::kButton)) {
    control.name = Numbered("button", boards.controls());
    control.menu = menu.name;
    boards.Emit(control);
  }
}

void WriteOrphans(const Plan& plan, Random*, const Target& target) {
  Object object;
  object.label = "Orphan";
  for (uint64_t i = 1; i <= plan.objects; ++i) {
    object.name = Numbered("button", i);
    object.owner = Numbered("controls", i);
    target.emit(object);
  }
}

void WriteWindows(const Plan& plan, Random*, const Target& target) {
  Object object;
  object.kind = Kind::kBaseWindow;
  for (uint64_t i = 1; i <= plan.objects; ++i) {
    object.name = Numbered("window", i);
    object.label = object.name;
    target.emit(object);
  }
}

void WriteOwnerChain(const Plan& plan, Random*, const Target& target) {
  Object object;
  object.kind = Kind::kControlArea;
  for (uint64_t step = 1; step <= plan.objects; ++step) {
    const uint64_t i = plan.reversed ? plan.objects + 1 - step : step;
    object.name = Numbered("controls", i);
    object.owner = i > 1 ? Numbered("controls", i - 1) : std::string();
    object.width = 100;
    object.height = 100;
    target.emit(object);
  }
}

// Each menu's item opens the menu before it; converted in file order, so the last one opens all.
void WriteMenuChain(const Plan& plan, Random*, const Target& target) {
  Object menu;
  menu.kind = Kind::kMenu;
  menu.items = {"More"};
  for (uint64_t i = 1; i < plan.objects; ++i) {
    menu.name = Numbered("menu", i);
    menu.label = menu.name;
    menu.item_menus.assign(1, i > 1 ? Numbered("menu", i - 1) : "nil");
    target.emit(menu);
  }
  Object button;
  button.name = "button1";
  button.label = "Menus";
  button.menu = menu.name;
  if (plan.objects > 0) target.emit(button);
}

// A window with one button, then groups each of which has the one before it as its only member.
void WriteGroupChain(const Plan& plan, Random*, const Target& target) {
  Plan first = plan;
  first.objects = std::min<uint64_t>(plan.objects, 3);
  Boards boards(first, target);
  Object object;
  boards.Place(&object, Kind::kButton);
  object.name = "group0";
  if (boards.left() > 0) boards.Emit(object);
  object.Clear();
  object.kind = Kind::kGroup;
  for (uint64_t i = 1; i + 3 <= plan.objects; ++i) {
    object.name = Numbered("group", i);
    object.members.assign(1, Numbered("group", i - 1));
    target.emit(object);
  }
}

// A board of one control and a group, for the shapes that are one object with something long.
void WriteSingle(const Target& target, Object* object) {
  Plan plan;
  plan.objects = 3;
  Boards boards(plan, target);
  Object placed;
  boards.Place(&placed, object->kind);
  object->depth = placed.depth;
  object->owner = placed.owner;
  object->x = placed.x;
  object->y = placed.y;
  object->width = placed.width;
  object->height = placed.height;
  boards.Emit(*object);
}

void FillItems(const Plan& plan, std::vector<std::string>* items) {
  items->reserve(static_cast<std::size_t>(plan.length));
  for (uint64_t i = 1; i <= plan.length; ++i) items->push_back(Numbered("item ", i));
}

void WriteNameList(const Plan& plan, Random*, const Target& target) {
  Object button;
  button.name = "button1";
  button.label = "Member";
  WriteSingle(target, &button);
  Object group;
  group.kind = Kind::kGroup;
  group.name = "group1";
  group.members.push_back(button.name);
  for (uint64_t i = 1; i < plan.length; ++i) group.members.push_back(Numbered("missing", i));
  target.emit(group);
}

void WriteMembers(const Plan& plan, Random*, const Target& target) {
  Plan controls = plan;
  controls.objects = plan.length + 2;
  Boards boards(controls, target, ~uint64_t{0});
  Object control;
  Object group;
  group.kind = Kind::kGroup;
  group.name = "group1";
  while (boards.Place(&control, Kind::kButton)) {
    control.name = Numbered("button", boards.controls());
    group.members.push_back(control.name);
    boards.Emit(control);
  }
  target.emit(group);
}

void WriteListValues(const Plan& plan, Random*, const Target& target) {
  Object list;
  list.kind = Kind::kScrollingList;
  list.name = "list1";
  list.label = "List";
  FillItems(plan, &list.items);
  WriteSingle(target, &list);
}

void WriteChoices(const Plan& plan, Random*, const Target& target) {
  Object setting;
  setting.kind = Kind::kSetting;
  setting.name = "setting1";
  setting.label = "Setting:";
  FillItems(plan, &setting.items);
  WriteSingle(target, &setting);
}

void WriteMenuItems(const Plan& plan, Random*, const Target& target) {
  Object menu;
  menu.kind = Kind::kMenu;
  menu.name = "menu1";
  menu.label = "Menu";
  FillItems(plan, &menu.items);
  target.emit(menu);
  Object button;
  button.name = "button1";
  button.label = "Menu";
  button.menu = menu.name;
  WriteSingle(target, &button);
}

void WriteConnections(const Plan& plan, Random*, const Target& target) {
  Object button;
  button.name = "button1";
  button.label = "Button";
  const std::string path = "window1 button1";
  for (uint64_t i = 1; i <= plan.length; ++i) {
    button.connections.push_back({path, "Notify", path, "CallFunction", Numbered("call", i)});
  }
  WriteSingle(target, &button);
}

void WriteString(const Plan& plan, Random*, const Target& target) {
  Object button;
  button.name = "button1";
  button.label.assign(static_cast<std::size_t>(plan.length < 2 ? 0 : plan.length - 2), 'x');
  WriteSingle(target, &button);
}

void WriteIdentifier(const Plan& plan, Random*, const Target& target) {
  Object button;
  button.name.assign(static_cast<std::size_t>(plan.length), 'x');
  button.label = "Button";
  WriteSingle(target, &button);
}

void WriteOneButton(const Target& target) {
  Object button;
  button.name = "button1";
  button.label = "Button";
  WriteSingle(target, &button);
}

void WriteComments(const Plan& plan, Random*, const Target& target) {
  WriteOneButton(target);
  const std::string line = "; " + std::string(68, '-') + "\n";
  while (target.out->bytes() < plan.bytes) target.out->Put(line);
}

void WriteLongComment(const Plan& plan, Random*, const Target& target) {
  WriteOneButton(target);
  target.out->Put("; ");
  target.out->PutRepeated('-', plan.bytes);
  target.out->Put("\n");
}

void WriteBlanks(const Plan& plan, Random*, const Target& target) {
  WriteOneButton(target);
  target.out->PutRepeated('\n', plan.bytes / 2);
  target.out->PutRepeated(' ', plan.bytes / 2);
}

constexpr Shape kShapes[] = {
    {"realistic", "windows and dialogs of 20 to 60 controls, menus, groups, connections",
     WriteRealistic},
    {"same-name", "boards of 50 buttons that all ask for the name item", WriteSameName},
    {"same-name-top", "buttons without owner that all ask for the name item", WriteSameNameTop},
    {"renumber", "messages item1, item2, ... and then the same names again", WriteRenumber},
    {"one-container", "all messages in one control area", WriteOneContainer},
    {"button-menus", "every button with a menu of its own", WriteButtonMenus},
    {"same-menu", "every button with one and the same menu", WriteSameMenu},
    {"missing-menus", "every button with a menu that does not exist", WriteMissingMenus},
    {"actions", "every button with an action on some other button", WriteActions},
    {"procedures", "every button calls a procedure of its own", WriteProcedures},
    {"grouped", "half of the buttons in groups of five", WriteGrouped},
    {"orphans", "every button with an owner that does not exist", WriteOrphans},
    {"windows", "base windows without contents", WriteWindows},
    {"owner-chain", "control areas, each in the one before it", WriteOwnerChain},
    {"menu-chain", "menus, each opened by an item of the next", WriteMenuChain},
    {"group-chain", "groups, each the only member of the next", WriteGroupChain},
    {"name-list", "a group of --length members, of which one exists", WriteNameList},
    {"members", "a group of --length members, all in one control area", WriteMembers},
    {"list-values", "a scrolling list of --length entries", WriteListValues},
    {"choices", "a setting of --length choices", WriteChoices},
    {"menu-items", "a menu of --length items", WriteMenuItems},
    {"connections", "a button with --length actions", WriteConnections},
    {"string", "a label that is a string of --length bytes, its quotes included", WriteString},
    {"identifier", "a button whose name is --length bytes long", WriteIdentifier},
    {"comments", "a button and --bytes of comment lines", WriteComments},
    {"long-comment", "a button and one comment of --bytes", WriteLongComment},
    {"blanks", "a button and --bytes of newlines and blanks", WriteBlanks},
};

}  // namespace

std::span<const Shape> Shapes() { return kShapes; }

const Shape* FindShape(std::string_view name) {
  for (const Shape& shape : kShapes) {
    if (name == shape.name) return &shape;
  }
  return nullptr;
}
