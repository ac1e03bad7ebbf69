// SPDX-License-Identifier: MIT
#include "screenshots.h"

#include <iostream>

#include "picture.h"

namespace view {
namespace {

namespace fs = std::filesystem;

fs::path WithName(fs::path file, const std::string& name) {
  const fs::path suffix = file.extension();
  file.replace_extension();
  file += "-" + name;
  file += suffix;
  return file;
}

}  // namespace

void ForEachShownWindow(const Windows& windows, const std::function<void(const Window&)>& visit) {
  for (const Window& window : windows.windows) {
    if (window.plan.dialog) {
      if (window.work.empty()) continue;
      XtVaSetValues(window.work.front(), XmNdefaultPosition, False, nullptr);
    } else {
      XtVaSetValues(window.shell, XmNiconic, False, nullptr);
    }
    ShowWindow(window);
    Settle(windows.toolkit);
    XtVaSetValues(window.shell, XmNx, 0, XmNy, 0, nullptr);
    XRaiseWindow(windows.toolkit.display, XtWindow(window.shell));
    Settle(windows.toolkit);
    visit(window);
    HideWindow(window);
    Settle(windows.toolkit);
  }
}

fs::path PictureFile(const fs::path& file, const fs::path& folder, const std::string& window,
                     bool first) {
  if (!folder.empty()) return folder / (window + ".png");
  return first ? file : WithName(file, window);
}

bool TakePicture(const Window& window, const fs::path& target) {
  const std::string failure = WritePicture(window.shell, target);
  if (failure.empty()) return true;
  std::cerr << "pandrel-view: " << target.string() << ": " << failure << "\n";
  return false;
}

}  // namespace view
