// SPDX-License-Identifier: MIT
// GIL actions (connections between objects) to callbacks, once the whole tree stands: actions may
// name objects of any file of a project. Calls of user functions become callbacks of their own;
// show, hide, enable and disable call the builder's run-time library. What Motif has no equivalent
// for is dropped, with a note on standard error when `verbose` is set.
#ifndef PANDREL_CONVERT_ACTIONS_H
#define PANDREL_CONVERT_ACTIONS_H

struct Action;
struct Value;
struct Widg;

// Converts the actions of every widget below, children before parents, then the widget's own.
void ProcessActionsForWidgHierarchy(Widg* widg);

// Converts the actions of one widget, in list order.
void ProcessActionsForWidg(Widg* widg);

// The widget that the action comes from: the widget itself, or the first of its children whose
// label or glyph is the last name of FROM (an item of a setting or a menu).
Widg* LocateFromWidg(Widg* widg, const Action* action);

// Converts one action of the widget; nothing happens for null.
void ProcessAction(Widg* widg, const Action* action);

// Adds a callback that calls the function named by `action`, if the event has one.
void AddCallbackForCallFunction(Widg* widg, const Value* when, const Value* action);

// Adds a callback for "Show", "Hide", "Enable" or "Disable" of the widget that `to` names. May
// rename that widget, and change the text of `to`, for the builder's version 2.5.
void AddCallbackForDefinedAction(Widg* widg, const Value* when, const Value* to,
                                 const Value* action);

// Choose the procedure and the argument that show or hide the named target; return the widget acted
// on, or null (and leave both alone) when there is none.
Widg* FindWidgToShow(const char* target, char** procedure, char** argument);
Widg* FindWidgToHide(const char* target, char** procedure, char** argument);

// Renames the target for the builder's version 2.5; a message on standard error when it is not
// found.
void FindAndFixUpWidgetName(const char* name);

// In place, where the target is the builder's version 2.5: its rule for names that end in a digit.
// Returns `name`.
char* FixInstanceNameForZO25(char* name);

#endif
