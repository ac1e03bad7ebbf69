// SPDX-License-Identifier: MIT
#include "gilgen/realistic.h"

#include <algorithm>
#include <span>
#include <utility>

namespace {

// Labels, choices, list entries and parts of procedure names.
constexpr const char* kWords[] = {
    "Open",    "Save",   "Print",   "Quit",   "Search", "Replace", "Options", "Colour",
    "Network", "Host",   "Printer", "Paper",  "Margin", "Header",  "Footer",  "Pages",
    "Copies",  "Folder", "Archive", "Backup", "Reset",  "Apply",   "Default", "Language",
    "Volume",  "Speed",  "Delay",   "Zoom",   "Rotate", "Filter",  "Sort",    "Group"};

// A prefix keeps procedures apart from object names, which a module may not share.
constexpr const char* kVerbs[] = {"do_", "handle_", "notify_", "update_"};

struct Share {
  Kind kind;
  int weight;  // of 100
};

// How often each control occurs.
constexpr Share kMix[] = {
    {Kind::kButton, 36},       {Kind::kTextField, 24}, {Kind::kMessage, 14}, {Kind::kSetting, 12},
    {Kind::kScrollingList, 6}, {Kind::kSlider, 5},     {Kind::kGauge, 3},
};

constexpr int kControlsPerRow = 5;
constexpr int kColumnWidth = 240;  // pixels
constexpr int kRowHeight = 40;

class Realistic {
 public:
  Realistic(const Plan& plan, Random* random, const Target& target)
      : plan_(plan),
        random_(*random),
        target_(target),
        names_(plan.numbering),
        left_(plan.bytes != 0 ? ~uint64_t{0} : plan.objects) {}

  void Run() {
    while (left_ > 0 && (plan_.bytes == 0 || target_.out->bytes() < plan_.bytes)) Window();
  }

 private:
  void Window();
  void Control(const std::string& window, const std::string& area, int index);
  void Menu(const std::string& name);
  void Group(int y);
  void Connect(Object* object, const std::string& path);
  void Emit(const Object& object) {
    target_.emit(object);
    --left_;
  }

  const char* Word() { return kWords[random_.Below(std::size(kWords))]; }
  std::string Procedure();
  Kind ControlKind();

  Plan plan_;
  Random& random_;
  const Target& target_;
  Names names_;
  uint64_t left_;    // objects still to be written
  int depth_ = 0;    // of the current window
  int dialogs_ = 0;  // dialogs that the current base window still gets
  std::string base_window_;
  std::string dialog_;                   // the one last written, for connections that show it
  std::vector<std::string> neighbours_;  // the controls of this window so far
  Object object_;
  Object menu_;
};

Kind Realistic::ControlKind() {
  int draw = random_.Between(1, 100);
  for (const Share& share : kMix) {
    draw -= share.weight;
    if (draw <= 0) return share.kind;
  }
  return Kind::kButton;
}

std::string Realistic::Procedure() {
  std::string name = kVerbs[random_.Below(std::size(kVerbs))];
  name += Word();
  name += std::to_string(random_.Below(1000));
  std::transform(name.begin(), name.end(), name.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
  return name;
}

void Realistic::Connect(Object* object, const std::string& path) {
  const auto connect = [&](const std::string& from, const std::string& to, const char* type,
                           const std::string& action) {
    object->connections.push_back({from, "Notify", to, type, action});
  };
  const int draw = random_.Between(1, 100);
  if (draw <= 40) {
    object->procedure = Procedure();
    connect(path, path, "CallFunction", object->procedure);
  } else if (draw <= 50 && !dialog_.empty()) {
    connect(path, dialog_, ":user_defined", random_.Percent(70) ? "Show" : "Hide");
  } else if (draw <= 60 && !neighbours_.empty()) {
    const std::string& other = neighbours_[random_.Below(neighbours_.size())];
    const std::string to = path.substr(0, path.find(' ') + 1) + other;
    if (object->kind == Kind::kSetting) {
      connect(path + " \"" + object->items.front() + "\"", to, ":user_defined", "Enable");
      connect(path + " \"" + object->items.back() + "\"", to, ":user_defined", "Disable");
    } else {
      connect(path, to, ":user_defined", random_.Percent(50) ? "Enable" : "Disable");
    }
  }
}

void Realistic::Menu(const std::string& name) {
  menu_.Clear();
  menu_.kind = Kind::kMenu;
  menu_.depth = depth_ + 2;
  menu_.name = name;
  menu_.label = Word();
  if (random_.Percent(15)) menu_.style = ":exclusive";
  for (int i = random_.Between(2, 8); i > 0; --i) menu_.items.push_back(Word());
  menu_.procedure = Procedure();
  const bool acts = random_.Percent(50);
  for (const std::string& item : menu_.items) {
    if (!acts) break;
    const std::string path = name + " \"" + item + "\"";
    menu_.connections.push_back({path, "Notify", path, "CallFunction", menu_.procedure});
  }
  Emit(menu_);
}

void Realistic::Control(const std::string& window, const std::string& area, int index) {
  Object& control = object_;
  control.Clear();
  control.kind = ControlKind();
  control.depth = depth_ + 2;
  control.owner = area;
  control.label = Word();
  control.x = 12 + index % kControlsPerRow * kColumnWidth;
  control.y = 12 + index / kControlsPerRow * kRowHeight;
  control.width = random_.Between(60, 200);
  control.height = random_.Between(15, 27);
  control.visible = !random_.Percent(5);
  if (control.kind == Kind::kTextField || control.kind == Kind::kSetting) control.label += ":";
  if (control.kind == Kind::kTextField && random_.Percent(20)) {
    control.style = random_.Percent(50) ? ":numeric" : ":multiline";
  }
  if (control.kind == Kind::kSetting) {
    constexpr const char* kStyles[] = {":exclusive", ":nonexclusive", ":check", ":stack"};
    control.style = kStyles[random_.Below(std::size(kStyles))];
    control.vertical = random_.Percent(20);
    for (int i = random_.Between(2, 6); i > 0; --i) control.items.push_back(Word());
  }
  if (control.kind == Kind::kScrollingList) {
    control.height = 74;
    for (int i = random_.Between(0, 8); i > 0; --i) control.items.push_back(Word());
  }
  std::string menu;
  const bool may_have_menu = control.kind == Kind::kButton || control.kind == Kind::kScrollingList;
  if (may_have_menu && left_ > 1 && random_.Percent(15)) menu = names_.Next(Kind::kMenu);
  control.menu = menu;
  control.name = names_.Next(control.kind);
  const bool acts = control.kind != Kind::kMessage && control.kind != Kind::kGauge;
  if (acts && menu.empty()) Connect(&control, window + " " + control.name);
  neighbours_.push_back(control.name);
  Emit(control);
  if (!menu.empty()) Menu(menu);
}

void Realistic::Group(int y) {
  const std::size_t count = std::min<std::size_t>(neighbours_.size(), random_.Below(6) + 2);
  object_.Clear();
  object_.kind = Kind::kGroup;
  object_.name = names_.Next(Kind::kGroup);
  object_.x = 12;
  object_.y = y;
  object_.depth = depth_ + 2;
  const std::size_t first = random_.Below(neighbours_.size() - count + 1);
  for (std::size_t i = first; i < first + count; ++i) object_.members.push_back(neighbours_[i]);
  // A control belongs to one group at most.
  neighbours_.erase(neighbours_.begin() + static_cast<std::ptrdiff_t>(first),
                    neighbours_.begin() + static_cast<std::ptrdiff_t>(first + count));
  Emit(object_);
}

void Realistic::Window() {
  const bool dialog = dialogs_ > 0;
  names_.StartWindow();
  neighbours_.clear();
  Object& window = object_;
  window.Clear();
  window.kind = dialog ? Kind::kPopupWindow : Kind::kBaseWindow;
  window.depth = dialog ? 1 : 0;
  window.name = names_.Next(window.kind);
  if (dialog) window.owner = base_window_;
  window.visible = !dialog;
  window.label = Word();
  window.label += std::string(" ") + Word();
  window.width = kControlsPerRow * kColumnWidth + 24;
  window.height = random_.Between(300, 900);
  const std::string name = window.name;
  const int width = window.width;
  const int height = window.height;
  depth_ = window.depth;
  if (dialog) {
    --dialogs_;
    dialog_ = name;
  } else {
    base_window_ = name;
    dialogs_ = random_.Between(0, 4);
  }
  Emit(window);
  if (left_ == 0) return;

  Object& area = object_;
  area.Clear();
  area.kind = Kind::kControlArea;
  area.depth = depth_ + 1;
  area.name = names_.Next(area.kind);
  area.owner = name;
  area.width = width;
  area.height = height;
  const std::string area_name = area.name;
  Emit(area);
  if (!dialog && left_ > 0 && random_.Percent(25)) {
    area.kind = Kind::kCanvasPane;
    area.name = names_.Next(area.kind);
    area.y = height;
    Emit(area);
  }

  int controls = random_.Between(20, 60);
  // A rest too small for a window of its own goes into this one.
  if (left_ < static_cast<uint64_t>(controls) + 24) controls = static_cast<int>(left_);
  for (int i = 0; i < controls && left_ > 0; ++i) Control(name, area_name, i);
  for (int i = random_.Between(0, 5); i > 0 && left_ > 0 && neighbours_.size() > 1; --i) {
    Group(12 + i * kRowHeight);
  }
}

}  // namespace

void WriteRealistic(const Plan& plan, Random* random, const Target& target) {
  Realistic(plan, random, target).Run();
}
