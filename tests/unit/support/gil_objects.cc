// SPDX-License-Identifier: MIT
#include "unit/support/gil_objects.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "driver/driver.h"
#include "widget/links.h"
#include "widget/search.h"
#include "widget/tree.h"

Value* IdValue(std::string_view text) { return stringValue(3, text.data(), text.size()); }

Value* StrValue(std::string_view text) {
  const std::string quoted = std::string("\"").append(text).append("\"");
  return stringValue(1, quoted.data(), quoted.size());
}

Attr* Id(int32_t name, std::string_view text) { return makeAttr(name, IdValue(text)); }
Attr* Str(int32_t name, std::string_view text) { return makeAttr(name, StrValue(text)); }
Attr* Int(int32_t name, int32_t number) { return makeAttr(name, intValue(number)); }
Attr* Tok(int32_t name, int32_t token) { return makeAttr(name, tokenValue(token)); }

Attr* Ids(int32_t name, std::initializer_list<std::string_view> texts) {
  Value* first = nullptr;
  Value** link = &first;
  for (std::string_view text : texts) {
    *link = IdValue(text);
    link = &(*link)->next;
  }
  return makeAttr(name, first);
}

static void Push(Value** list, Value* value) {
  value->next = *list;
  *list = value;
}

Attr* Strs(int32_t name, std::initializer_list<std::string_view> texts) {
  Value* list = nullptr;
  for (std::string_view text : texts) Push(&list, StrValue(text));
  return makeAttr(name, list);
}

Attr* Toks(int32_t name, std::initializer_list<int32_t> tokens) {
  Value* list = nullptr;
  for (int32_t token : tokens) Push(&list, tokenValue(token));
  return makeAttr(name, list);
}

static Attr* LinkAttrs(std::initializer_list<Attr*> attrs) {
  Attr* first = nullptr;
  Attr** link = &first;
  for (Attr* attr : attrs) {
    *link = attr;
    link = &attr->next;
  }
  return first;
}

Obj* Object(int32_t type, std::string_view name, std::initializer_list<Attr*> attrs) {
  Attr* name_attr = Id(NAME, name);
  name_attr->next = LinkAttrs(attrs);
  Obj* obj = makeObj(type, name_attr, nullptr);
  obj->name = name_attr->value->sval;
  return obj;
}

Obj* Nameless(int32_t type, std::initializer_list<Attr*> attrs) {
  return makeObj(type, LinkAttrs(attrs), nullptr);
}

Obj* Owning(Obj* obj, std::initializer_list<Obj*> children) {
  Obj** link = &obj->children;
  for (Obj* child : children) {
    *link = child;
    link = &child->next;
  }
  return obj;
}

Obj* Acting(Obj* obj, std::initializer_list<Action*> actions) {
  Action** link = &obj->actions;
  for (Action* action : actions) {
    *link = action;
    link = &action->next;
  }
  return obj;
}

Action* Call(std::string_view from, std::string_view when, std::string_view function) {
  return makeAction(IdValue(from), IdValue(when), nullptr, IdValue("CallFunction"), nullptr,
                    IdValue(function));
}

Action* Predefined(std::string_view from, std::string_view when, std::string_view to,
                   std::string_view action) {
  return makeAction(IdValue(from), IdValue(when), IdValue(to), tokenValue(USER_DEFINED), nullptr,
                    IdValue(action));
}

Widg* Convert(std::initializer_list<Obj*> objects) {
  Obj* first = nullptr;
  Obj** link = &first;
  for (Obj* obj : objects) {
    *link = obj;
    link = &obj->next;
  }
  ConvertObjHierToWidgHier(first, top_widget ? &LastSibling(top_widget)->next : &top_widget);
  return top_widget;
}

Widg* Convert(Obj* obj) { return Convert({obj}); }

Widg* Find(const char* gil_name) {
  Widg* found = FindWidg(top_widget, gil_name);
  if (!found) throw std::runtime_error(std::string("no widget ") + gil_name);
  return found;
}
