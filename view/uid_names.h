// SPDX-License-Identifier: MIT
// The widgets of a compiled module without its source. The resource manager fetches by name and
// cannot list the names, so this looks for them in the file.
#ifndef PANDREL_VIEW_UID_NAMES_H
#define PANDREL_VIEW_UID_NAMES_H

#include <Mrm/MrmPublic.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "shells.h"
#include "toolkit.h"

namespace view {

// Every text in the file that may be a name, without duplicates, in the order of the file.
std::vector<std::string> ReadUidNames(const std::filesystem::path& uid);

// A window for each widget of the module that is in no other one, found by fetching every one of
// `names`. Calls `provide` for each procedure that the module calls.
std::vector<Shell> ShellsOfUid(MrmHierarchy hierarchy, const Toolkit& toolkit,
                               const std::vector<std::string>& names,
                               const std::function<void(const std::string&)>& provide);

}  // namespace view

#endif
