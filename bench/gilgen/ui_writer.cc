// SPDX-License-Identifier: MIT
#include "gilgen/ui_writer.h"

#include <array>

namespace {

struct UiClass {
  const char* name;
  const char* text_property;  // null: no label of its own
};

// By Kind, in its order. A group is a frame beside its members: in a form only a container could
// hold them, and the number of widgets is what counts here.
constexpr std::array<UiClass, 13> kClasses = {{
    {"QWidget", "windowTitle"},
    {"QDialog", "windowTitle"},
    {"QFrame", nullptr},
    {"QGraphicsView", nullptr},
    {"QPushButton", "text"},
    {"QLabel", "text"},
    {"QLineEdit", "placeholderText"},
    {"QComboBox", "toolTip"},
    {"QSlider", "toolTip"},
    {"QProgressBar", "format"},
    {"QListWidget", "toolTip"},
    {"QMenu", "title"},
    {"QGroupBox", nullptr},
}};

}  // namespace

void UiWriter::Indent() { out_->PutRepeated(' ', open_.size() + 2); }

void UiWriter::Text(const char* property, std::string_view text) {
  Indent();
  out_->Put("<property name=\"");
  out_->Put(property);
  out_->Put("\">\n");
  Indent();
  out_->Put(" <string>");
  out_->Put(text);
  out_->Put("</string>\n");
  Indent();
  out_->Put("</property>\n");
}

void UiWriter::CloseTo(int depth) {
  while (!open_.empty() && open_.back() >= depth) {
    open_.pop_back();
    Indent();
    out_->Put("</widget>\n");
  }
}

void UiWriter::Begin() {
  out_->Put(
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ui version=\"4.0\">\n <class>Form</class>\n"
      " <widget class=\"QWidget\" name=\"Form\">\n");
}

void UiWriter::Write(const Object& object) {
  const UiClass& ui_class = kClasses[static_cast<std::size_t>(object.kind)];
  CloseTo(object.depth);
  Indent();
  out_->Put("<widget class=\"");
  out_->Put(ui_class.name);
  out_->Put("\" name=\"");
  out_->Put(object.name);
  out_->Put("\">\n");
  open_.push_back(object.depth);

  Indent();
  out_->Put("<property name=\"geometry\">\n");
  Indent();
  out_->Put(" <rect>\n");
  const struct {
    const char* tag;
    int value;
  } kSides[] = {
      {"x", object.x}, {"y", object.y}, {"width", object.width}, {"height", object.height}};
  for (const auto& side : kSides) {
    Indent();
    out_->Put("  <");
    out_->Put(side.tag);
    out_->Put(">");
    out_->PutNumber(side.value);
    out_->Put("</");
    out_->Put(side.tag);
    out_->Put(">\n");
  }
  Indent();
  out_->Put(" </rect>\n");
  Indent();
  out_->Put("</property>\n");
  if (ui_class.text_property != nullptr) Text(ui_class.text_property, object.label);

  if (object.kind == Kind::kMenu) {
    const uint64_t first = actions_;
    for (const std::string& item : object.items) {
      Indent();
      out_->Put("<action name=\"action");
      out_->PutNumber(static_cast<int64_t>(actions_++));
      out_->Put("\">\n");
      Text("text", item);
      Indent();
      out_->Put("</action>\n");
    }
    for (uint64_t action = first; action < actions_; ++action) {
      Indent();
      out_->Put("<addaction name=\"action");
      out_->PutNumber(static_cast<int64_t>(action));
      out_->Put("\"/>\n");
    }
    return;
  }
  for (const std::string& item : object.items) {
    Indent();
    out_->Put("<item>\n");
    Text("text", item);
    Indent();
    out_->Put("</item>\n");
  }
}

void UiWriter::End() {
  CloseTo(0);
  out_->Put(" </widget>\n <resources/>\n <connections/>\n</ui>\n");
}
