// SPDX-License-Identifier: MIT
// The records that a GIL file becomes: objects with attributes and actions, all plain and linked by
// pointers. The parser makes them, the conversion reads them through GetAttrValue. Records and
// texts live in the arena until the conversion ends. Texts are shared and writable: a change shows
// to all who have the pointer.
//
// Codes are token numbers (gil/tokens.h). A null pointer is the empty list. Name lists are in file
// order, all other lists in reverse file order.
#ifndef PANDREL_GIL_OBJECT_H
#define PANDREL_GIL_OBJECT_H

#include <cstddef>
#include <cstdint>

enum ValueKind : int32_t { kTokenValue = 0, kStringValue = 1, kIntegerValue = 2 };

struct Value {
  Value* next;
  int32_t kind;  // a ValueKind
  int32_t ival;  // the token number or the integer; 0 for a string
  char* sval;    // the string as the file has it, quotes and backslashes included; else null
};

struct Action;

struct Attr {
  Attr* next;
  int32_t name;
  union {
    Value* value;
    Action* actions;  // of a project's ACTIONS attribute only
  };
};

struct Action {
  Action* next;
  Value* from;  // path of names
  Value* when;
  Value* to;            // path of names
  Value* functionType;  // token, or the identifier of a predefined function
  Value* argTypes;
  Value* actionName;
};

struct Obj {
  int32_t type;
  Obj* allNext;  // every object of the file, in the order of the parser's list
  Obj* next;     // siblings; before resolveChildren the parser's list
  Obj* children;
  Attr* attrs;
  Action* actions;
  // The text of the first NAME attribute as resolveChildren found it, shared with that; null where
  // there is none or it is no string.
  char* name;
};

// The constructors report exhausted memory through yyerror and end the run with status -1.
Value* createValue(int32_t kind);
Value* tokenValue(int32_t token);
Value* intValue(int32_t number);

// A string Value with a private copy of the first `length` bytes of `text`, which end at the first
// NUL among them. `kind` tells the scanner's identifiers (3) from its strings (1) and is
// deliberately ignored: only the scanner tells them apart.
Value* stringValue(int32_t kind, const char* text, std::size_t length);

Attr* makeAttr(int32_t name, Value* value);
Action* makeAction(Value* from, Value* when, Value* to, Value* functionType, Value* argTypes,
                   Value* actionName);
Obj* makeObj(int32_t type, Attr* attrs, Action* actions);

// The text of the first attribute of that name, shared; null when there is none or it is no string.
char* AttrText(const Attr* attrs, int32_t name);

// Finds the object's first attribute of that name. 0 when there is none; else stores its value
// (null for an empty list) in *valueOut, unlinks the attribute when `remove` is set, and returns 1.
int GetAttrValue(Obj* obj, int32_t name, Value** valueOut, int remove);

// The same for the text of a scalar: a string's own text (shared), an integer's decimal text (new).
// For a token, which has no text, writes a line on standard error and returns 0, though it removes
// the attribute when `remove` is set. Returns 0 for an empty list, too.
int GetAttrValueString(Obj* obj, int32_t name, char** textOut, int remove);

// Puts each object of the parser's list (reverse file order) below the object that its OWNER
// attribute names and returns the top-level ones; that list and all children are in file order.
// Reports an owner that does not exist on standard error and leaves its object at the top level. An
// object that owns itself disappears from the top level.
Obj* resolveChildren(Obj* objects);

#endif
