// SPDX-License-Identifier: MIT
// The report of a port: what became of each object and each connection, and how the windows look
// beside what OPEN LOOK showed. As a page of its own, and as text for a terminal.
#ifndef PANDREL_PORT_PORT_REPORT_H
#define PANDREL_PORT_PORT_REPORT_H

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "port/layout_faults.h"
#include "port/sketch.h"

namespace port {

struct Model;

struct ReportInput {
  const Model* model = nullptr;  // outlives the call; never null
  std::vector<Sketch> sketches;  // DrawSketches() of the model
  // PNG pictures of the Motif windows, by the object of the model that each stands for. One that
  // cannot be read counts as not given.
  std::map<int, std::filesystem::path> pictures;
  std::string no_pictures;          // why there are none, for the reader; empty when there are
  std::vector<LayoutFault> faults;  // also of icons and colours
  bool checked = false;             // whether the layout was measured, with or without faults
  std::vector<std::string> missing_colors;  // names that the X server does not know
  std::string version;                      // of pandrel-port
  std::string page_template;                // the text of report.html.mustache
};

// How many there are of everything that a report tells.
struct ReportTotals {
  int actions = 0;
  int in_module = 0;  // of the actions, as the next three
  int in_connections = 0;
  int in_functions = 0;
  int lost_actions = 0;
  int objects = 0;
  int shown = 0;  // of the objects, as the next two
  int replaced = 0;
  int lost_objects = 0;
  int overlaps = 0;
  int cut_texts = 0;
  int outside = 0;  // of their containers
  int missing_icons = 0;
  int missing_colors = 0;
  int messages = 0;  // lines that the converter wrote, empty ones left out

  ReportTotals& operator+=(const ReportTotals& other);
};

ReportTotals CountAll(const ReportInput& input);

// The totals as one line without its newline: "12 actions: 7 in the module, ...".
std::string TotalsLine(const ReportTotals& totals);

// The page: one file of HTML without references to others. Throws std::runtime_error with a message
// for the user when the template cannot be understood.
std::string MakeReport(const ReportInput& input);

// The table of all connections, each action once, as lines of text; the last line has the totals.
std::string ReportText(const ReportInput& input);

}  // namespace port

#endif
