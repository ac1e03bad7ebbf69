// SPDX-License-Identifier: MIT
// One-line builders of widgets, and widgets as texts that a test compares.
#ifndef PANDREL_TESTS_UNIT_SUPPORT_WIDGETS_H
#define PANDREL_TESTS_UNIT_SUPPORT_WIDGETS_H

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "widget/tree.h"

// A writable copy of the text that lives as long as the session.
char* Writable(std::string_view text);

// A widget of that class, requested as `name`, with the children appended one by one.
Widg* NewWidg(const char* class_name, std::string_view name,
              std::initializer_list<Widg*> children = {});

// Links widgets that are in no list yet as siblings; returns the first.
Widg* Siblings(std::initializer_list<Widg*> widgets);

// A label, and a popup menu, of that GIL name.
Widg* Leaf(const char* name);
Widg* Popup(const char* name);

// Appends widgets that are in no list yet to the top level; returns its first widget.
Widg* TopLevel(std::initializer_list<Widg*> widgets);

struct Setting {
  const char* name;
  const char* value;
};

// Sets the resources; returns the widget.
Widg* With(Widg* widg, std::initializer_list<Setting> resources);

// Sets "XmNx", "XmNy", "XmNwidth", "XmNheight"; returns the widget.
Widg* At(Widg* widg, int32_t x, int32_t y, int32_t width, int32_t height);

// Sets the geometry of the GIL object; returns the widget.
Widg* FromGil(Widg* widg, int32_t x, int32_t y, int32_t width, int32_t height);

// "XmNx=12 XmNy=5", in list order.
std::string Resources(const Widg* widg);

// "XmNactivateCallback proc(argument); ...", in list order.
std::string Callbacks(const Widg* widg);

// The procedure list, separated by blanks.
std::string Procedures();

// The GIL names of a sibling list: "a b c". A list without an end is cut short by "...".
std::string Names(const Widg* first);

// A sibling list with all below it, by GIL name "a(b c(d)) e", by instance name, or by class. What
// is too long or too deep to be meant, such as a circle, is cut short by "...".
std::string NameTree(const Widg* first);
std::string InstanceTree(const Widg* first);
std::string ClassTree(const Widg* first);

// A widget with all below it, without the siblings behind it.
std::string ClassTreeOf(const Widg* widg);

#endif
