// SPDX-License-Identifier: MIT
// Text of a module with breaks put in so that no line is too long for the compiler. A string is
// carried on in the next line by "&"; other text breaks between its words, a comment at a blank.
#ifndef PANDREL_UILFIX_LINE_BREAKER_H
#define PANDREL_UILFIX_LINE_BREAKER_H

#include <cstddef>
#include <string>
#include <string_view>

namespace uilfix {

// The longest line that the compiler accepts, without its end, also for comments.
inline constexpr std::size_t kMaxLine = 130;

class LineBreaker {
 public:
  // `column` is how much of the current line is written already. Each line that a break makes
  // begins with `lead`.
  LineBreaker(std::size_t column, std::string lead) : column_(column), lead_(std::move(lead)) {}

  // Text as it is.
  void Append(std::string_view text);

  // Text between values: words, punctuation, strings, comments. Without `words` it breaks only in
  // strings and comments: the first word of a new line could get another meaning when that of the
  // words is unknown.
  void AppendFree(std::string_view text, bool words = true);

  // A value; `tail` follows it on its last line. Breaks a string at its start in place, and puts
  // one further back on a line of its own first.
  void AppendValue(std::string_view value, std::string_view tail);

  // Begins a new line when `size` bytes do not fit on this one.
  void MakeRoom(std::size_t size);

  const std::string& Text() const { return text_; }
  std::size_t Column() const { return column_; }

 private:
  void EndLine();
  void NewLine();
  void AppendLiteral(std::string_view literal, std::size_t after, bool at_start);
  void CutLiteral(std::string_view inside, std::size_t after);
  void AppendLineComment(std::string_view comment);
  void AppendComment(std::string_view comment);

  std::size_t column_;
  std::string lead_;
  std::string text_;
};

// Whether a line of the text is too long when its first begins at `column`.
bool HasLongLine(std::string_view text, std::size_t column);

// The column behind the text.
std::size_t ColumnBehind(std::string_view text, std::size_t column);

}  // namespace uilfix

#endif
