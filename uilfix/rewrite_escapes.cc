// SPDX-License-Identifier: MIT
// GIL keeps a C string's escapes; the compiler has fewer, and writes a byte as a decimal number
// between backslashes instead of octal digits.
//
// A text that the compiler accepts stays as it is, although "\101\102" then means the decimal 101
// and not the octal digits of C: nothing tells the two apart. If the compiler refuses one escape of
// a text, all of it is read as C.
#include "uilfix/literals.h"
#include "uilfix/rewrites.h"
#include "uilfix/values.h"

namespace uilfix {
namespace {

bool IsOctal(char c) { return c >= '0' && c <= '7'; }

// A byte in a UIL string. The upper half stays as it is: later rewrites handle bytes that the
// compiler refuses and UTF-8.
std::string WriteByte(unsigned char byte) {
  switch (byte) {
    case '\n':
      return "\\n";
    case '"':
      return "\\\"";
    case '\\':
      return "\\\\";
    case '\0':
      return "";  // a string cannot hold it
    default:
      break;
  }
  if (byte >= 0x20 && byte != 0x7F) return std::string(1, static_cast<char>(byte));
  return NumericEscape(byte);
}

// Takes the escape at the start of `text` as C reads it: up to three octal digits, \a, \e, the
// letters that UIL has too, or any other character, which stands for itself.
std::string TakeCEscape(std::string_view& text) {
  std::size_t length = 1;
  unsigned byte = 0;
  while (length < 4 && length < text.size() && IsOctal(text[length])) {
    byte = byte * 8 + static_cast<unsigned>(text[length++] - '0');
  }
  if (length > 1) {
    text.remove_prefix(length);
    return WriteByte(static_cast<unsigned char>(byte));
  }
  std::string escape(text.substr(0, 2));
  text.remove_prefix(escape.size());
  if (escape.size() < 2) return "\\\\";
  if (EscapeLength(escape) == 2) return escape;
  const char meant = escape[1] == 'a' ? '\a' : escape[1] == 'e' ? '\033' : escape[1];
  return WriteByte(static_cast<unsigned char>(meant));
}

// Keeps a backslash at a line's end, which continues the text: another rewrite handles line ends.
bool CarriesOn(std::string_view text) { return text.starts_with("\\\n"); }

bool IsRefused(std::string_view inside) {
  while (!inside.empty()) {
    const std::size_t length = CarriesOn(inside) ? 2 : inside[0] == '\\' ? EscapeLength(inside) : 1;
    if (length == 0) return true;
    inside.remove_prefix(length);
  }
  return false;
}

std::string MendEscapes(std::string_view inside) {
  if (!IsRefused(inside)) return std::string(inside);
  std::string mended;
  while (!inside.empty()) {
    if (inside[0] == '\\' && !CarriesOn(inside)) {
      mended += TakeCEscape(inside);
    } else {
      mended += inside[0];
      inside.remove_prefix(1);
    }
  }
  return mended;
}

}  // namespace

void FixEscapes(Module& module, Report& report) {
  ForEachValue(module, [&](const ValuePlace& place) {
    if (place.comment || place.value.find('\\') == std::string::npos) return;
    if (ChangeLiterals(place.value, MendEscapes)) {
      report.Add(place.line, place.What() + ": C escapes written as UIL has them");
    }
  });
}

}  // namespace uilfix
