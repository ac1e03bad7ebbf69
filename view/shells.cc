// SPDX-License-Identifier: MIT
#include "shells.h"

#include <map>
#include <set>

#include "uilfix/literals.h"

namespace view {
namespace {

using uilfix::Argument;
using uilfix::Control;

bool IsShellClass(const std::string& class_name) {
  return class_name == "TopLevelShell" || class_name == "XmDialogShell";
}

bool IsMenuClass(const std::string& class_name) {
  return class_name == "XmPopupMenu" || class_name == "XmPulldownMenu" ||
         class_name == "XmUnknownMenu";
}

// A value in a comment as it would be without: a long one goes on in further comment lines.
std::string Uncomment(const std::string& value, const std::string& prefix) {
  std::string mark(1, '\n');
  mark += prefix;
  std::string bare;
  for (uilfix::ValuePart part : uilfix::SplitValue(value)) {
    std::size_t at = part.literal ? std::string::npos : part.text.find(mark);
    for (; at != std::string::npos; at = part.text.find(mark)) {
      part.text.erase(at + 1, prefix.size());
    }
    bare += part.text;
  }
  return bare;
}

// The text of a string value, "&" and escapes resolved.
std::string Text(const std::string& value) {
  std::string inside;
  return uilfix::PlainString(value, &inside) ? uilfix::LiteralBytes(inside) : "";
}

void ReadArgument(const Argument& argument, const std::string& prefix, Shell& shell) {
  const std::string value = Uncomment(argument.value, prefix);
  if (argument.resource == "XmNtitle") {
    shell.title = Text(value);
  } else if (argument.resource == "XmNiconic") {
    shell.iconic = value == "true";
  } else if (argument.resource == "XmNmappedWhenManaged") {
    shell.hidden = value == "false";
  } else if (argument.resource == "XmNsensitive") {
    shell.insensitive = value == "false";
  } else if (argument.resource.starts_with("XmN")) {
    const bool color = value.starts_with("color(") && value.ends_with(")");
    shell.resources.emplace_back(argument.resource.substr(3),
                                 color ? Text(value.substr(6, value.size() - 7)) : value);
  }
}

void ReadControl(const Control& control, Shell& shell) {
  if (IsShellClass(control.class_name)) return;
  const ShellChild child{control.name, !control.unmanaged};
  (IsMenuClass(control.class_name) ? shell.popups : shell.work).push_back(child);
}

Shell ReadShell(const uilfix::Object& object) {
  Shell shell;
  shell.name = object.name;
  shell.dialog = object.class_name == "XmDialogShell";
  uilfix::ForEachEntry<Argument>(
      object, [&](const Argument& argument) { ReadArgument(argument, object.prefix, shell); });
  uilfix::ForEachEntry<Control>(object,
                                [&](const Control& control) { ReadControl(control, shell); });
  return shell;
}

// The top-level shell that `name` lies in, found by climbing from child to parent.
std::string OwnerOf(const std::string& name, const std::map<std::string, std::string>& parents,
                    const std::set<std::string>& top_levels) {
  std::set<std::string> visited;
  for (auto at = parents.find(name); at != parents.end(); at = parents.find(at->second)) {
    if (top_levels.contains(at->second)) return at->second;
    if (!visited.insert(at->second).second) break;
  }
  return "";
}

std::vector<Shell> ShellPerLooseObject(const uilfix::Module& module,
                                       const std::map<std::string, std::string>& parents,
                                       const std::set<std::string>& left_out) {
  std::vector<Shell> shells;
  uilfix::ForEachObject(module, [&](const uilfix::Object& object) {
    if (parents.contains(object.name) || left_out.contains(object.name)) return;
    if (IsMenuClass(object.class_name)) return;
    Shell shell;
    shell.name = object.name + "_shell";
    shell.work.push_back({object.name, true});
    shells.push_back(shell);
  });
  return shells;
}

}  // namespace

std::vector<Shell> ReadShells(const uilfix::Module& module, const std::set<std::string>& left_out) {
  std::vector<Shell> shells;
  std::map<std::string, std::string> parents;
  std::set<std::string> top_levels;
  uilfix::ForEachObject(module, [&](const uilfix::Object& object) {
    uilfix::ForEachEntry<Control>(
        object, [&](const Control& control) { parents.emplace(control.name, object.name); });
    if (!object.IsComment() || !IsShellClass(object.class_name)) return;
    shells.push_back(ReadShell(object));
    if (!shells.back().dialog) top_levels.insert(object.name);
  });
  if (shells.empty()) return ShellPerLooseObject(module, parents, left_out);
  for (Shell& shell : shells) {
    if (shell.dialog) shell.owner = OwnerOf(shell.name, parents, top_levels);
  }
  return shells;
}

}  // namespace view
