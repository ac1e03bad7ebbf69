// SPDX-License-Identifier: MIT
#include "port/page_text.h"

#include <cstddef>
#include <optional>

namespace port {

static const char32_t kReplacement = 0xFFFD;

static void AppendUtf8(std::string* text, char32_t code) {
  const auto tail = [&](int shift) { *text += static_cast<char>(0x80 | ((code >> shift) & 0x3F)); };
  if (code < 0x80) {
    *text += static_cast<char>(code);
  } else if (code < 0x800) {
    *text += static_cast<char>(0xC0 | (code >> 6));
    tail(0);
  } else if (code < 0x10000) {
    *text += static_cast<char>(0xE0 | (code >> 12));
    tail(6);
    tail(0);
  } else {
    *text += static_cast<char>(0xF0 | (code >> 18));
    tail(12);
    tail(6);
    tail(0);
  }
}

static bool IsNoncharacter(char32_t code) {
  return (code & 0xFFFE) == 0xFFFE || (code >= 0xFDD0 && code <= 0xFDEF);
}

static char32_t Visible(char32_t code) {
  const char32_t pictures = 0x2400;
  if (code == '\t' || code == '\n') return code;
  if (code < 0x20) return pictures + code;
  if (code == 0x7F) return pictures + 0x21;
  if ((code >= 0x80 && code < 0xA0) || IsNoncharacter(code)) return kReplacement;
  return code;
}

// Decodes the character at the front of `bytes` and takes it off; nothing when it is not valid:
// cut short, longer than needed, a surrogate or beyond Unicode.
static std::optional<char32_t> TakeUtf8(std::string_view* bytes) {
  const auto lead = static_cast<unsigned char>(bytes->front());
  const std::size_t length = lead < 0x80             ? 1
                             : (lead & 0xE0) == 0xC0 ? 2
                             : (lead & 0xF0) == 0xE0 ? 3
                             : (lead & 0xF8) == 0xF0 ? 4
                                                     : 0;
  if (length == 0 || bytes->size() < length) return std::nullopt;
  static const char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
  char32_t code = length == 1 ? lead : lead & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>((*bytes)[i]);
    if ((next & 0xC0) != 0x80) return std::nullopt;
    code = code << 6 | (next & 0x3Fu);
  }
  if (code < kSmallest[length] || code > 0x10FFFF || (code >= 0xD800 && code < 0xE000)) {
    return std::nullopt;
  }
  bytes->remove_prefix(length);
  return code;
}

std::string PageText(std::string_view bytes) {
  std::string text;
  std::string_view rest = bytes;
  while (!rest.empty()) {
    const std::optional<char32_t> code = TakeUtf8(&rest);
    if (!code) break;
    AppendUtf8(&text, Visible(*code));
  }
  if (rest.empty()) return text;
  text.clear();
  for (char byte : bytes) AppendUtf8(&text, Visible(static_cast<unsigned char>(byte)));
  return text;
}

std::string EscapeMarkup(std::string_view text) {
  std::string escaped;
  for (char c : text) {
    switch (c) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      case '\'':
        escaped += "&#39;";
        break;
      default:
        escaped += c;
    }
  }
  return escaped;
}

}  // namespace port
