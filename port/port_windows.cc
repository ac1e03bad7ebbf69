// SPDX-License-Identifier: MIT
#include "port/port_windows.h"

#include <string_view>

#include "port/colors.h"
#include "widget/tree.h"

namespace port {
namespace {

bool IsMenu(const Widg* widg) {
  return IsClass(widg, "XmPopupMenu") || IsClass(widg, "XmPulldownMenu") ||
         IsClass(widg, "XmUnknownMenu");
}

void ReadResource(const Resource& resource, PortWindow& window) {
  const std::string name(resource.name);
  const std::string value = resource.value ? resource.value : "";
  if (name == "XmNtitle") {
    window.title = GilText(resource.value);
  } else if (name == "XmNiconic") {
    window.iconic = value == "true";
  } else if (name == "XmNmappedWhenManaged") {
    window.hidden = value == "false";
  } else if (name == "XmNsensitive") {
    window.insensitive = value == "false";
  } else if (name.starts_with("XmN")) {
    const bool color = value.starts_with("color(") && value.ends_with(")");
    window.resources.emplace_back(
        name.substr(3), color ? KnownColor(GilText(value.substr(6, value.size() - 7).c_str()))
                              : GilText(resource.value));
  }
}

PortWindow ReadShell(const Session& session, const Widg* shell) {
  PortWindow window;
  window.object = session.object_of.at(shell);
  window.dialog = IsClass(shell, "XmDialogShell");
  window.shell = NameOf(session, shell);
  for (const Resource* at = shell->resources; at; at = at->next) ReadResource(*at, window);
  for (const Widg* child = shell->child; child; child = child->next) {
    if (!*child->class_name || IsShell(child)) continue;
    if (IsMenu(child)) {
      window.popups.push_back(NameOf(session, child));
    } else {
      window.work.push_back(NameOf(session, child));
      window.work_managed.push_back(child->managed != 0);
    }
  }
  // Managing what is in a dialog shows it.
  if (window.dialog && !window.work_managed.empty() && !window.work_managed[0]) {
    window.hidden = true;
  }
  return window;
}

// The base window that a dialog belongs to; empty when it hangs at the top.
std::string OwnerOf(const Session& session, const Widg* dialog) {
  const Widg* at = session.parent_of.at(dialog);
  for (; at; at = session.parent_of.at(at)) {
    if (IsClass(at, "TopLevelShell")) return NameOf(session, at);
  }
  return "";
}

}  // namespace

void FindWindows(Session& session) {
  for (const Widg* widg : session.widgets) {
    if (!IsShell(widg) || !IsInModule(widg)) continue;
    PortWindow window = ReadShell(session, widg);
    if (window.dialog) window.owner = OwnerOf(session, widg);
    session.model.windows.push_back(std::move(window));
  }
}

}  // namespace port
