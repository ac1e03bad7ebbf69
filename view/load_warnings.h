// SPDX-License-Identifier: MIT
// What the toolkit says while it reads a compiled module.
#ifndef PANDREL_VIEW_LOAD_WARNINGS_H
#define PANDREL_VIEW_LOAD_WARNINGS_H

#include <Xm/Xm.h>

#include <string>
#include <vector>

namespace view {

struct LoadWarnings {
  std::vector<std::string> icons;   // bitmap files that could not be read
  std::vector<std::string> colors;  // names that the display does not know
  std::vector<std::string> damage;  // complaints of the resource manager about the file itself
  std::vector<std::string> others;
};

// Sorts the toolkit's warnings by what they mean.
LoadWarnings SortWarnings(const std::vector<std::string>& warnings);

// Collects the warnings of the toolkit in place of printing them, while it lives. One at a time.
class WarningCollector {
 public:
  explicit WarningCollector(XtAppContext app);
  ~WarningCollector();
  WarningCollector(const WarningCollector&) = delete;
  WarningCollector& operator=(const WarningCollector&) = delete;

  const std::vector<std::string>& Warnings() const;

 private:
  XtAppContext app_;
  XtErrorHandler former_;
};

}  // namespace view

#endif
