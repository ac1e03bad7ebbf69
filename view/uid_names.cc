// SPDX-License-Identifier: MIT
#include "uid_names.h"

#include <X11/Shell.h>
#include <Xm/RowColumn.h>

#include <set>

#include "uid_texts.h"
#include "uilfix/module_files.h"
#include "widget_tree.h"

namespace view {
namespace {

// Procedures that the resource manager did not know since the set was last emptied.
std::set<std::string> unknown_procedures;

// Takes the name out of "Callback routine 'quit' not registered". All else that the manager has to
// say while names are tried, above all that most are no widgets, is dropped.
void LearnFromWarning(String message) {
  constexpr std::string_view kBefore = "Callback routine '";
  const std::string_view text = message;
  const std::size_t at = text.find(kBefore);
  if (at == std::string_view::npos) return;
  const std::string_view rest = text.substr(at + kBefore.size());
  unknown_procedures.emplace(rest.substr(0, rest.find('\'')));
}

bool IsMenu(Widget widget) {
  if (!XmIsRowColumn(widget)) return false;
  unsigned char type = XmWORK_AREA;
  XtVaGetValues(widget, XmNrowColumnType, &type, nullptr);
  return type == XmMENU_PULLDOWN || type == XmMENU_POPUP;
}

struct Trial {
  std::vector<std::string> fetched;  // names that are widgets, menus left out
  std::set<std::string> inner;       // names of widgets that lie in others
};

// Fetches each name that can be and throws the widgets away.
Trial FetchAll(MrmHierarchy hierarchy, const Toolkit& toolkit,
               const std::vector<std::string>& names) {
  Trial trial;
  Widget shell = XtVaAppCreateShell("trial", "PandrelView", topLevelShellWidgetClass,
                                    toolkit.display, nullptr);
  for (const std::string& name : names) {
    Widget widget = nullptr;
    MrmType type = 0;
    std::string text = name;
    if (MrmFetchWidget(hierarchy, text.data(), shell, &widget, &type) != MrmSUCCESS || !widget) {
      continue;
    }
    WalkWidgets(widget, [&](Widget below) {
      if (below != widget) trial.inner.insert(XtName(below));
    });
    if (!IsMenu(widget)) trial.fetched.push_back(name);
  }
  XtDestroyWidget(shell);
  return trial;
}

}  // namespace

std::vector<std::string> ReadUidNames(const std::filesystem::path& uid) {
  return FindNames(uilfix::ReadFile(uid.string()).value_or(""));
}

std::vector<Shell> ShellsOfUid(MrmHierarchy hierarchy, const Toolkit& toolkit,
                               const std::vector<std::string>& names,
                               const std::function<void(const std::string&)>& provide) {
  XtErrorHandler handler = XtAppSetWarningHandler(toolkit.app, LearnFromWarning);
  Trial trial;
  std::set<std::string> known;
  // The first unknown procedure of a list of calls hides the others, so each round may find more.
  for (bool learned = true; learned;) {
    learned = false;
    unknown_procedures.clear();
    trial = FetchAll(hierarchy, toolkit, names);
    for (const std::string& name : unknown_procedures) {
      if (!known.insert(name).second) continue;
      provide(name);
      learned = true;
    }
  }
  XtAppSetWarningHandler(toolkit.app, handler);
  std::vector<Shell> shells;
  for (const std::string& name : trial.fetched) {
    if (trial.inner.contains(name)) continue;
    Shell shell;
    shell.name = name + "_shell";
    shell.work.push_back({name, true});
    shells.push_back(shell);
  }
  return shells;
}

}  // namespace view
