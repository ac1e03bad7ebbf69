// SPDX-License-Identifier: MIT
// Standard error kept back for a while: libraries that meet a damaged file write there what would
// hide the one message that helps.
#ifndef PANDREL_VIEW_HELD_ERRORS_H
#define PANDREL_VIEW_HELD_ERRORS_H

namespace view {

// Keeps what is written to standard error, by whatever library, until Release() or Discard(), or
// its own end, which releases it. If the program crashes meanwhile the text is lost, as is meant.
class HeldErrors {
 public:
  HeldErrors();
  ~HeldErrors();
  HeldErrors(const HeldErrors&) = delete;
  HeldErrors& operator=(const HeldErrors&) = delete;

  void Release() { End(true); }
  void Discard() { End(false); }

 private:
  void End(bool print);

  int memory_ = -1;  // the file in memory that stands in for standard error; -1 when none does
  int former_ = -1;
};

}  // namespace view

#endif
