// SPDX-License-Identifier: MIT
// The bytes of a compiled module, which may be any bytes.
#ifndef PANDREL_VIEW_UID_TEXTS_H
#define PANDREL_VIEW_UID_TEXTS_H

#include <string>
#include <string_view>
#include <vector>

namespace view {

// Every text of printable characters in the bytes that ends with a zero byte and may be a name,
// without duplicates, in their order.
std::vector<std::string> FindNames(std::string_view bytes);

}  // namespace view

#endif
