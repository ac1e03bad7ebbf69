// SPDX-License-Identifier: MIT
// A place in the text of a module, for the two parsers.
#ifndef PANDREL_UILFIX_CURSOR_H
#define PANDREL_UILFIX_CURSOR_H

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace uilfix {

class Cursor {
 public:
  explicit Cursor(std::string_view text) : text_(text), budget_(text.size() * 8 + 1000000) {}

  std::string_view Text() const { return text_; }
  std::size_t Pos() const { return pos_; }
  int Line() const { return line_; }
  bool AtEnd() const { return pos_ >= text_.size(); }
  char Peek() const { return AtEnd() ? '\0' : text_[pos_]; }
  bool At(std::string_view word) const { return text_.substr(pos_).starts_with(word); }

  // Moves on to `end` and returns the bytes passed over.
  std::string_view TakeTo(std::size_t end) {
    const std::string_view taken = text_.substr(pos_, end - pos_);
    line_ += static_cast<int>(std::count(taken.begin(), taken.end(), '\n'));
    pos_ = end;
    return taken;
  }

  // The same for bytes that are known to hold no line end.
  std::string_view TakeInLine(std::size_t end) {
    const std::string_view taken = text_.substr(pos_, end - pos_);
    pos_ = end;
    return taken;
  }

  bool TakeWord(std::string_view word) {
    if (!At(word)) return false;
    TakeTo(pos_ + word.size());
    return true;
  }

  // One past the line end of the line that `pos` is in.
  std::size_t EndOfLine(std::size_t pos) const {
    const std::size_t end = text_.find('\n', pos);
    return end == std::string_view::npos ? text_.size() : end + 1;
  }

  // A place to come back to.
  struct Place {
    std::size_t pos;
    int line;
  };
  Place Here() const { return {pos_, line_}; }

  // Comes back to `place` after a search for a form failed, which went as far as `furthest`. Forms
  // may have many lines, and a text that begins like one again and again would be searched to its
  // end each time. HasBudget therefore limits how much may be searched in vain.
  void Return(const Place& place, std::size_t furthest) {
    pos_ = place.pos;
    line_ = place.line;
    const std::size_t spent = std::min(furthest, text_.size()) - std::min(furthest, place.pos);
    budget_ -= std::min(budget_, spent);
  }

  // Whether the parser may still search for forms of several lines.
  bool HasBudget() const { return budget_ > 0; }

 private:
  std::string_view text_;
  std::size_t pos_ = 0;
  int line_ = 1;
  std::size_t budget_;
};

}  // namespace uilfix

#endif
