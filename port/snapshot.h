// SPDX-License-Identifier: MIT
// The objects and actions of a file as it has them, copied into the model before the conversion
// consumes them.
#ifndef PANDREL_PORT_SNAPSHOT_H
#define PANDREL_PORT_SNAPSHOT_H

#include "port/port_session.h"

struct Obj;

namespace port {

// Copies the parser's list (reverse file order) to the end of the model's objects, and the actions
// of its objects to the end of the connections. Every object leaves with a list of actions of its
// own, if only an empty action, by which its widgets are known later.
void CopyObjects(Session& session, int file, Obj* parsed);

// Copies the actions of a project file.
void CopyProject(Session& session, int file, const Obj* project);

}  // namespace port

#endif
