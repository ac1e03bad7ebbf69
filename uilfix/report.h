// SPDX-License-Identifier: MIT
// What was changed in a module, for the user to read.
#ifndef PANDREL_UILFIX_REPORT_H
#define PANDREL_UILFIX_REPORT_H

#include <string>
#include <string_view>
#include <vector>

namespace uilfix {

struct Change {
  // In the module as read; for what is found only after other odd text was mended, in the module as
  // mended by then.
  int line = 0;
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

  // Forgets the changes: the text cannot be mended because of what stands at `line`.
  void GiveUp(int line) {
    changes_.clear();
    hopeless_line_ = line;
  }

  const std::vector<Change>& Changes() const { return changes_; }

  // The line that kept the text from being mended, in the module as read; 0 for none.
  int HopelessLine() const { return hopeless_line_; }

 private:
  std::string_view rewrite_;
  std::vector<Change> changes_;
  int hopeless_line_ = 0;
};

}  // namespace uilfix

#endif
