// SPDX-License-Identifier: MIT
// The objects that the paths of a connection mean.
#ifndef PANDREL_PORT_OBJECT_PATHS_H
#define PANDREL_PORT_OBJECT_PATHS_H

#include "port/model.h"

namespace port {

// Fills from_object, from_item, to_object and to_item of every connection. A path may begin with
// the name of a file, goes on with names of objects, and may end with the label of an item:
//   (main.G fileMenu "Load...")
void ResolvePaths(Model& model);

// The labels of an object's items or choices, in file order; empty for other objects.
std::vector<std::string> ItemLabels(const PortObject& object);

}  // namespace port

#endif
