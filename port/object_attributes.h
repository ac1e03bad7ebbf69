// SPDX-License-Identifier: MIT
// Attributes of an object as a drawing needs them. What a file leaves out, or gives in another form
// than the attribute's own, counts as missing.
#ifndef PANDREL_PORT_OBJECT_ATTRIBUTES_H
#define PANDREL_PORT_OBJECT_ATTRIBUTES_H

#include <cstdint>
#include <string>
#include <vector>

namespace port {

struct PortObject;

// An integer, also one that stands in quotes; between -20000 and 20000, so that sums and products
// of two fit.
int NumberOf(const PortObject& obj, int32_t attribute, int missing);

// A string, a name or a number as page text; empty for nil.
std::string TextOf(const PortObject& obj, int32_t attribute);

// A list of strings or names as page texts; nil is an empty one.
std::vector<std::string> TextsOf(const PortObject& obj, int32_t attribute);

// A keyword or truth value.
int32_t TokenOf(const PortObject& obj, int32_t attribute, int32_t missing);

// A list of keywords or truth values.
std::vector<int32_t> TokensOf(const PortObject& obj, int32_t attribute);

bool IsTrue(const PortObject& obj, int32_t attribute);

}  // namespace port

#endif
