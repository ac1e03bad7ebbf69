// SPDX-License-Identifier: MIT
// Menus. A menu is filled when it is converted, before all other objects; whoever uses it decides
// what kind of Motif menu it becomes. The first user gets the widget itself, users of the same kind
// share it, and a user that needs the other kind gets a copy.
#ifndef PANDREL_CONVERT_MENUS_H
#define PANDREL_CONVERT_MENUS_H

struct Obj;
struct Widg;

// Fills the menu with one button per item; returns it. A menu without an attribute for its labels
// or its type ends the run.
Widg* SpecProcMenu(Obj* obj, Widg* widg);

// Turns a button with a menu into a menu bar that holds it as a cascade button, and returns the
// bar. Returns the button itself when it has no menu and, after a message on standard output, when
// no widget has the menu's name.
Widg* MakeMenuButton(Obj* obj, Widg* button);

// Makes the menu that the object names the widget's popup menu. Writes a message on standard output
// when no widget has that name.
void AttachPopupMenu(Obj* obj, Widg* widg);

#endif
