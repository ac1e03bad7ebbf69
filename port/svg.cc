// SPDX-License-Identifier: MIT
#include "port/svg.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstdlib>

#include "port/bitmap.h"
#include "port/colors.h"
#include "port/page_text.h"

namespace port {

static const int kLineHeight = 15;

static std::string Attribute(std::string_view name, int value) {
  return std::string(" ").append(name) + "=\"" + std::to_string(value) + '"';
}

static std::string Attribute(std::string_view name, std::string_view value) {
  return std::string(" ").append(name) + "=\"" + EscapeMarkup(value) + '"';
}

static std::string Attributes(const Box& box) {
  return Attribute("x", box.x) + Attribute("y", box.y) +
         Attribute("width", std::max(box.width, 0)) + Attribute("height", std::max(box.height, 0));
}

void Drawing::Element(std::string_view name, std::string_view attributes) {
  body_.append("<").append(name).append(attributes).append("/>\n");
}

void Drawing::Open(int x, int y, std::string_view title, std::string_view style) {
  body_ += "<g";
  if (x != 0 || y != 0) {
    body_ += " transform=\"translate(" + std::to_string(x) + " " + std::to_string(y) + ")\"";
  }
  if (!style.empty()) body_ += Attribute("style", style);
  body_ += '>';
  if (!title.empty()) body_ += "<title>" + EscapeMarkup(title) + "</title>";
  body_ += '\n';
}

void Drawing::Close() { body_ += "</g>\n"; }

void Drawing::Rect(const Box& box, std::string_view style, int radius) {
  Element("rect",
          Attributes(box) + (radius ? Attribute("rx", radius) : "") + Attribute("style", style));
}

void Drawing::Path(std::string_view path, std::string_view style) {
  Element("path", Attribute("d", path) + Attribute("style", style));
}

void Drawing::Text(int x, int y, std::string_view text, bool bold) {
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    if (line.find_first_not_of(" \t") != std::string_view::npos) {
      body_ += "<text" + Attribute("x", x) + Attribute("y", y);
      if (bold) body_ += " font-weight=\"bold\"";
      body_ += ">" + EscapeMarkup(line) + "</text>\n";
    }
    text.remove_prefix(std::min(end + 1, text.size()));
    y += kLineHeight;
  }
}

void Drawing::Image(int x, int y, const Bitmap& bitmap) {
  std::string path;
  for (int row = 0; row < bitmap.height; ++row) {
    const auto begin = bitmap.bits.begin() + static_cast<std::ptrdiff_t>(row) * bitmap.width;
    const auto end = begin + bitmap.width;
    for (auto run = std::find(begin, end, true); run != end;) {
      const auto run_end = std::find(run, end, false);
      const std::string width = std::to_string(run_end - run);
      path += "M" + std::to_string(x + (run - begin)) + " " + std::to_string(y + row) + "h" +
              width + "v1h-" + width + "z";
      run = std::find(run_end, end, true);
    }
  }
  if (!path.empty()) Path(path, paint::kMark);
}

std::string Drawing::Finish(int width, int height, std::string_view label) const {
  // Half a pixel off, lines of odd width fill whole pixels. Set all colours: those of the page may
  // be light on dark.
  return "<svg xmlns=\"http://www.w3.org/2000/svg\"" + Attribute("width", width + 1) +
         Attribute("height", height + 1) +
         Attribute("viewBox",
                   "-0.5 -0.5 " + std::to_string(width + 1) + " " + std::to_string(height + 1)) +
         " role=\"img\"" + Attribute("aria-label", label) +
         " style=\"font:12px 'Lucida Sans','Lucida Grande','DejaVu Sans',Verdana,sans-serif;"
         "color:#000;fill:currentColor\">\n" +
         body_ + "</svg>\n";
}

static bool ContinuesLetter(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

int TextWidth(std::string_view text, bool bold) {
  static const std::string_view kNarrow = " .,:;'|!()[]{}`ijlIrtf";
  static const std::string_view kWide = "mwMW@%";
  int widest = 0;
  int width = 0;
  for (char c : text) {
    if (c == '\n') width = 0;
    if (c == '\n' || ContinuesLetter(c)) continue;
    width += kNarrow.find(c) != std::string_view::npos     ? 4
             : kWide.find(c) != std::string_view::npos     ? 11
             : std::isupper(static_cast<unsigned char>(c)) ? 8
                                                           : 7;
    if (bold) width += 1;
    widest = std::max(widest, width);
  }
  return widest;
}

std::string FitText(std::string_view text, int width, bool bold) {
  static const std::string_view kEllipsis = "\u2026";
  text = text.substr(0, text.find('\n'));
  if (TextWidth(text, bold) <= width) return std::string(text);
  std::size_t end = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (ContinuesLetter(text[i])) continue;
    if (TextWidth(text.substr(0, i), bold) + TextWidth(kEllipsis, bold) > width) break;
    end = i;
  }
  return std::string(text.substr(0, end)).append(kEllipsis);
}

static bool All(std::string_view text, int (*is)(int)) {
  return std::all_of(text.begin(), text.end(),
                     [is](char c) { return is(static_cast<unsigned char>(c)) != 0; });
}

// X writes colours with 1 to 4 digits for each component, CSS with 1 or 2.
static std::string HexColor(std::string_view digits) {
  if (digits.empty() || digits.size() % 3 != 0 || digits.size() > 12 || !All(digits, std::isxdigit))
    return "";
  const std::size_t each = digits.size() / 3;
  std::string css = "#";
  for (std::size_t i = 0; i < 3; ++i)
    css += digits.substr(i * each, std::min<std::size_t>(each, each > 1 ? 2 : 1));
  return css;
}

std::string CssColor(const std::string& color) {
  if (color.starts_with('#')) return HexColor(std::string_view(color).substr(1));
  std::string name;
  for (char c : KnownColor(color)) {
    if (c != ' ') name += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  }
  const std::size_t word = std::min(name.find_first_of("0123456789"), name.size());
  const std::string digits = name.substr(word);
  name.resize(word);
  if (name.empty() || !All(name, std::islower) || digits.size() > 3 || !All(digits, std::isdigit))
    return "";
  if (digits.empty()) return name;
  // gray0 to gray100 are percentages; the numbered shades of other colours are near the plain one.
  if (name != "gray" && name != "grey") return name;
  const std::string percent = std::to_string(std::min(std::atoi(digits.c_str()), 100)) + "%";
  return "rgb(" + percent + "," + percent + "," + percent + ")";
}

}  // namespace port
