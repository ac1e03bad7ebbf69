// SPDX-License-Identifier: MIT
// Bytes of the user's files as text of a page: valid UTF-8 without characters that HTML and SVG
// forbid, and with its markup escaped.
#ifndef PANDREL_PORT_PAGE_TEXT_H
#define PANDREL_PORT_PAGE_TEXT_H

#include <string>
#include <string_view>

namespace port {

// `bytes` as UTF-8. Valid UTF-8 stays; anything else is read as Latin-1, the letters that interface
// files were written in. Control characters but tab and newline become visible: U+2400 and so on
// for those of ASCII, U+FFFD for all others and for code points that are no characters.
std::string PageText(std::string_view bytes);

// UTF-8 text for the inside of an element or of a quoted attribute, of HTML and XML alike.
std::string EscapeMarkup(std::string_view text);

}  // namespace port

#endif
