// SPDX-License-Identifier: MIT
// The parser leaves out carriage returns, since no rewrite would recognise an entry with one
// inside. This only reports it.
#include "uilfix/rewrites.h"

namespace uilfix {

void FixLineEnds(Module& module, Report& report) {
  const CarriageReturns& left_out = module.carriage_returns;
  if (left_out.count == 0) return;
  report.Add(left_out.line, std::to_string(left_out.count) + " carriage returns left out");
}

}  // namespace uilfix
