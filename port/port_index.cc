// SPDX-License-Identifier: MIT
#include "port/port_index.h"

#include <algorithm>
#include <cstring>
#include <kainjow/mustache.hpp>
#include <stdexcept>

#include "port/data_uri.h"
#include "port/page_text.h"

namespace port {

using Data = kainjow::mustache::data;

std::string RelativeUrl(const std::string& path) {
  static const char kPlain[] = "-._~/";
  static const char kHex[] = "0123456789ABCDEF";
  std::string url;
  for (char c : path) {
    const auto byte = static_cast<unsigned char>(c);
    const bool is_letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    if (is_letter || (c >= '0' && c <= '9') || (c != '\0' && std::strchr(kPlain, c))) {
      url += c;
    } else {
      url += {'%', kHex[byte >> 4], kHex[byte & 15]};
    }
  }
  return url;
}

static Data Flag(bool value) {
  return Data(value ? Data::type::bool_true : Data::type::bool_false);
}

static Data MakeEntry(const IndexEntry& entry) {
  const ReportTotals& totals = entry.totals;
  Data row;
  row.set("name", PageText(entry.name));
  row.set("has_report", Flag(!entry.report.empty()));
  row.set("report", RelativeUrl(entry.report));
  const std::string picture = entry.picture.empty() ? "" : PngDataUri(entry.picture);
  row.set("has_picture", Flag(!picture.empty()));
  row.set("picture", picture);
  row.set("has_sketch", Flag(picture.empty() && !entry.sketch.empty()));
  row.set("sketch", entry.sketch);
  row.set("has_failure", Flag(!entry.failure.empty()));
  row.set("failure", PageText(entry.failure));
  row.set("actions", std::to_string(totals.actions));
  row.set("in_module", std::to_string(totals.in_module));
  row.set("in_connections", std::to_string(totals.in_connections));
  row.set("in_functions", std::to_string(totals.in_functions));
  row.set("lost_actions", std::to_string(totals.lost_actions));
  row.set("objects", std::to_string(totals.objects));
  row.set("lost_objects", std::to_string(totals.lost_objects));
  row.set("faults", std::to_string(totals.overlaps + totals.cut_texts + totals.outside));
  row.set("missing", std::to_string(totals.missing_icons + totals.missing_colors));
  row.set("messages", std::to_string(totals.messages));
  return row;
}

std::string MakeIndex(const IndexInput& input) {
  kainjow::mustache::mustache page(input.page_template);
  if (!page.is_valid()) throw std::runtime_error("index.html.mustache: " + page.error_message());
  page.set_custom_escape(EscapeMarkup);
  IndexEntry sum;
  Data entries{Data::type::list};
  for (const IndexEntry& entry : input.entries) {
    sum.totals += entry.totals;
    entries.push_back(MakeEntry(entry));
  }
  const auto failures =
      std::count_if(input.entries.begin(), input.entries.end(),
                    [](const IndexEntry& entry) { return !entry.failure.empty(); });
  Data data;
  data.set("tree", PageText(input.tree));
  data.set("version", PageText(input.version));
  data.set("programs", std::to_string(input.entries.size()));
  data.set("failures", std::to_string(failures));
  data.set("totals", TotalsLine(sum.totals));
  data.set("has_entries", Flag(!input.entries.empty()));
  data.set("entries", entries);
  data.set("sum", MakeEntry(sum));
  return page.render(data);
}

}  // namespace port
