// SPDX-License-Identifier: MIT
#include "uilfix/rewrites.h"

namespace uilfix {
namespace {

constexpr Rewrite kRewrites[] = {
    {"newlines", "write \\n for a line end inside a string", FixNewlines},
    {"escapes", "write the escapes of C as UIL has them", FixEscapes},
    {"encoding", "write UTF-8 texts in Latin-1, which is what Motif draws", FixEncoding},
    {"bytes", "write bytes that do not print as numbers", FixBytes},
    {"numbers", "keep numbers within the compiler's range", FixNumbers},
    {"menus", "make a popup menu of a menu that nothing uses", FixMenus},
    {"arguments", "let Show, Hide, Enable and Disable name the widget as the module does",
     FixArguments},
    {"duplicates", "rename the second of two widgets of one name", FixDuplicates},
    {"procedures", "mend calls and declarations that a renamed procedure left behind",
     FixProcedures},
    {"names", "rename what is reserved, too long or not a name", FixNames},
    {"clashes", "rename a widget that is named like a procedure", FixClashes},
    {"popups", "leave popup menus unmanaged, so that they are not posted at start", FixPopups},
    {"textpanes", "let text panes hold more than one line", FixTextPanes},
    {"toggles", "show by a shadow which choice is set where there is no indicator", FixToggles},
    {"labels", "make labels of several lines compound strings", FixLabels},
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

void FixModule(Module& module, const std::set<std::string, std::less<>>& off, Report& report) {
  for (const Rewrite& rewrite : kRewrites) {
    if (off.contains(rewrite.name)) continue;
    report.SetRewrite(rewrite.name);
    rewrite.apply(module, report);
  }
}

std::string FixText(std::string_view text, const std::set<std::string, std::less<>>& off,
                    Report& report) {
  Module module = ParseModule(text);
  FixModule(module, off, report);
  return RenderModule(module);
}

}  // namespace uilfix
