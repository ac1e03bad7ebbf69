// SPDX-License-Identifier: MIT
// Copies the objects and actions of a file into the model before the conversion consumes them.
#ifndef PANDREL_PORT_SNAPSHOT_H
#define PANDREL_PORT_SNAPSHOT_H

#include "port/port_session.h"

struct Obj;

namespace port {

// Copies the parser's list (reverse file order) to the end of the model's objects, and the actions
// of its objects to the end of the connections. Every object gets a list of actions of its
// own, if only an empty action, which later identifies its widgets.
void CopyObjects(Session& session, int file, Obj* parsed);

// Copies the actions of a project file.
void CopyProject(Session& session, int file, const Obj* project);

}  // namespace port

#endif
