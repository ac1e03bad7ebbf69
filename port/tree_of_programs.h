// SPDX-License-Identifier: MIT
// Every program of a tree of folders.
#ifndef PANDREL_PORT_TREE_OF_PROGRAMS_H
#define PANDREL_PORT_TREE_OF_PROGRAMS_H

#include <filesystem>
#include <vector>

#include "port/port.h"

namespace port {

// The GIL files to port: every project, and every interface that no project of its folder names, in
// the order of their paths.
std::vector<std::filesystem::path> FindPrograms(const std::filesystem::path& tree);

// Ports each of them, `jobs` at a time, into a folder below job.output at the place that the file
// has in the tree job.input, and writes job.output/index.html. Goes on after a failure. Reports its
// progress on standard error. Returns the exit status of the program.
int PortTree(const Job& job, int jobs);

}  // namespace port

#endif
