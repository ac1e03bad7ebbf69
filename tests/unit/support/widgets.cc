// SPDX-License-Identifier: MIT
#include "unit/support/widgets.h"

#include <cstddef>

#include "osi/arena.h"
#include "text/uil_text.h"
#include "widget/links.h"
#include "widget/procedures.h"

static constexpr int kLongestList = 200;
static constexpr int kDeepestTree = 50;

char* Writable(std::string_view text) { return ArenaText(text.data(), text.size()); }

Widg* NewWidg(const char* class_name, std::string_view name,
              std::initializer_list<Widg*> children) {
  Widg* widg = MakeWidg(class_name, Writable(name));
  for (Widg* child : children) AddChildWidg(widg, child);
  return widg;
}

Widg* Siblings(std::initializer_list<Widg*> widgets) {
  Widg* first = nullptr;
  Widg** link = &first;
  for (Widg* widg : widgets) {
    *link = widg;
    link = &widg->next;
  }
  return first;
}

Widg* Leaf(const char* name) { return NewWidg("XmLabel", name); }
Widg* Popup(const char* name) { return NewWidg("XmPopupMenu", name); }

Widg* TopLevel(std::initializer_list<Widg*> widgets) {
  LinkTopLevel(top_widget ? &LastSibling(top_widget)->next : &top_widget, Siblings(widgets));
  return top_widget;
}

Widg* With(Widg* widg, std::initializer_list<Setting> resources) {
  for (const Setting& setting : resources) AddResource(widg, setting.name, setting.value);
  return widg;
}

Widg* At(Widg* widg, int32_t x, int32_t y, int32_t width, int32_t height) {
  return With(widg, {{"XmNx", IntToString(x)},
                     {"XmNy", IntToString(y)},
                     {"XmNwidth", IntToString(width)},
                     {"XmNheight", IntToString(height)}});
}

Widg* FromGil(Widg* widg, int32_t x, int32_t y, int32_t width, int32_t height) {
  widg->x = x;
  widg->y = y;
  widg->width = width;
  widg->height = height;
  return widg;
}

static void AppendItem(std::string* text, const std::string& separator, const std::string& item) {
  if (!text->empty()) *text += separator;
  *text += item;
}

std::string Resources(const Widg* widg) {
  std::string text;
  for (const Resource* resource = widg->resources; resource; resource = resource->next) {
    AppendItem(&text, " ", std::string(resource->name) + "=" + resource->value);
  }
  return text;
}

std::string Callbacks(const Widg* widg) {
  std::string text;
  for (const Callback* callback = widg->callbacks; callback; callback = callback->next) {
    AppendItem(&text, "; ",
               std::string(callback->callback_name) + " " + callback->procedure + "(" +
                   callback->argument + ")");
  }
  return text;
}

std::string Procedures() {
  char** procedures = nullptr;
  const std::size_t count = GetProcedures(&procedures);
  std::string text;
  for (std::size_t i = 0; i < count; ++i) AppendItem(&text, " ", procedures[i]);
  return text;
}

using Label = const char* (*)(const Widg* widg);

static std::string ListText(const Widg* first, Label label, int depth);

static std::string WidgText(const Widg* widg, Label label, int depth) {
  std::string text = label(widg);
  if (!widg->child) return text;
  return text + "(" + (depth == kDeepestTree ? "..." : ListText(widg->child, label, depth + 1)) +
         ")";
}

static std::string ListText(const Widg* first, Label label, int depth) {
  std::string text;
  int count = 0;
  for (const Widg* widg = first; widg; widg = widg->next) {
    if (++count > kLongestList) return text + " ...";
    AppendItem(&text, " ", WidgText(widg, label, depth));
  }
  return text;
}

static const char* GilName(const Widg* widg) { return widg->gil_name; }
static const char* InstanceName(const Widg* widg) { return widg->name; }
static const char* ClassName(const Widg* widg) { return widg->class_name; }

std::string Names(const Widg* first) {
  std::string text;
  int count = 0;
  for (const Widg* widg = first; widg; widg = widg->next) {
    if (++count > kLongestList) return text + " ...";
    AppendItem(&text, " ", widg->gil_name);
  }
  return text;
}

std::string NameTree(const Widg* first) { return ListText(first, GilName, 0); }
std::string InstanceTree(const Widg* first) { return ListText(first, InstanceName, 0); }
std::string ClassTree(const Widg* first) { return ListText(first, ClassName, 0); }
std::string ClassTreeOf(const Widg* widg) { return WidgText(widg, ClassName, 0); }
