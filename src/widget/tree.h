// SPDX-License-Identifier: MIT
// The widget tree: the Motif interface that will be written. One record per widget, linked by a
// first child and a next sibling, each with its own lists of resources and callbacks.
//
// Records live in the arena until the conversion ends and are never freed. Texts are shared,
// writable buffers: a widget keeps the caller's pointers, copies of a widget share its lists, and a
// change in place shows everywhere. While a file is being converted a widget may stand in two lists
// at once (a menu that a button has claimed is still in the top-level list), so nothing may take
// the links for a tree: every walk that goes down guards itself (widget/search.h).
#ifndef PANDREL_WIDGET_TREE_H
#define PANDREL_WIDGET_TREE_H

#include <cstdint>

#include "osi/fixed_text.h"

struct Action;
struct Widg;

// One resource setting. Neither text is copied.
struct Resource {
  Resource* next;
  FixedText name;     // "XmNwidth"
  const char* value;  // as it stands in UIL behind " = "
};

// One callback procedure. No text is copied.
struct Callback {
  Callback* next;
  const char* callback_name;  // "XmNactivateCallback"
  char* procedure;            // shared with the procedure list, whose user may capitalise it
  const char* argument;       // what stands between the parentheses, maybe nothing
};

// What the links say of a widget, written down so that a search need not go through the tree to
// find out. Kept by widget/links.cc and widget/name_index.cc; nobody else writes to it.
struct Place {
  Widg* parent;        // whose list the widget is in; kTopLevel; null: in no list
  Widg* last_child;    // of this widget's list, unless it has left that; null: not known
  Widg* claimed_by;    // while top-level: who else has it in its list
  Widg* same_hash;     // the next older widget in the name index whose name has the same hash
  Widg* made_before;   // the widget made before this one
  uint32_t order;      // rises along a list
  uint32_t made;       // rises with each widget made
  uint32_t unit;       // in which the widget was made; see widget/name_index.h
  uint32_t oldest;     // the least `made` below, itself included
  uint32_t hash;       // of the GIL name; 0: not in the index yet
  bool was_top_level;  // stands among the top-level widgets of the name index, now or from before
  bool shared;         // in more than one list below the top level
};

struct Widg {
  // What walks and searches look at stands together.
  Widg* next;            // next sibling
  Widg* child;           // first child
  FixedText class_name;  // Motif class; empty: never written
  Resource* resources;   // in the order in which each name was first set
  // Marks of walks, so that each ends whatever the links are.
  uint32_t visit;                     // of the search that saw the widget last (widget/search.cc)
  uint32_t walk;                      // of the walk that saw it last (widget/walk.h)
  char* gil_name;                     // the requested name as it was before it was made legal
  Place place;                        // where the links put it
  char* name;                         // instance name, unique; the text belongs to the name table
  Callback* callbacks;                // in insertion order
  Action* actions;                    // of the GIL object; null for companions
  int32_t managed;                    // 0: listed as "unmanaged" by its parent
  int32_t wrapped;                    // 1: a companion made for its sake stands around it
  int32_t x, y, width, height;        // of the GIL object, in pixels; 0 when unknown
  int32_t generated;                  // 1: written already
  int32_t extra_width, extra_height;  // pixels that Motif needs beyond the GIL size
  bool shares_lists;  // a copy of this widget, or the one that it is a copy of, has the same lists
};

// The first of the top-level widgets: shells, dialog shells, and menus before the clean-up.
extern Widg* top_widget;

// A new widget of that class (the pointer is kept) whose instance name is made from `requested`:
// in the caller's buffer the first letter is lowered and a name of 32 characters or more is cut to
// 30, then the name table makes it unique. A null name counts as empty. Ends the run when memory is
// exhausted, as the other constructors do.
Widg* MakeWidg(FixedText class_name, char* requested);

Resource* MakeResource(FixedText name, const char* value);
Callback* MakeCallback(const char* callback_name, char* procedure, const char* argument);

// Gives the widget another GIL name, which is shared, not copied.
void SetGilName(Widg* widg, char* gil_name);

// Whether the widget is of that Motif class.
inline bool IsClass(const Widg* widg, FixedText class_name) {
  return widg->class_name == class_name;
}

// Sets a resource: replaces the value where the name stands already, else appends.
void AddResource(Widg* widg, FixedText name, const char* value);

// The value of the first resource of that name, "" when there is none; never null.
const char* GetResourceValue(const Widg* widg, FixedText name);

// Whether the widget has a value for the resource that is not empty.
bool HasResource(const Widg* widg, FixedText name);

// The value as atoi reads it: 0 for an absent resource.
int32_t GetResourceInt(const Widg* widg, FixedText name);

// Unlinks the first resource of that name. The record keeps its `next`: another widget whose list
// head it is still sees it and what follows.
void RemoveResource(Widg* widg, FixedText name);

// Moves a resource that is not empty from one widget to another.
void MoveResource(Widg* from, FixedText name, Widg* to);

// Empties the tree.
void ResetTree();

#endif
