// SPDX-License-Identifier: MIT
// Resources that the program adds to the user's own.
#ifndef PANDREL_VIEW_VIEW_RESOURCES_H
#define PANDREL_VIEW_VIEW_RESOURCES_H

#include <filesystem>
#include <string>
#include <vector>

#include "toolkit.h"

namespace view {

// Adds the metrics and the font of compact.ad; the user's own resources override them. The text is
// built in, so the installed file is not needed.
void AddCompactResources(const Toolkit& toolkit);

// Adds the resources of a file, which override the user's own. Returns false when it cannot be
// read.
bool AddResourceFile(const Toolkit& toolkit, const std::filesystem::path& file);

// Makes these dialogs stay open when one of their buttons is pressed.
void KeepDialogsOpen(const Toolkit& toolkit, const std::vector<std::string>& shells);

}  // namespace view

#endif
