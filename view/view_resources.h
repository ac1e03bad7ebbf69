// SPDX-License-Identifier: MIT
// Resources that the program adds to those of the user's own.
#ifndef PANDREL_VIEW_VIEW_RESOURCES_H
#define PANDREL_VIEW_VIEW_RESOURCES_H

#include <filesystem>
#include <string>
#include <vector>

#include "toolkit.h"

namespace view {

// Adds the metrics and letters of compact.ad, below the user's own resources. The text is built in,
// so the installed file need not be found.
void AddCompactResources(const Toolkit& toolkit);

// Adds the resources of a file, above the user's own. Returns false when it cannot be read.
bool AddResourceFile(const Toolkit& toolkit, const std::filesystem::path& file);

// Lets the buttons of these dialogs leave them open.
void KeepDialogsOpen(const Toolkit& toolkit, const std::vector<std::string>& shells);

}  // namespace view

#endif
