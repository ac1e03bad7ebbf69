// SPDX-License-Identifier: MIT
// The callbacks of a widget: a list in insertion order, without duplicates.
#ifndef PANDREL_WIDGET_CALLBACKS_H
#define PANDREL_WIDGET_CALLBACKS_H

struct Widg;

// Enters the procedure in the procedure list, and appends a callback unless the widget has one with
// the same three texts. The texts are shared, not copied.
void AddCallback(Widg* widg, const char* callback_name, char* procedure, const char* argument);

// Moves every callback of that name; those that stay keep their order. Does nothing for null.
void MoveCallback(Widg* from, Widg* to, const char* callback_name);

#endif
