// SPDX-License-Identifier: MIT
// Reads values for the converters. A null Value stands for a missing element, a null text for the
// empty one.
#ifndef PANDREL_GIL_VALUE_H
#define PANDREL_GIL_VALUE_H

#include "gil/object.h"

// The value of the object's first attribute of that name, which leaves the object; null when there
// is none, and for an empty list.
Value* TakeValue(Obj* obj, int32_t name);

// The same, but the object keeps the attribute.
Value* PeekValue(Obj* obj, int32_t name);

// The value's text, shared and writable; never null.
char* ValueText(const Value* value);

// The value's token, `missing` for a null Value.
int32_t ValueToken(const Value* value, int32_t missing);

bool IsStringValue(const Value* value);

// Whether the text is the empty string of GIL: two double quotes.
bool IsEmptyGilString(const char* text);

// Whether there is a text and it is not the empty string of GIL.
bool HasGilText(const Value* value);

// Steps to the next element. Null stays null, since one of several parallel lists may be shorter.
void Step(Value** list);

// The last element of a list; null for the empty one.
const Value* LastValue(const Value* list);

#endif
