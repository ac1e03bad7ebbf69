// SPDX-License-Identifier: MIT
// Names that a function of the user must not have.
#ifndef PANDREL_PORT_LIBRARY_NAMES_H
#define PANDREL_PORT_LIBRARY_NAMES_H

#include <string_view>

namespace port {

// Whether the C library, Xlib or the toolkit define the word, as far as no prefix tells: a function
// of that name would not compile, or would replace the library's for the whole program.
bool IsLibraryName(std::string_view word);

}  // namespace port

#endif
