// SPDX-License-Identifier: MIT
// What was changed in a module, for the user to read.
#ifndef PANDREL_UILFIX_REPORT_H
#define PANDREL_UILFIX_REPORT_H

#include <string>
#include <string_view>
#include <vector>

namespace uilfix {

struct Change {
  int line = 0;              // in the module as read
  std::string_view rewrite;  // the name of the switch that turns it off
  std::string text;
};

// Collects changes. A rewrite adds one per text, name or entry that it altered, and none when it
// altered nothing.
class Report {
 public:
  // The rewrite that the changes from here on belong to. The text must outlive the report.
  void SetRewrite(std::string_view rewrite) { rewrite_ = rewrite; }

  void Add(int line, std::string text) { changes_.push_back({line, rewrite_, std::move(text)}); }

  const std::vector<Change>& Changes() const { return changes_; }

 private:
  std::string_view rewrite_;
  std::vector<Change> changes_;
};

}  // namespace uilfix

#endif
