// SPDX-License-Identifier: MIT
// The nine attributes that mean the same on every object: position, size, colours, initial state,
// border and help.
#ifndef PANDREL_CONVERT_STD_ATTRIBUTES_H
#define PANDREL_CONVERT_STD_ATTRIBUTES_H

struct Attr;
struct Obj;
struct Widg;

// 1 for one of the nine, else 0.
int IsStdAttribute(const Attr* attr);

// Converts one of the nine to a resource, a callback or a geometry field of the widget. Any other
// attribute ends the run.
void ProcessStdAttributes(const Obj* obj, Widg* widg, const Attr* attr);

// The UIL colour for a colour string as the file has it, quotes included.
char* MakeColorVal(const char* text);

// The UIL form of a reference to a widget: its class and its name.
char* MakeWidgetAttachment(const Widg* widg);

#endif
