// SPDX-License-Identifier: MIT
// Makes the folder of a program from one interface or project.
#ifndef PANDREL_PORT_PORT_H
#define PANDREL_PORT_PORT_H

#include <filesystem>
#include <string>
#include <vector>

#include "port/port_report.h"

namespace port {

struct Job {
  std::filesystem::path input;
  std::filesystem::path output;      // the program's folder
  std::vector<std::string> options;  // the converter's
  std::filesystem::path templates;   // the user's; empty for none
  bool pictures = true;
  std::string display;  // of an X server for the pictures; empty for one of the viewer's own
};

enum class PortStatus : int { kDone = 0, kFailed = 1, kUsage = 2 };

struct PortResult {
  PortStatus status = PortStatus::kDone;
  std::string error;               // why there is no program; empty when there is one
  std::vector<std::string> notes;  // for the user: files kept, functions added, pictures missing
  std::string table;               // of all connections, the totals last
  ReportTotals totals;
  std::string picture;  // of the first window, the bytes of a PNG file; empty for none
  std::string sketch;   // of the first window, SVG
};

// Writes the folder as a whole at the end, or leaves it as it was.
PortResult PortInterface(const Job& job);

}  // namespace port

#endif
