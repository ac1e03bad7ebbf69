// SPDX-License-Identifier: MIT
// Turns GIL actions (connections between objects) into callbacks, once all widgets are there, since
// an action may name objects of any file of a project. A call of a user function becomes a callback
// to it; show, hide, enable and disable call the builder's run-time library. Drops what Motif has
// no equivalent for, with a note on standard error when `verbose` is set.
#ifndef PANDREL_CONVERT_ACTIONS_H
#define PANDREL_CONVERT_ACTIONS_H

struct Action;
struct Widg;

// Converts the actions of every widget below, children before parents, then the widget's own.
void ProcessActionsForWidgHierarchy(Widg* widg);

// Converts the actions of one widget, in list order.
void ProcessActionsForWidg(Widg* widg);

// The widget that the action comes from: the first child (an item of a setting or a menu) whose
// label or glyph is the last name of FROM; without such a child the widget itself.
Widg* LocateFromWidg(Widg* widg, const Action* action);

// Converts one action of the widget; nothing happens for null.
void ProcessAction(Widg* widg, const Action* action);

// Choose the procedure and the argument (a new text) that show or hide the target of that GIL name,
// which may be renamed for the builder's version 2.5. Return the widget acted on; null, and both
// left alone, when there is none.
Widg* FindWidgToShow(const char* target, char** procedure, char** argument);
Widg* FindWidgToHide(const char* target, char** procedure, char** argument);

// Renames the target for the builder's version 2.5. Writes a message on standard error when no
// widget has that GIL name.
void FindAndFixUpWidgetName(const char* name);

// When the module is meant for the builder's version 2.5: applies its rule for names that end in a
// digit (ReplaceTrailingDigit), in place. Returns `name`.
char* FixInstanceNameForZO25(char* name);

#endif
