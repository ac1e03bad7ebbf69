// SPDX-License-Identifier: MIT
// How an event of GIL happens in Motif: on which widgets of the source, by which callback or event,
// under which condition.
#ifndef PANDREL_PORT_PORT_EVENTS_H
#define PANDREL_PORT_PORT_EVENTS_H

#include <vector>

#include "port/port_session.h"

namespace port {

// The places that cause the connection's action; none when Motif has no such event, and then *why
// says so.
std::vector<PlannedSource> FindSources(const Session& session, int connection, std::string* why);

// The callback that a list calls when the user selects an item. It depends on the list's policy,
// which the conversion ignores.
const char* SelectionCallback(const Widg* list);

// The widgets of an item: those of the object (its toggles, buttons, items of all copies) with that
// label; all of them for an empty label.
std::vector<Widg*> ItemWidgets(const Session& session, int object, const std::string& label);

}  // namespace port

#endif
