// SPDX-License-Identifier: MIT
// The widget tree: the Motif interface that will be written. One record per widget, linked by a
// first child and a next sibling, each with its own lists of resources and callbacks.
//
// Records live in the arena until the conversion ends and are never freed. Texts are shared,
// writable buffers: a widget keeps the caller's pointers, copies of a widget share its lists, and a
// change in place shows everywhere. While a file is being converted a widget may stand in two lists
// at once (a menu that a button has claimed is still in the top-level list), so the links are not
// always a tree: every walk down has a guard (widget/walk.h, widget/plain_search.h).
#ifndef PANDREL_WIDGET_TREE_H
#define PANDREL_WIDGET_TREE_H

#include <cstdint>

#include "osi/strings.h"

struct Action;
struct Widg;

// One resource setting. Neither text is copied.
struct Resource {
  Resource* next;
  const char* name;   // "XmNwidth"
  const char* value;  // as it is in UIL behind " = "
};

// One callback procedure. No text is copied.
struct Callback {
  Callback* next;
  const char* callback_name;  // "XmNactivateCallback"
  char* procedure;            // shared with the procedure list, whose user may capitalise it
  const char* argument;       // the text between the parentheses, maybe empty
};

struct Widg {
  Widg* next;                         // next sibling
  const char* class_name;             // Motif class, not copied; empty: never written
  char* name;                         // instance name, unique; the text belongs to the name table
  char* gil_name;                     // the requested name as it was before it was made legal
  Widg* child;                        // first child
  Callback* callbacks;                // in insertion order
  Resource* resources;                // in the order in which each name was first set
  Action* actions;                    // of the GIL object; null for companions
  int32_t managed;                    // 0: listed as "unmanaged" by its parent
  int32_t wrapped;                    // 1: a companion was made around it
  int32_t x, y, width, height;        // of the GIL object, in pixels; 0 when unknown
  int32_t generated;                  // 1: written already
  int32_t extra_width, extra_height;  // pixels that Motif needs beyond the GIL size

  uint32_t walk;  // mark of the last walk that visited it (widget/walk.h)

  // What searches know of the widget: note [what searches know] in widget/known_names.h.
  Widg* parent;    // the first widget that had it in its list of children; null: none
  uint32_t visit;  // mark of the last search that visited it; 0: it was never in the tree
  bool top_level;  // in the list of top_widget
  bool shared;     // in more than one list of children
};

// The first of the top-level widgets: shells, dialog shells, and menus before the clean-up.
extern Widg* top_widget;

// A new widget of that class (the pointer is kept) whose instance name is made from `requested`:
// in the caller's buffer the first letter is lowered and a name of 32 characters or more is cut to
// 30, then the name table makes it unique. A null name counts as empty. Ends the run when memory is
// exhausted, as the other constructors do.
Widg* MakeWidg(const char* class_name, char* requested);

Resource* MakeResource(const char* name, const char* value);
Callback* MakeCallback(const char* callback_name, char* procedure, const char* argument);

// Whether the widget is of that Motif class.
inline bool IsClass(const Widg* widg, const char* class_name) {
  return OsiStrcmp(widg->class_name, class_name) == 0;
}

// Whether the widget is a window: of its own, or a dialog's.
inline bool IsShell(const Widg* widg) {
  return IsClass(widg, "TopLevelShell") || IsClass(widg, "XmDialogShell");
}

// The last widget of the list that `widg` is in or begins; null for null.
Widg* LastSibling(Widg* widg);

// 1 when `widg` is in the parent's child list; 0 also when either is null.
int IsChild(const Widg* parent, const Widg* widg);

// Sets a resource: replaces the value if the widget has the resource, else appends it. Neither text
// is copied.
void AddResource(Widg* widg, const char* name, const char* value);

// The value of the first resource of that name, "" when there is none; never null.
const char* GetResourceValue(const Widg* widg, const char* name);

// Whether the widget has a value for the resource that is not empty.
bool HasResource(const Widg* widg, const char* name);

// The value as atoi reads it: 0 for an absent resource.
int32_t GetResourceInt(const Widg* widg, const char* name);

// Unlinks the first resource of that name. The record keeps its `next`, so another widget whose
// list begins with it still has it and what follows.
void RemoveResource(Widg* widg, const char* name);

// Moves a resource that is not empty from one widget to another.
void MoveResource(Widg* from, const char* name, Widg* to);

// Empties the tree. What searches know of it goes with ResetKnownNames.
void ResetTree();

#endif
