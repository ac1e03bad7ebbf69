// SPDX-License-Identifier: MIT
// Holds back standard error for a while: on a damaged file libraries write messages there that
// would hide the one that helps.
#ifndef PANDREL_VIEW_HELD_ERRORS_H
#define PANDREL_VIEW_HELD_ERRORS_H

namespace view {

// Holds back what any code writes to standard error until Release(), Discard() or the destructor,
// which releases it. A crash of the program loses the text, on purpose.
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
