// SPDX-License-Identifier: MIT
#include <algorithm>

#include "port/model.h"
#include "port/port_report.h"
#include "port/report_rows.h"

namespace port {

// Every number, for what treats them alike.
static int ReportTotals::*const kCounts[] = {
    &ReportTotals::actions,       &ReportTotals::in_module,      &ReportTotals::in_connections,
    &ReportTotals::in_functions,  &ReportTotals::lost_actions,   &ReportTotals::objects,
    &ReportTotals::shown,         &ReportTotals::replaced,       &ReportTotals::lost_objects,
    &ReportTotals::overlaps,      &ReportTotals::cut_texts,      &ReportTotals::outside,
    &ReportTotals::missing_icons, &ReportTotals::missing_colors, &ReportTotals::messages};

static_assert(sizeof(kCounts) / sizeof(kCounts[0]) == sizeof(ReportTotals) / sizeof(int));

ReportTotals& ReportTotals::operator+=(const ReportTotals& other) {
  for (int ReportTotals::*const count : kCounts) this->*count += other.*count;
  return *this;
}

static int Count(const std::vector<LayoutFault>& faults, const char* kind) {
  return static_cast<int>(
      std::count_if(faults.begin(), faults.end(),
                    [kind](const LayoutFault& fault) { return fault.kind == kind; }));
}

ReportTotals CountAll(const ReportInput& input) {
  ReportTotals totals;
  for (const Connection& connection : input.model->connections) {
    ++totals.actions;
    switch (connection.fate) {
      case ConnectionFate::kModule:
        ++totals.in_module;
        break;
      case ConnectionFate::kConnections:
        ++totals.in_connections;
        break;
      case ConnectionFate::kFunction:
        ++totals.in_functions;
        break;
      case ConnectionFate::kLost:
        ++totals.lost_actions;
    }
  }
  for (const PortObject& object : input.model->objects) {
    ++totals.objects;
    switch (object.fate) {
      case ObjectFate::kShown:
        ++totals.shown;
        break;
      case ObjectFate::kReplaced:
        ++totals.replaced;
        break;
      case ObjectFate::kLost:
        ++totals.lost_objects;
    }
  }
  totals.overlaps = Count(input.faults, "overlap");
  totals.cut_texts = Count(input.faults, "cut");
  totals.outside = Count(input.faults, "outside");
  totals.missing_icons = static_cast<int>(MissingIcons(input).size());
  totals.missing_colors = static_cast<int>(MissingColors(input).size());
  for (const std::string& line : input.model->messages) totals.messages += line.empty() ? 0 : 1;
  return totals;
}

static std::string Number(int count, const char* one, const char* many) {
  return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string TotalsLine(const ReportTotals& totals) {
  std::string line = Number(totals.actions, "action", "actions") + ": " +
                     std::to_string(totals.in_module) + " in the module, " +
                     std::to_string(totals.in_connections) + " in connections.c, " +
                     Number(totals.in_functions, "call", "calls") + " of your functions, " +
                     std::to_string(totals.lost_actions) + " lost; " +
                     Number(totals.objects, "object", "objects") + ": " +
                     std::to_string(totals.shown) + " shown, " + std::to_string(totals.replaced) +
                     " replaced, " + std::to_string(totals.lost_objects) + " lost";
  const auto add = [&](int count, const char* one, const char* many) {
    if (count > 0) line += "; " + Number(count, one, many);
  };
  add(totals.overlaps, "overlap", "overlaps");
  add(totals.cut_texts, "cut text", "cut texts");
  add(totals.outside, "control outside its container", "controls outside their containers");
  add(totals.missing_icons, "missing icon", "missing icons");
  add(totals.missing_colors, "unknown colour", "unknown colours");
  add(totals.messages, "line of messages", "lines of messages");
  return line;
}

}  // namespace port
