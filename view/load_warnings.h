// SPDX-License-Identifier: MIT
// The toolkit's warnings while it reads a compiled module.
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

// While it lives, collects the warnings of the toolkit instead of printing them. Make only one at a
// time.
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
