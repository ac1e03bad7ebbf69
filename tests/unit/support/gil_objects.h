// SPDX-License-Identifier: MIT
// One-line builders of GIL objects, as the reader delivers them, and their conversion.
//
//   Convert(Object(SLIDER, "volume", {Int(WIDTH, 200), Str(LABEL, "Volume:")}))
//
// Lists are given in file order and held as the reader holds them: lists of names in file order,
// all others in reverse. Attributes are held in the order given.
#ifndef PANDREL_TESTS_UNIT_SUPPORT_GIL_OBJECTS_H
#define PANDREL_TESTS_UNIT_SUPPORT_GIL_OBJECTS_H

#include <cstdint>
#include <initializer_list>
#include <string_view>

#include "gil/object.h"
#include "gil/tokens.h"

struct Widg;

// Values: an identifier as it stands, a string between double quotes, an integer and a token.
Value* IdValue(std::string_view text);
Value* StrValue(std::string_view text);

// Attributes with one value.
Attr* Id(int32_t name, std::string_view text);
Attr* Str(int32_t name, std::string_view text);
Attr* Int(int32_t name, int32_t number);
Attr* Tok(int32_t name, int32_t token);

// Attributes with a list; an empty one has no value at all.
Attr* Ids(int32_t name, std::initializer_list<std::string_view> texts);
Attr* Strs(int32_t name, std::initializer_list<std::string_view> texts);
Attr* Toks(int32_t name, std::initializer_list<int32_t> tokens);

// An object with its name, which is its first attribute, and further attributes.
Obj* Object(int32_t type, std::string_view name, std::initializer_list<Attr*> attrs = {});

// An object without a name.
Obj* Nameless(int32_t type, std::initializer_list<Attr*> attrs = {});

// Makes the children the object's own; returns the object.
Obj* Owning(Obj* obj, std::initializer_list<Obj*> children);

// Links the actions as the object's; returns the object.
Obj* Acting(Obj* obj, std::initializer_list<Action*> actions);

// An action FROM an object, WHEN something happens, that calls a user's function.
Action* Call(std::string_view from, std::string_view when, std::string_view function);

// An action that does one of the predefined things TO another object.
Action* Predefined(std::string_view from, std::string_view when, std::string_view to,
                   std::string_view action);

// Converts the objects as those of one file, in this order, and links them behind what is at the
// top level already; returns the first widget of the top level.
Widg* Convert(std::initializer_list<Obj*> objects);
Widg* Convert(Obj* obj);

// The widget of that GIL name among all that is at the top level and below; fails the test when
// there is none.
Widg* Find(const char* gil_name);

#endif
