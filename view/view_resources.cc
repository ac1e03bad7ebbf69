// SPDX-License-Identifier: MIT
#include "view_resources.h"

#include <X11/Xresource.h>

#include "compact_ad.h"
#include "letters.h"

namespace view {

void AddCompactResources(const Toolkit& toolkit) {
  XrmDatabase target = XtDatabase(toolkit.display);
  XrmCombineDatabase(XrmGetStringDatabase(kCompactAd), &target, False);
  UseSubstituteLetters(toolkit.display);
}

bool AddResourceFile(const Toolkit& toolkit, const std::filesystem::path& file) {
  XrmDatabase added = XrmGetFileDatabase(file.c_str());
  if (!added) return false;
  XrmDatabase target = XtDatabase(toolkit.display);
  XrmCombineDatabase(added, &target, True);
  UseSubstituteLetters(toolkit.display);
  return true;
}

// Motif's bulletin boards close the dialog that they fill when one of their buttons is pressed.
// They look the resource up once, when they are made.
void KeepDialogsOpen(const Toolkit& toolkit, const std::vector<std::string>& shells) {
  XrmDatabase target = XtDatabase(toolkit.display);
  for (const std::string& shell : shells) {
    XrmPutStringResource(&target, ("*" + shell + "*autoUnmanage").c_str(), "False");
  }
}

}  // namespace view
