// SPDX-License-Identifier: MIT
// How an event of GIL comes about in Motif: on which widgets of the source, by which callback or
// event, under which condition.
#ifndef PANDREL_PORT_PORT_EVENTS_H
#define PANDREL_PORT_PORT_EVENTS_H

#include <vector>

#include "port/port_session.h"

namespace port {

// The places that bring the connection about; none when Motif has no such event, and then *why
// tells so.
std::vector<PlannedSource> FindSources(const Session& session, int connection, std::string* why);

// The callback that a list calls when the user selects: it depends on the list's policy, which the
// conversion does not look at.
const char* SelectionCallback(const Widg* list);

// The widgets of an item: of the object (its toggles, buttons, items of all copies) those with that
// label; all of them for an empty label.
std::vector<Widg*> ItemWidgets(const Session& session, int object, const std::string& label);

}  // namespace port

#endif
