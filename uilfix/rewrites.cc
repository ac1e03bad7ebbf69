// SPDX-License-Identifier: MIT
#include "uilfix/rewrites.h"

namespace uilfix {
namespace {

constexpr Rewrite kRewrites[] = {
    {"lineends", "leave out carriage returns before line ends", FixLineEnds},
    {"arguments", "let Show, Hide, Enable and Disable name the widget as the module does",
     FixArguments},
    {"order", "put the items of lists in the order of the GIL file", FixOrder, true},
    {"starts", "let sliders, gauges and lists start as the GIL file says", FixStarts, true},
    {"newlines", "write \\n for a line end inside a string", FixNewlines},
    {"escapes", "write the escapes of C as UIL has them", FixEscapes},
    {"encoding", "write UTF-8 texts in Latin-1, which is what Motif draws", FixEncoding},
    {"bytes", "write bytes that do not print as numbers", FixBytes},
    {"numbers", "keep numbers within the compiler's range", FixNumbers},
    {"menus", "make a popup menu of a menu that nothing uses", FixMenus},
    {"duplicates", "rename the second of two widgets of one name", FixDuplicates},
    {"procedures", "mend calls and declarations that a renamed procedure left behind",
     FixProcedures},
    {"names", "rename what is reserved, too long or not a name", FixNames},
    {"clashes", "rename a widget that is named like a procedure", FixClashes},
    {"popups", "leave popup menus unmanaged, so that they are not posted at start", FixPopups},
    {"textpanes", "let text panes hold more than one line", FixTextPanes},
    {"toggles", "show by a shadow which choice is set where there is no indicator", FixToggles},
    {"containers", "give children a container whose parent can have none", FixContainers, true},
    {"dialogs", "let dialogs stay when one of their buttons is pressed", FixDialogs, true},
    {"labels", "make labels of several lines compound strings", FixLabels},
    {"reasons", "give a list's callback the reason of its selection policy", FixReasons},
    {"callbacks", "give help and checking procedures their own callbacks", FixCallbacks},
    {"lines", "break lines that are too long for the compiler", FixLines},
};

}  // namespace

std::span<const Rewrite> Rewrites() { return kRewrites; }

const Rewrite* FindRewrite(std::string_view name) {
  for (const Rewrite& rewrite : kRewrites) {
    if (rewrite.name == name) return &rewrite;
  }
  return nullptr;
}

bool Selection::Has(const Rewrite& rewrite) const {
  return rewrite.on_request ? on.contains(rewrite.name) : !off.contains(rewrite.name);
}

void FixModule(Module& module, const Selection& selection, Report& report) {
  for (const Rewrite& rewrite : kRewrites) {
    if (!selection.Has(rewrite)) continue;
    report.SetRewrite(rewrite.name);
    rewrite.apply(module, report);
  }
}

std::optional<std::string> MendText(std::string_view text, const Selection& selection,
                                    Report& report, const std::vector<GilStart>& starts) {
  // A change in text of no known form may change the meaning of the rest, so mend it until nothing
  // is left to do. In any other text the first round finds everything.
  constexpr int kMostRounds = 10;
  std::string mended;
  int odd_line = 0;
  for (int round = 0; round < kMostRounds; ++round) {
    CarriageReturns left_out;
    std::string plain;
    const bool line_ends = text.find('\r') != std::string_view::npos;
    if (line_ends && !selection.off.contains("lineends"))
      plain = WithPlainLineEnds(text, &left_out);
    Module module = ParseModule(left_out.count > 0 ? plain : text);
    module.carriage_returns = left_out;
    module.starts = starts;
    FixModule(module, selection, report);
    std::string result = RenderModule(module);
    if (result == text || module.odd_line == 0) return result;
    if (odd_line == 0) odd_line = module.odd_line;
    mended = std::move(result);
    text = mended;
  }
  report.GiveUp(odd_line);
  return std::nullopt;
}

std::string FixText(std::string_view text, const std::set<std::string, std::less<>>& off,
                    Report& report) {
  return MendText(text, Selection{off, {}}, report).value_or(std::string(text));
}

}  // namespace uilfix
