// SPDX-License-Identifier: MIT
// The rewrites that make a module of pandrel's compile and behave, and the table of their switches.
//
// Each leaves a module alone that does not need it, and finds nothing more to do in its own result.
// They run in the order of the table, which matters: arguments are matched with widgets before any
// text or name changes, and lines are measured last.
#ifndef PANDREL_UILFIX_REWRITES_H
#define PANDREL_UILFIX_REWRITES_H

#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>

#include "uilfix/module.h"
#include "uilfix/report.h"

namespace uilfix {

struct Rewrite {
  std::string_view name;     // as in --no-NAME
  std::string_view summary;  // for --help and --list
  void (*apply)(Module& module, Report& report);
  bool on_request = false;  // as in --with=NAME
};

// Which rewrites run.
struct Selection {
  std::set<std::string, std::less<>> off;  // of those that run by themselves
  std::set<std::string, std::less<>> on;   // of those that run on request

  bool Has(const Rewrite& rewrite) const;
};

// The table, in the order in which the rewrites run.
std::span<const Rewrite> Rewrites();

// The row of this name, or null.
const Rewrite* FindRewrite(std::string_view name);

// Runs every rewrite of the selection.
void FixModule(Module& module, const Selection& selection, Report& report);

// Module text in, module text out; `starts` is from the GIL file that the module was made from, or
// empty. Mending the result changes nothing. Returns nothing when each mending would change the
// text again, which happens only with text that is not UIL; the report then has the first line of
// that.
std::optional<std::string> MendText(std::string_view text, const Selection& selection,
                                    Report& report, const std::vector<GilStart>& starts = {});

// The same with all but the rewrites in `off`, and none on request. Returns the text itself when
// MendText returns nothing.
std::string FixText(std::string_view text, const std::set<std::string, std::less<>>& off,
                    Report& report);

// What the compiler refuses.
void FixLineEnds(Module& module, Report& report);
void FixNewlines(Module& module, Report& report);
void FixEscapes(Module& module, Report& report);
void FixBytes(Module& module, Report& report);
void FixNumbers(Module& module, Report& report);
void FixMenus(Module& module, Report& report);
void FixDuplicates(Module& module, Report& report);
void FixNames(Module& module, Report& report);
void FixClashes(Module& module, Report& report);
void FixProcedures(Module& module, Report& report);
void FixLines(Module& module, Report& report);

// What compiles and then behaves badly.
void FixEncoding(Module& module, Report& report);
void FixArguments(Module& module, Report& report);
void FixPopups(Module& module, Report& report);
void FixTextPanes(Module& module, Report& report);
void FixToggles(Module& module, Report& report);
void FixLabels(Module& module, Report& report);
void FixReasons(Module& module, Report& report);
void FixCallbacks(Module& module, Report& report);

// What programs may count on, so that it is done on request only.
void FixOrder(Module& module, Report& report);
void FixStarts(Module& module, Report& report);
void FixContainers(Module& module, Report& report);
void FixDialogs(Module& module, Report& report);

}  // namespace uilfix

#endif
