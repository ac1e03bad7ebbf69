// SPDX-License-Identifier: MIT
// Sizes and places as X writes them.
#ifndef PANDREL_VIEW_GEOMETRY_TEXT_H
#define PANDREL_VIEW_GEOMETRY_TEXT_H

#include <string>

namespace view {

// "WIDTHxHEIGHT", in pixels.
inline std::string SizeText(int width, int height) {
  return std::to_string(width) + "x" + std::to_string(height);
}

// "+X+Y" or, left of the origin or above it, "-X-Y".
inline std::string PlaceText(int x, int y) {
  const auto Signed = [](int number) { return (number < 0 ? "" : "+") + std::to_string(number); };
  return Signed(x) + Signed(y);
}

}  // namespace view

#endif
