// SPDX-License-Identifier: MIT
// The carriage returns are left out when the text is read: in the midst of an entry no rewrite
// would know the entry. What remains to be done is to say so.
#include "uilfix/rewrites.h"

namespace uilfix {

void FixLineEnds(Module& module, Report& report) {
  const CarriageReturns& left_out = module.carriage_returns;
  if (left_out.count == 0) return;
  report.Add(left_out.line, std::to_string(left_out.count) + " carriage returns left out");
}

}  // namespace uilfix
