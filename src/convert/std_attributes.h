// SPDX-License-Identifier: MIT
// The nine attributes that mean the same on every object: position, size, colours, initial state,
// border and help.
#ifndef PANDREL_CONVERT_STD_ATTRIBUTES_H
#define PANDREL_CONVERT_STD_ATTRIBUTES_H

struct Attr;
struct Obj;
struct Value;
struct Widg;

// 1 for one of the nine, else 0.
int IsStdAttribute(const Attr* attr);

// Converts one of the nine to a resource, a callback or a geometry field of the widget. Ends the
// run for any other attribute.
void ProcessStdAttributes(const Obj* obj, Widg* widg, const Attr* attr);

// A new text: the UIL colour for a colour string as the file has it, quotes included.
char* MakeColorVal(const char* text);

// Sets the resource to the colour; does nothing for a null or an empty one.
void SetColor(Widg* widg, const char* resource, const Value* color);

// A new text: the UIL form of a reference to a widget, its class and its name.
char* MakeWidgetAttachment(const Widg* widg);

#endif
