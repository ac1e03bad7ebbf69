// SPDX-License-Identifier: MIT
// Files inside of a page.
#ifndef PANDREL_PORT_DATA_URI_H
#define PANDREL_PORT_DATA_URI_H

#include <filesystem>
#include <string>
#include <string_view>

namespace port {

std::string Base64(std::string_view bytes);

// The PNG file as a data: URI; empty when it cannot be read or is no PNG file.
std::string PngDataUri(const std::filesystem::path& file);

}  // namespace port

#endif
