// SPDX-License-Identifier: MIT
// The rows of the report's tables, as page text, for the page and for a terminal.
#ifndef PANDREL_PORT_REPORT_ROWS_H
#define PANDREL_PORT_REPORT_ROWS_H

#include <string>
#include <vector>

namespace port {

struct Connection;
struct Model;
struct PortObject;
struct ReportInput;

struct ConnectionRow {
  std::string file;
  std::string from;  // the path of the object or item
  std::string event;
  std::string action;  // "Show dialog", "quit()", "code"
  std::string code;    // of an action that is C code; else empty
  std::string fate;
  std::string call;  // what is called, with the name of a user's function
  std::string by;    // "button.activateCallback", one after the other
  std::string reason;
};
ConnectionRow MakeRow(const Model& model, const Connection& connection);

struct ObjectRow {
  std::string file;
  std::string name;
  std::string type;
  std::string label;
  std::string fate;
  std::string widget;      // that stands for it, with its class
  std::string companions;  // the other widgets, as many as a few
  std::string reason;
};
ObjectRow MakeRow(const Model& model, const PortObject& object);

// A missing icon: its names, and where the files use them.
struct IconRow {
  std::string icon;
  std::string where;
};
std::vector<IconRow> MissingIcons(const ReportInput& input);

// Colours that the X server does not know, each once.
std::vector<std::string> MissingColors(const ReportInput& input);

}  // namespace port

#endif
