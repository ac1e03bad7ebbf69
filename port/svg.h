// SPDX-License-Identifier: MIT
// A drawing as SVG: shapes and texts in pixels, from the upper left corner. Texts are page text
// and are escaped here. The result stands inside a page as it is, and alone as a file.
#ifndef PANDREL_PORT_SVG_H
#define PANDREL_PORT_SVG_H

#include <string>
#include <string_view>

namespace port {

struct Bitmap;

// A rectangle; most shapes are given by the one that they fill.
struct Box {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
};

// How a shape is painted: style declarations of CSS.
namespace paint {
inline constexpr std::string_view kRaised = "fill:#ddd;stroke:#333";
inline constexpr std::string_view kField = "fill:#fff;stroke:#333";
inline constexpr std::string_view kChosen = "fill:#bbb;stroke:#333;stroke-width:2";
inline constexpr std::string_view kLine = "fill:none;stroke:#333";
inline constexpr std::string_view kMark = "fill:#333";
inline constexpr std::string_view kOutline = "fill:none;stroke:#666;stroke-dasharray:4 3";
}  // namespace paint

class Drawing {
 public:
  // Begins a group, up to Close(): `title` is shown while the pointer is over it, `style` applies
  // to all in it, and its places are relative to (x, y).
  void Open(int x, int y, std::string_view title, std::string_view style = "");
  void Close();

  void Rect(const Box& box, std::string_view style, int radius = 0);
  // A path in the syntax of SVG.
  void Path(std::string_view path, std::string_view style);
  // Lines of text, 15 pixels apart; y is the baseline of the first.
  void Text(int x, int y, std::string_view text, bool bold = false);
  void Image(int x, int y, const Bitmap& bitmap);

  // The whole picture; `label` describes it to users who cannot see it.
  std::string Finish(int width, int height, std::string_view label) const;

 private:
  void Element(std::string_view name, std::string_view attributes);

  std::string body_;
};

// The estimated width of the widest line, in the font of a sketch.
int TextWidth(std::string_view text, bool bold = false);

// The text's first line, cut with an ellipsis where it is wider than `width`.
std::string FitText(std::string_view text, int width, bool bold = false);

// What a colour of a GIL file is in CSS: a colour name of X, "#" and hexadecimal digits, or one of
// OPEN LOOK's own names (BG1 and so on). Empty when it is none of them. A name that CSS does not
// know makes its declaration void, so an earlier one in the style stays in force.
std::string CssColor(const std::string& color);

}  // namespace port

#endif
