// SPDX-License-Identifier: MIT
// Texts in UTF-8. The compiler refuses the bytes 0x80 to 0x9F, and Motif's default fonts draw one
// character per byte, so even a text that compiles shows two letters for one. Both accept
// Latin-1.
#include <algorithm>
#include <cstdint>
#include <optional>

#include "uilfix/literals.h"
#include "uilfix/rewrites.h"
#include "uilfix/values.h"

namespace uilfix {
namespace {

struct Substitute {
  std::uint32_t code;
  std::string_view text;
};

// Typographic characters outside Latin-1 and their equivalents in ASCII.
constexpr Substitute kSubstitutes[] = {
    {0x2010, "-"},    {0x2011, "-"},    {0x2012, "-"},   {0x2013, "-"},    {0x2014, "--"},
    {0x2018, "'"},    {0x2019, "'"},    {0x201A, ","},   {0x201C, "\\\""}, {0x201D, "\\\""},
    {0x201E, "\\\""}, {0x2022, "*"},    {0x2026, "..."}, {0x2039, "<"},    {0x203A, ">"},
    {0x20AC, "EUR"},  {0x2122, "(TM)"}, {0x2190, "<-"},  {0x2192, "->"},   {0x0152, "OE"},
    {0x0153, "oe"},   {0x0160, "S"},    {0x0161, "s"},   {0x0178, "Y"},    {0x017D, "Z"},
    {0x017E, "z"},
};

// Takes one UTF-8 character of two to four bytes off `text`; nothing when there is none.
std::optional<std::uint32_t> TakeCodePoint(std::string_view& text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const std::size_t length = byte(0) >= 0xF0 ? 4 : byte(0) >= 0xE0 ? 3 : byte(0) >= 0xC2 ? 2 : 0;
  if (length == 0 || byte(0) > 0xF4 || text.size() < length) return std::nullopt;
  std::uint32_t code = byte(0) & (0xFFu >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return std::nullopt;
    code = code << 6 | (byte(i) & 0x3Fu);
  }
  text.remove_prefix(length);
  return code;
}

std::string LatinText(std::uint32_t code) {
  if (code >= 0xA0 && code <= 0xFF) return std::string(1, static_cast<char>(code));
  for (const Substitute& row : kSubstitutes) {
    if (row.code == code) return std::string(row.text);
  }
  return "?";
}

// A text in Latin-1; nothing when it is plain ASCII or not UTF-8 throughout.
std::optional<std::string> ToLatin(std::string_view text) {
  std::string latin;
  bool ascii = true;
  while (!text.empty()) {
    if (static_cast<unsigned char>(text[0]) < 0x80) {
      latin += text[0];
      text.remove_prefix(1);
      continue;
    }
    const auto code = TakeCodePoint(text);
    if (!code) return std::nullopt;
    latin += LatinText(*code);
    ascii = false;
  }
  if (ascii) return std::nullopt;
  return latin;
}

// Writes the literals of a value in Latin-1. They are looked at together, since they may be parts
// of one text: the part of another encoding's text may look like UTF-8. What was encoded twice is
// UTF-8 still after the first time. Returns whether anything changed.
bool ChangeEncoding(std::string& value) {
  std::vector<ValuePart> parts = SplitValue(value);
  bool changed = false;
  for (bool again = true; again;) {
    again = false;
    std::string whole;
    for (const ValuePart& part : parts) whole += part.literal ? part.text : "";
    // A byte that is written as a number counts, too: it is not UTF-8.
    if (!ToLatin(LiteralBytes(whole))) break;
    for (ValuePart& part : parts) {
      auto latin = part.literal ? ToLatin(part.text) : std::nullopt;
      if (!latin) continue;
      part.text = std::move(*latin);
      again = changed = true;
    }
  }
  if (changed) value = JoinValue(parts);
  return changed;
}

}  // namespace

void FixEncoding(Module& module, Report& report) {
  ForEachValue(module, [&](const ValuePlace& place) {
    const bool ascii = std::none_of(place.value.begin(), place.value.end(),
                                    [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
    if (!ascii && ChangeEncoding(place.value)) {
      report.Add(place.line, place.What() + ": UTF-8 written as Latin-1");
    }
  });
}

}  // namespace uilfix
