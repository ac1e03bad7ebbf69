// SPDX-License-Identifier: MIT
// What a compiled module holds, when its source is not at hand. The resource manager fetches by
// name only and cannot tell which names there are, so they are looked for in the file.
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

// A window for each widget of the module that lies in no other one, found by fetching every one of
// `names`. Procedures that turn out to be called are given to `provide` as they are met.
std::vector<Shell> ShellsOfUid(MrmHierarchy hierarchy, const Toolkit& toolkit,
                               const std::vector<std::string>& names,
                               const std::function<void(const std::string&)>& provide);

}  // namespace view

#endif
