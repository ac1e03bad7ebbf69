// SPDX-License-Identifier: MIT
// Bytes that the compiler calls unprintable, in comments too: control characters, and the upper
// half up to 0x9F.
#include <algorithm>

#include "uilfix/literals.h"
#include "uilfix/rewrites.h"
#include "uilfix/values.h"

namespace uilfix {
namespace {

bool IsRefused(unsigned char byte) {
  if (byte == '\t' || byte == '\n') return false;  // another rewrite handles line ends
  return byte < 0x20 || (byte >= 0x7F && byte < 0xA0);
}

std::string WriteBytes(std::string_view inside) {
  std::string written;
  while (!inside.empty()) {
    const std::string_view character = TakeCharacter(inside);
    const auto byte = static_cast<unsigned char>(character[0]);
    if (IsRefused(byte)) {
      written += NumericEscape(byte);
    } else {
      written += character;
    }
  }
  return written;
}

}  // namespace

void FixBytes(Module& module, Report& report) {
  ForEachValue(module, [&](const ValuePlace& place) {
    const bool refused = std::any_of(place.value.begin(), place.value.end(), [](char c) {
      return IsRefused(static_cast<unsigned char>(c));
    });
    if (refused && ChangeLiterals(place.value, WriteBytes)) {
      report.Add(place.line, place.What() + ": unprintable bytes written as numbers");
    }
  });
}

}  // namespace uilfix
