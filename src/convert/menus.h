// SPDX-License-Identifier: MIT
// Menus. A menu is filled when it is converted, before all other objects; what kind of Motif menu
// it becomes is decided by whoever uses it. The first user gets the widget itself; one that needs
// the other kind of menu gets a copy, and further users of the same kind share it.
#ifndef PANDREL_CONVERT_MENUS_H
#define PANDREL_CONVERT_MENUS_H

struct Obj;
struct Value;
struct Widg;

// Fills the menu with one button per item; returns it. A menu without an attribute for its labels
// or its type ends the run.
Widg* SpecProcMenu(Obj* obj, Widg* widg);

// Turns a button with a menu into a menu bar that holds it as a cascade button, and returns the
// bar; the button itself, after a message on standard output, when no widget has the menu's name.
Widg* MakeMenuButton(Obj* obj, Widg* button, const Value* menuValue);

// Makes the menu that the object names the widget's popup menu; consumes the attribute. A message
// on standard output when no widget has that name.
void AttachPopupMenu(Obj* obj, Widg* widg);

#endif
