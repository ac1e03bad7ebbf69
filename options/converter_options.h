// SPDX-License-Identifier: MIT
// The converter's options in the command lines of tools that run it.
#ifndef PANDREL_OPTIONS_CONVERTER_OPTIONS_H
#define PANDREL_OPTIONS_CONVERTER_OPTIONS_H

#include <string>
#include <vector>

#include "options/read_options.h"

namespace options {

// Adds a row for each of them, which appends it to `given` as the converter takes it. -verbose and
// -quiet are not among them: a tool has its own ways to tell what the converter says.
void AddConverterOptions(std::vector<Option>& table, std::vector<std::string>& given);

}  // namespace options

#endif
