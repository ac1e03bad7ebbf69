// SPDX-License-Identifier: MIT
// One conversion: the converter's records beside the model that is made from them. It ends, and the
// records with it, when the model is complete.
#ifndef PANDREL_PORT_PORT_SESSION_H
#define PANDREL_PORT_PORT_SESSION_H

#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "names/name_table.h"
#include "port/model.h"

struct Action;
struct Callback;
struct Obj;
struct Widg;

namespace port {

// A callback of a widget that an action became.
struct Link {
  int connection = -1;
  Widg* widg = nullptr;
  const Callback* callback = nullptr;
};

// A place in the interface that connections.c adds a callback to.
struct PlannedSource {
  int connection = -1;
  const Widg* widg = nullptr;
  std::string event;      // as in Source
  std::string condition;  // as in Source
};

struct Session {
  Model model;
  std::vector<Obj*> objs;              // beside model.objects
  std::vector<const Action*> actions;  // beside model.connections; null for none
  std::vector<Link> links;
  std::vector<PlannedSource> sources;
  std::unordered_map<std::string, std::string> procedures;  // as written -> as mended
  std::set<const Callback*> left_out;  // of the module: connections.c makes the call, or nobody
  std::vector<std::string> reasons;    // beside model.connections: why one is lost, so far
  std::vector<Widg*> widgets;          // all of the tree, parents first
  std::unordered_map<const Widg*, int> object_of;          // for each of them; -1 for none
  std::unordered_map<int, std::vector<Widg*>> widgets_of;  // the other way round: IndexWidgets()
  std::unordered_map<const Widg*, Widg*> parent_of;        // null at the top
  std::unordered_map<const Widg*, NameHandle> made;        // rises with each widget made
  std::vector<Widg*> cut_off;  // lists that a window took the place of at the top level
  std::vector<Widg*> written;  // beside the objects of the module
  std::unordered_map<const Widg*, std::string> names;  // in the module as mended
};

// Sorts the session's widgets by object. To be called when the list or an object has changed.
void IndexWidgets(Session& session);

// The widgets that go with an object, in the order of the session's list.
const std::vector<Widg*>& WidgetsOf(const Session& session, int object);

// For each new widget of the tree since the last call, notes the object that it was made for.
void LinkWidgets(Session& session, int first_object);

// Lists the written widgets in the order of the module's objects: what is below a widget first. The
// module has been written.
void ListWritten(Session& session);

// Sets what became of every object. Call it after the module is written and mended.
void SettleObjects(Session& session);

// The widgets that an object's own attributes went to, in the order in which they were made: the
// one that stands for it and copies of it.
std::vector<Widg*> OwnWidgets(const Session& session, int object);

// The widget's name in the module as mended; before that, as written.
std::string NameOf(const Session& session, const Widg* widg);

// Whether the widget, one of the session's, is written: in the module or, for a shell, its
// comments.
bool IsInModule(const Widg* widg);

}  // namespace port

#endif
