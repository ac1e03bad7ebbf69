// SPDX-License-Identifier: MIT
#include "gilgen/gil_writer.h"

#include <array>
#include <span>

namespace {

// What stands behind a keyword.
enum class Field : uint8_t {
  kFixed,  // the text of the row
  kName,
  kOwner,
  kLabel,
  kMenu,
  kProcedure,
  kStyle,
  kState,  // :active or :inactive
  kShown,  // :visible or :invisible
  kX,
  kY,
  kValueX,  // a control's value stands to the right of its label
  kWidth,
  kHeight,
  kColumns,
  kLayout,
  kItems,
  kItemTypes,
  kItemStates,
  kItemColors,
  kItemFlags,  // nil for every item
  kFirstItem,  // t for the first item, nil for the others
  kItemMenus,
  kItemHandlers,
  kMembers,
};

struct Row {
  const char* keyword;
  Field field;
  const char* fixed;  // of kFixed; with kStyle the value when the object has none
  bool brief;         // also written with Attributes::kShort
};

constexpr Row kWindowRows[] = {
    {"name", Field::kName, "", true},
    {"owner", Field::kOwner, "", true},
    {"width", Field::kWidth, "", true},
    {"height", Field::kHeight, "", true},
    {"background-color", Field::kFixed, "\"\"", false},
    {"foreground-color", Field::kFixed, "\"\"", false},
    {"label", Field::kLabel, "", true},
    {"label-type", Field::kFixed, ":string", false},
    {"initial-state", Field::kFixed, ":open", false},
    {"show-footer", Field::kFixed, "t", false},
    {"resizable", Field::kFixed, "t", false},
    {"icon-file", Field::kFixed, "\"\"", false},
    {"icon-mask-file", Field::kFixed, "\"\"", false},
    {"event-handler", Field::kFixed, "nil", false},
    {"user-data", Field::kFixed, "()", false},
};

constexpr Row kPopupRows[] = {
    {"name", Field::kName, "", true},
    {"owner", Field::kOwner, "", true},
    {"width", Field::kWidth, "", true},
    {"height", Field::kHeight, "", true},
    {"background-color", Field::kFixed, "\"\"", false},
    {"foreground-color", Field::kFixed, "\"\"", false},
    {"label", Field::kLabel, "", true},
    {"label-type", Field::kFixed, ":string", false},
    {"initial-state", Field::kShown, "", true},
    {"show-footer", Field::kFixed, "t", false},
    {"resizable", Field::kFixed, "t", false},
    {"pinned", Field::kFixed, "t", false},
    {"done-handler", Field::kFixed, "nil", false},
    {"event-handler", Field::kFixed, "nil", false},
    {"user-data", Field::kFixed, "()", false},
};

constexpr Row kControlAreaRows[] = {
    {"name", Field::kName, "", true},
    {"owner", Field::kOwner, "", true},
    {"help", Field::kFixed, "\"\"", false},
    {"x", Field::kX, "", true},
    {"y", Field::kY, "", true},
    {"width", Field::kWidth, "", true},
    {"height", Field::kHeight, "", true},
    {"background-color", Field::kFixed, "\"\"", false},
    {"foreground-color", Field::kFixed, "\"\"", false},
    {"initial-state", Field::kShown, "", false},
    {"show-border", Field::kFixed, "nil", false},
    {"menu", Field::kMenu, "", true},
    {"event-handler", Field::kFixed, "nil", false},
    {"user-data", Field::kFixed, "()", false},
};

constexpr Row kCanvasRows[] = {
    {"name", Field::kName, "", true},
    {"owner", Field::kOwner, "", true},
    {"help", Field::kFixed, "\"\"", false},
    {"x", Field::kX, "", true},
    {"y", Field::kY, "", true},
    {"width", Field::kWidth, "", true},
    {"height", Field::kHeight, "", true},
    {"background-color", Field::kFixed, "\"\"", false},
    {"foreground-color", Field::kFixed, "\"\"", false},
    {"initial-state", Field::kShown, "", false},
    {"draggable", Field::kFixed, "nil", false},
    {"droppable", Field::kFixed, "nil", false},
    {"default-drop-site", Field::kFixed, "nil", false},
    {"menu", Field::kMenu, "", true},
    {"horizontal-scrollbar", Field::kFixed, "t", true},
    {"scrollable-width", Field::kWidth, "", false},
    {"vertical-scrollbar", Field::kFixed, "t", true},
    {"scrollable-height", Field::kHeight, "", false},
    {"repaint-proc", Field::kFixed, "nil", false},
    {"event-handler", Field::kFixed, "nil", false},
    {"drawing-model", Field::kFixed, ":xwindows", false},
    {"user-data", Field::kFixed, "()", false},
};

constexpr Row kButtonRows[] = {
    {"name", Field::kName, "", true},
    {"owner", Field::kOwner, "", true},
    {"help", Field::kFixed, "\"\"", false},
    {"x", Field::kX, "", true},
    {"y", Field::kY, "", true},
    {"width", Field::kWidth, "", false},
    {"height", Field::kHeight, "", false},
    {"constant-width", Field::kFixed, "nil", false},
    {"button-type", Field::kFixed, ":normal", false},
    {"foreground-color", Field::kFixed, "\"\"", false},
    {"label", Field::kLabel, "", true},
    {"label-type", Field::kFixed, ":string", false},
    {"initial-state", Field::kState, "", false},
    {"menu", Field::kMenu, "", true},
    {"notify-handler", Field::kProcedure, "", false},
    {"event-handler", Field::kFixed, "nil", false},
    {"user-data", Field::kFixed, "()", false},
};

constexpr Row kMessageRows[] = {
    {"name", Field::kName, "", true},
    {"owner", Field::kOwner, "", true},
    {"help", Field::kFixed, "\"\"", false},
    {"x", Field::kX, "", true},
    {"y", Field::kY, "", true},
    {"width", Field::kWidth, "", false},
    {"height", Field::kHeight, "", false},
    {"foreground-color", Field::kFixed, "\"\"", false},
    {"label", Field::kLabel, "", true},
    {"label-type", Field::kFixed, ":string", false},
    {"label-bold", Field::kFixed, "nil", false},
    {"initial-state", Field::kState, "", false},
    {"event-handler", Field::kFixed, "nil", false},
    {"user-data", Field::kFixed, "()", false},
};

constexpr Row kTextFieldRows[] = {
    {"name", Field::kName, "", true},
    {"owner", Field::kOwner, "", true},
    {"help", Field::kFixed, "\"\"", false},
    {"x", Field::kX, "", true},
    {"y", Field::kY, "", true},
    {"width", Field::kWidth, "", true},
    {"height", Field::kHeight, "", true},
    {"value-x", Field::kValueX, "", true},
    {"value-y", Field::kY, "", true},
    {"value-length", Field::kFixed, "12", true},
    {"stored-length", Field::kFixed, "80", false},
    {"rows", Field::kFixed, "3", false},
    {"foreground-color", Field::kFixed, "\"\"", false},
    {"text-type", Field::kStyle, ":alphanumeric", true},
    {"label", Field::kLabel, "", true},
    {"label-type", Field::kFixed, ":string", false},
    {"layout-type", Field::kLayout, "", true},
    {"value-underlined", Field::kFixed, "t", false},
    {"max-value", Field::kFixed, "100", false},
    {"min-value", Field::kFixed, "0", false},
    {"initial-value", Field::kFixed, "\"\"", false},
    {"initial-state", Field::kState, "", false},
    {"read-only", Field::kFixed, "nil", false},
    {"notify-handler", Field::kProcedure, "", false},
    {"event-handler", Field::kFixed, "nil", false},
    {"user-data", Field::kFixed, "()", false},
};

constexpr Row kSettingRows[] = {
    {"name", Field::kName, "", true},
    {"owner", Field::kOwner, "", true},
    {"help", Field::kFixed, "\"\"", false},
    {"x", Field::kX, "", true},
    {"y", Field::kY, "", true},
    {"width", Field::kWidth, "", false},
    {"height", Field::kHeight, "", false},
    {"value-x", Field::kValueX, "", false},
    {"value-y", Field::kY, "", false},
    {"rows", Field::kFixed, "1", false},
    {"columns", Field::kColumns, "", false},
    {"layout-type", Field::kLayout, "", true},
    {"foreground-color", Field::kFixed, "\"\"", false},
    {"setting-type", Field::kStyle, ":exclusive", true},
    {"selection-required", Field::kFixed, "t", false},
    {"label", Field::kLabel, "", true},
    {"label-type", Field::kFixed, ":string", false},
    {"notify-handler", Field::kProcedure, "", false},
    {"event-handler", Field::kFixed, "nil", false},
    {"choices", Field::kItems, "", true},
    {"choice-label-types", Field::kItemTypes, "", true},
    {"choice-colors", Field::kItemColors, "", false},
    {"choice-defaults", Field::kFirstItem, "", false},
    {"initial-selections", Field::kFirstItem, "", true},
    {"initial-state", Field::kState, "", false},
    {"user-data", Field::kFixed, "()", false},
};

constexpr Row kSliderRows[] = {
    {"name", Field::kName, "", true},
    {"owner", Field::kOwner, "", true},
    {"help", Field::kFixed, "\"\"", false},
    {"x", Field::kX, "", true},
    {"y", Field::kY, "", true},
    {"width", Field::kWidth, "", true},
    {"height", Field::kHeight, "", true},
    {"value-x", Field::kValueX, "", true},
    {"value-y", Field::kY, "", true},
    {"slider-width", Field::kFixed, "100", true},
    {"ticks", Field::kFixed, "0", false},
    {"foreground-color", Field::kFixed, "\"\"", false},
    {"label", Field::kLabel, "", true},
    {"label-type", Field::kFixed, ":string", false},
    {"layout-type", Field::kFixed, ":horizontal", false},
    {"orientation", Field::kLayout, "", true},
    {"show-endboxes", Field::kFixed, "nil", false},
    {"show-range", Field::kFixed, "t", false},
    {"show-value", Field::kFixed, "t", false},
    {"min-value", Field::kFixed, "0", true},
    {"max-value", Field::kFixed, "100", true},
    {"min-value-string", Field::kFixed, "\"\"", false},
    {"max-value-string", Field::kFixed, "\"\"", false},
    {"min-tick-string", Field::kFixed, "\"\"", false},
    {"max-tick-string", Field::kFixed, "\"\"", false},
    {"initial-value", Field::kFixed, "50", true},
    {"initial-state", Field::kState, "", false},
    {"notify-handler", Field::kProcedure, "", false},
    {"event-handler", Field::kFixed, "nil", false},
    {"user-data", Field::kFixed, "()", false},
};

constexpr Row kGaugeRows[] = {
    {"name", Field::kName, "", true},
    {"owner", Field::kOwner, "", true},
    {"help", Field::kFixed, "\"\"", false},
    {"x", Field::kX, "", true},
    {"y", Field::kY, "", true},
    {"width", Field::kWidth, "", true},
    {"height", Field::kHeight, "", true},
    {"value-x", Field::kValueX, "", true},
    {"value-y", Field::kY, "", true},
    {"slider-width", Field::kFixed, "100", true},
    {"ticks", Field::kFixed, "0", false},
    {"foreground-color", Field::kFixed, "\"\"", false},
    {"label", Field::kLabel, "", true},
    {"label-type", Field::kFixed, ":string", false},
    {"layout-type", Field::kFixed, ":horizontal", false},
    {"orientation", Field::kLayout, "", true},
    {"show-range", Field::kFixed, "t", false},
    {"min-value", Field::kFixed, "0", true},
    {"max-value", Field::kFixed, "100", true},
    {"min-tick-string", Field::kFixed, "\"\"", false},
    {"max-tick-string", Field::kFixed, "\"\"", false},
    {"initial-value", Field::kFixed, "25", true},
    {"initial-state", Field::kState, "", false},
    {"event-handler", Field::kFixed, "nil", false},
    {"user-data", Field::kFixed, "()", false},
};

constexpr Row kListRows[] = {
    {"name", Field::kName, "", true},
    {"owner", Field::kOwner, "", true},
    {"help", Field::kFixed, "\"\"", false},
    {"x", Field::kX, "", true},
    {"y", Field::kY, "", true},
    {"width", Field::kWidth, "", true},
    {"height", Field::kHeight, "", true},
    {"value-x", Field::kX, "", false},
    {"value-y", Field::kY, "", false},
    {"rows", Field::kFixed, "3", true},
    {"foreground-color", Field::kFixed, "\"\"", false},
    {"label", Field::kLabel, "", true},
    {"title", Field::kFixed, "\"\"", false},
    {"label-type", Field::kFixed, ":string", false},
    {"layout-type", Field::kFixed, ":vertical", false},
    {"read-only", Field::kFixed, "nil", false},
    {"multiple-selections", Field::kFixed, "nil", false},
    {"selection-required", Field::kFixed, "nil", false},
    {"initial-state", Field::kState, "", false},
    {"droppable", Field::kFixed, "nil", false},
    {"default-drop-site", Field::kFixed, "nil", false},
    {"menu", Field::kMenu, "", true},
    {"notify-handler", Field::kProcedure, "", false},
    {"event-handler", Field::kFixed, "nil", false},
    {"initial-list-values", Field::kItems, "", true},
    {"initial-list-glyphs", Field::kFixed, "()", false},
    {"initial-selections", Field::kItemFlags, "", false},
    {"user-data", Field::kFixed, "()", false},
};

constexpr Row kMenuRows[] = {
    {"name", Field::kName, "", true},
    {"help", Field::kFixed, "\"\"", false},
    {"columns", Field::kFixed, "1", false},
    {"menu-type", Field::kStyle, ":command", true},
    {"menu-handler", Field::kFixed, "nil", false},
    {"menu-title", Field::kLabel, "", false},
    {"menu-item-labels", Field::kItems, "", true},
    {"menu-item-label-types", Field::kItemTypes, "", true},
    {"menu-item-states", Field::kItemStates, "", true},
    {"menu-item-defaults", Field::kFirstItem, "", false},
    {"initial-selections", Field::kItemFlags, "", false},
    {"menu-item-handlers", Field::kItemHandlers, "", false},
    {"menu-item-menus", Field::kItemMenus, "", true},
    {"menu-item-colors", Field::kItemColors, "", false},
    {"pinnable", Field::kFixed, "nil", false},
    {"user-data", Field::kFixed, "()", false},
};

constexpr Row kGroupRows[] = {
    {"name", Field::kName, "", true},
    {"x", Field::kX, "", true},
    {"y", Field::kY, "", true},
    {"group-type", Field::kFixed, ":row", true},
    {"members", Field::kMembers, "", true},
    {"rows", Field::kFixed, "1", false},
    {"row-alignment", Field::kFixed, ":top-edges", false},
    {"columns", Field::kFixed, "0", false},
    {"column-alignment", Field::kFixed, ":left-edges", false},
    {"horizontal-spacing", Field::kFixed, "10", false},
    {"vertical-spacing", Field::kFixed, "10", false},
    {"anchor-object", Field::kFixed, "nil", false},
    {"anchor-point", Field::kFixed, ":north-west", false},
    {"reference-point", Field::kFixed, ":north-west", false},
    {"horizontal-offset", Field::kFixed, "0", false},
    {"vertical-offset", Field::kFixed, "0", false},
    {"user-data", Field::kFixed, "()", false},
};

struct Type {
  const char* keyword;
  std::span<const Row> rows;
};

// By Kind, in its order.
constexpr std::array<Type, 13> kTypes = {{
    {"base-window", kWindowRows},
    {"popup-window", kPopupRows},
    {"control-area", kControlAreaRows},
    {"canvas-pane", kCanvasRows},
    {"button", kButtonRows},
    {"message", kMessageRows},
    {"text-field", kTextFieldRows},
    {"setting", kSettingRows},
    {"slider", kSliderRows},
    {"gauge", kGaugeRows},
    {"scrolling-list", kListRows},
    {"menu", kMenuRows},
    {"group", kGroupRows},
}};

constexpr int kValueOffset = 88;  // pixels from a control's label to its value

std::string_view OrNil(const std::string& text) {
  return text.empty() ? std::string_view("nil") : std::string_view(text);
}

// "(" element " " element " " ... ")", the way the editor spaces its lists.
template <typename PutElement>
void PutList(TextOutput* out, std::size_t count, PutElement put_element) {
  out->Put("(");
  for (std::size_t i = 0; i < count; ++i) {
    put_element(i);
    out->Put(" ");
  }
  out->Put(")");
}

void PutQuoted(TextOutput* out, std::string_view text) {
  out->Put("\"");
  out->Put(text);
  out->Put("\"");
}

void PutField(TextOutput* out, const Object& object, const Row& row) {
  const std::size_t items = object.items.size();
  switch (row.field) {
    case Field::kFixed:
      out->Put(row.fixed);
      break;
    case Field::kName:
      out->Put(object.name);
      break;
    case Field::kOwner:
      out->Put(OrNil(object.owner));
      break;
    case Field::kLabel:
      PutQuoted(out, object.label);
      break;
    case Field::kMenu:
      out->Put(OrNil(object.menu));
      break;
    case Field::kProcedure:
      out->Put(OrNil(object.procedure));
      break;
    case Field::kStyle:
      out->Put(object.style.empty() ? row.fixed : object.style.c_str());
      break;
    case Field::kState:
      out->Put(object.visible ? ":active" : ":inactive");
      break;
    case Field::kShown:
      out->Put(object.visible ? ":visible" : ":invisible");
      break;
    case Field::kX:
      out->PutNumber(object.x);
      break;
    case Field::kY:
      out->PutNumber(object.y);
      break;
    case Field::kValueX:
      out->PutNumber(object.x + kValueOffset);
      break;
    case Field::kWidth:
      out->PutNumber(object.width);
      break;
    case Field::kHeight:
      out->PutNumber(object.height);
      break;
    case Field::kColumns:
      out->PutNumber(object.columns);
      break;
    case Field::kLayout:
      out->Put(object.vertical ? ":vertical" : ":horizontal");
      break;
    case Field::kItems:
      PutList(out, items, [&](std::size_t i) { PutQuoted(out, object.items[i]); });
      break;
    case Field::kItemTypes:
      PutList(out, items, [&](std::size_t) { out->Put(":string"); });
      break;
    case Field::kItemStates:
      PutList(out, items, [&](std::size_t) { out->Put(":active"); });
      break;
    case Field::kItemColors:
      PutList(out, items, [&](std::size_t) { out->Put("\"\""); });
      break;
    case Field::kItemFlags:
      PutList(out, items, [&](std::size_t) { out->Put("nil"); });
      break;
    case Field::kFirstItem:
      PutList(out, items, [&](std::size_t i) { out->Put(i == 0 ? "t" : "nil"); });
      break;
    case Field::kItemMenus:
      PutList(out, items, [&](std::size_t i) {
        out->Put(i < object.item_menus.size() ? object.item_menus[i] : "nil");
      });
      break;
    case Field::kItemHandlers:
      PutList(out, items, [&](std::size_t) { out->Put(OrNil(object.procedure)); });
      break;
    case Field::kMembers:
      PutList(out, object.members.size(), [&](std::size_t i) { out->Put(object.members[i]); });
      break;
  }
}

}  // namespace

void GilWriter::WriteKeyword(std::string_view keyword) {
  constexpr std::string_view kBlanks = "                       ";
  out_->Put("\t:");
  out_->Put(keyword);
  out_->Put(keyword.size() < kBlanks.size() ? kBlanks.substr(keyword.size()) : " ");
}

void GilWriter::WriteConnections(const std::vector<Connection>& connections) {
  if (connections.empty()) {
    out_->Put("()\n");
    return;
  }
  out_->Put("(\n");
  for (const Connection& connection : connections) {
    out_->Put("\t\t(\n\t\t:from                   (");
    out_->Put(connection.from);
    out_->Put(")\n\t\t:when                   (");
    out_->Put(connection.when);
    out_->Put(" )\n\t\t:to                     (");
    out_->Put(connection.to);
    out_->Put(")\n\t\t:function_type          ");
    out_->Put(connection.function_type);
    out_->Put("\n\t\t:arg_type               ()\n\t\t:action                 (");
    out_->Put(connection.action);
    out_->Put(")\n\t\t)\n");
  }
  out_->Put("\t)\n");
}

void GilWriter::Begin() { out_->Put(";GIL-3\n(\n"); }

void GilWriter::Write(const Object& object) {
  const bool brief = attributes_ == Attributes::kShort;
  const Type& type = kTypes[static_cast<std::size_t>(object.kind)];
  out_->Put("(\n");
  WriteKeyword("type");
  out_->Put(":");
  out_->Put(type.keyword);
  out_->Put("\n");
  for (const Row& row : type.rows) {
    if (brief && !row.brief) continue;
    WriteKeyword(row.keyword);
    PutField(out_, object, row);
    out_->Put("\n");
  }
  if (!brief || !object.connections.empty()) {
    WriteKeyword("actions");
    WriteConnections(object.connections);
  }
  out_->Put(")\n");
}

void GilWriter::End() { out_->Put(")\n"); }

void GilWriter::WriteProject(const std::vector<std::string>& interfaces,
                             const std::vector<Connection>& connections) {
  out_->Put(";GIL-3\n(\n");
  WriteKeyword("interfaces");
  PutList(out_, interfaces.size(), [&](std::size_t i) { out_->Put(interfaces[i]); });
  out_->Put("\n");
  WriteKeyword("actions");
  WriteConnections(connections);
  out_->Put("\t:root_window            nil\n)\n");
}
