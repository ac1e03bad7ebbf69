// SPDX-License-Identifier: MIT
#include "gil/object.h"

#include <cstdio>
#include <cstring>

#include "gil/position.h"
#include "gil/tokens.h"
#include "osi/arena.h"
#include "osi/fatal.h"
#include "text/uil_text.h"

// The run cannot go on without the record.
[[noreturn]] static void OutOfMemory(const char* message) {
  yyerror(message);
  OsiExit(-1);
}

Value* createValue(int32_t kind) {
  auto* value = ArenaNew<Value>();
  if (!value) OutOfMemory("Out of memory allocating a Value");
  value->kind = kind;
  return value;
}

Value* tokenValue(int32_t token) {
  Value* value = createValue(kTokenValue);
  value->ival = token;
  return value;
}

Value* intValue(int32_t number) {
  Value* value = createValue(kIntegerValue);
  value->ival = number;
  return value;
}

Value* stringValue(int32_t /*kind*/, const char* text, std::size_t length) {
  Value* value = createValue(kStringValue);
  value->sval = ArenaText(text, strnlen(text, length));
  if (!value->sval) OutOfMemory("Out of memory allocating a Value");
  return value;
}

Attr* makeAttr(int32_t name, Value* value) {
  auto* attr = ArenaNew<Attr>();
  if (!attr) OutOfMemory("Out of memory allocating an attribute");
  attr->name = name;
  attr->value = value;
  return attr;
}

Action* makeAction(Value* from, Value* when, Value* to, Value* functionType, Value* argTypes,
                   Value* actionName) {
  auto* action = ArenaNew<Action>();
  if (!action) OutOfMemory("Out of memory allocating an action");
  action->from = from;
  action->when = when;
  action->to = to;
  action->functionType = functionType;
  action->argTypes = argTypes;
  action->actionName = actionName;
  return action;
}

Obj* makeObj(int32_t type, Attr* attrs, Action* actions) {
  auto* obj = ArenaNew<Obj>();
  if (!obj) OutOfMemory("Out of memory allocating an object");
  obj->type = type;
  obj->attrs = attrs;
  obj->actions = actions;
  return obj;
}

char* AttrText(const Attr* attrs, int32_t name) {
  for (const Attr* attr = attrs; attr; attr = attr->next) {
    if (attr->name == name) return attr->value ? attr->value->sval : nullptr;
  }
  return nullptr;
}

int GetAttrValue(Obj* obj, int32_t name, Value** valueOut, int remove) {
  for (Attr** link = &obj->attrs; *link; link = &(*link)->next) {
    if ((*link)->name != name) continue;
    *valueOut = (*link)->value;
    // The unlinked record keeps its own `next`: a walk that stands on it goes on behind it.
    if (remove) *link = (*link)->next;
    return 1;
  }
  return 0;
}

int GetAttrValueString(Obj* obj, int32_t name, char** textOut, int remove) {
  Value* value = nullptr;
  if (!GetAttrValue(obj, name, &value, remove) || !value) return 0;
  switch (value->kind) {
    case kStringValue:
      *textOut = value->sval;
      return 1;
    case kIntegerValue:
      *textOut = IntToString(value->ival);
      return 1;
    default:
      std::fputs("Don't know how to deal with token types\n", stderr);
      return 0;
  }
}
