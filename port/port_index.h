// SPDX-License-Identifier: MIT
// The page about the ports of a whole tree: one row for each program, with totals and failures.
#ifndef PANDREL_PORT_PORT_INDEX_H
#define PANDREL_PORT_PORT_INDEX_H

#include <filesystem>
#include <string>
#include <vector>

#include "port/port_report.h"

namespace port {

struct IndexEntry {
  std::string name;               // of the program: its input, mostly
  std::string report;             // its report.html, relative to the index; empty for none
  std::filesystem::path picture;  // PNG of its first window; empty for none
  std::string sketch;             // SVG of its first window, for when there is no picture
  std::string failure;            // why it failed, or what went wrong; empty when all is well
  ReportTotals totals;
};

struct IndexInput {
  std::string tree;                 // the folder that was ported
  std::vector<IndexEntry> entries;  // in the order of the page
  std::string version;              // of pandrel-port
  std::string page_template;        // the text of index.html.mustache
};

// The page: one file of HTML that refers to the reports and nothing else. Throws std::runtime_error
// with a message for the user when the template cannot be understood.
std::string MakeIndex(const IndexInput& input);

// A relative path as the target of a link: whatever is not plain in a URL is written as %XX.
std::string RelativeUrl(const std::string& path);

}  // namespace port

#endif
