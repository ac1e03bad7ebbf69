// SPDX-License-Identifier: MIT
// The predefined actions: what each does to its target, and which procedure of the program does it.
#ifndef PANDREL_PORT_TARGETS_H
#define PANDREL_PORT_TARGETS_H

#include <string>

#include "port/port_session.h"

namespace port {

// A call in the generated program.
struct Call {
  std::string procedure;  // of zo.h: "ZoManageCB"; or of connections.c: "SetLabel"
  std::string argument;   // what ZoManageCB gets: "name.mappedWhenManaged=True"
  std::string widget;     // of SetLabel and SetValue: the widget
  std::string text;       // and its new text

  // As in C, for a reader.
  std::string Text() const;
};

// Why the program cannot do the action; empty if it can.
std::string WhyNotPredefined(const Session& session, const Connection& connection);

// The call that does it. Names are those of the module as mended, once that is done.
Call PredefinedCall(const Session& session, const Connection& connection);

// The widget that the connection's target is: of a dialog its work area, of an item the item. Null
// when there is none.
const Widg* TargetWidget(const Session& session, const Connection& connection);

}  // namespace port

#endif
