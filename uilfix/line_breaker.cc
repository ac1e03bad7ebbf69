// SPDX-License-Identifier: MIT
#include "uilfix/line_breaker.h"

#include <algorithm>
#include <cctype>

#include "uilfix/characters.h"
#include "uilfix/literals.h"

namespace uilfix {
namespace {

// A comment that begins so far to the right goes to a line of its own.
constexpr std::size_t kLastCommentColumn = 100;

std::size_t LineSize(std::string_view text) { return std::min(text.find('\n'), text.size()); }

// One past the word, or the piece of punctuation, at `pos`.
std::size_t TokenEnd(std::string_view text, std::size_t pos) {
  const auto in_word = [](char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_' || c == '$' || c == '.';
  };
  if (!in_word(text[pos])) return pos + 1;
  while (pos < text.size() && in_word(text[pos])) ++pos;
  return pos;
}

// Where to cut a text so that no more than `room` bytes stand in front: behind the last blank that
// leaves something to read there, else nowhere, which is 0.
std::size_t CutAtBlank(std::string_view text, std::size_t room) {
  const std::size_t begin = text.find_first_not_of("! \t");
  const std::size_t blank = text.substr(0, std::min(room + 1, text.size())).find_last_of(" \t");
  if (blank == std::string_view::npos || begin == std::string_view::npos || blank < begin) return 0;
  return blank;
}

}  // namespace

void LineBreaker::Append(std::string_view text) {
  text_ += text;
  column_ = ColumnBehind(text, column_);
}

// Leaves no blank and no carriage return in front of the line end.
void LineBreaker::EndLine() {
  while (text_.ends_with(' ') || text_.ends_with('\r')) text_.pop_back();
  text_ += '\n';
  column_ = 0;
}

void LineBreaker::NewLine() {
  EndLine();
  text_ += lead_;
  column_ = lead_.size();
}

void LineBreaker::MakeRoom(std::size_t size) {
  if (column_ + size > kMaxLine && column_ > lead_.size()) NewLine();
}

void LineBreaker::AppendFree(std::string_view text, bool words) {
  for (std::size_t pos = 0; pos < text.size();) {
    std::size_t end = pos + 1;
    if (IsBlank(text[pos])) {
      Append(text.substr(pos, 1));
    } else if (text[pos] == '!') {
      end = std::min(text.find('\n', pos), text.size());
      AppendLineComment(text.substr(pos, end - pos));
    } else if (text.substr(pos, 2) == "/*") {
      end = text.find("*/", pos + 2);
      end = end == std::string_view::npos ? text.size() : end + 2;
      AppendComment(text.substr(pos, end - pos));
    } else if (text[pos] == '"' && LiteralEnd(text, pos) != std::string_view::npos) {
      end = LiteralEnd(text, pos);
      AppendLiteral(text.substr(pos, end - pos), text.substr(end, 1) == "\n" ? 0 : 1, false);
    } else {
      end = TokenEnd(text, pos);
      if (words) MakeRoom(end - pos);
      Append(text.substr(pos, end - pos));
    }
    pos = end;
  }
}

// A comment up to the line's end goes on behind a "!" of its own.
void LineBreaker::AppendLineComment(std::string_view comment) {
  if (column_ + comment.size() > kMaxLine && column_ > kLastCommentColumn) NewLine();
  const std::string again = std::string(std::min<std::size_t>(column_, 16), ' ') + "! ";
  while (column_ + comment.size() > kMaxLine) {
    const std::size_t room = kMaxLine - std::min(column_, kMaxLine - 1);
    const std::size_t blank = CutAtBlank(comment, room);
    Append(comment.substr(0, blank ? blank : room));
    comment.remove_prefix(blank ? blank + 1 : room);
    if (comment.empty()) break;
    EndLine();
    Append(again);
  }
  Append(comment);
}

void LineBreaker::AppendComment(std::string_view comment) {
  // "/*" must not be cut in two, nor "*/" behind it.
  if (column_ + 4 > kMaxLine) NewLine();
  while (!comment.empty()) {
    const std::size_t line = LineSize(comment);
    const std::size_t room = kMaxLine - std::min(column_, kMaxLine - 1);
    if (line <= room) {
      Append(comment.substr(0, std::min(line + 1, comment.size())));
      comment.remove_prefix(std::min(line + 1, comment.size()));
      continue;
    }
    const std::size_t blank = CutAtBlank(comment, room);
    const std::size_t whole = comment[room - 1] == '*' && room > 1 ? room - 1 : room;
    Append(comment.substr(0, blank ? blank : whole));
    comment.remove_prefix(blank ? blank + 1 : whole);
    EndLine();
  }
}

void LineBreaker::AppendValue(std::string_view value, std::string_view tail) {
  const std::vector<ValuePart> parts = SplitValue(value);
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (!parts[i].literal) {
      Append(parts[i].text);
      continue;
    }
    std::size_t after = i + 1 < parts.size() ? LineSize(parts[i + 1].text) : 0;
    const bool to_end = i + 1 >= parts.size() || after == parts[i + 1].text.size();
    if (i + 2 >= parts.size() && to_end) after += LineSize(tail);
    AppendLiteral(parts[i].text, after, i == 0);
  }
}

// `after` bytes should fit behind the literal. Where not even a line of their own takes them, no
// break of the literal helps.
void LineBreaker::AppendLiteral(std::string_view literal, std::size_t after, bool at_start) {
  if (lead_.size() + after + 2 > kMaxLine) after = 0;
  const auto fits = [&] { return column_ + literal.size() + after <= kMaxLine; };
  if (fits()) return Append(literal);
  const bool no_room = column_ + 10 > kMaxLine;
  if ((!at_start || no_room) && column_ > lead_.size()) NewLine();
  if (fits()) return Append(literal);
  CutLiteral(literal.substr(1, literal.size() - 2), after);
}

// Cuts behind the last blank that fits, or where the room ends when there is none.
void LineBreaker::CutLiteral(std::string_view inside, std::size_t after) {
  for (;;) {
    // For what stands between the quotes, with room for " &" behind them.
    const std::size_t room = kMaxLine > column_ + 2 ? kMaxLine - column_ - 2 : 1;
    std::string_view rest = inside;
    std::size_t blank = 0;
    std::size_t end = 0;
    while (!rest.empty()) {
      std::string_view next = rest;
      const std::string_view character = TakeCharacter(next);
      if (end > 0 && end + character.size() + 2 > room) break;
      end += character.size();
      if (character == " ") blank = end;
      rest = next;
    }
    const bool last = rest.empty() && end + after <= room;
    if (!last && blank > 0) end = blank;
    text_ += '"';
    text_ += inside.substr(0, end);
    text_ += '"';
    column_ += end + 2;
    inside.remove_prefix(end);
    if (last) return;
    Append(" &");
    NewLine();
    if (inside.empty()) return Append("\"\"");
  }
}

bool HasLongLine(std::string_view text, std::size_t column) {
  for (;;) {
    const std::size_t size = LineSize(text);
    if (column + size > kMaxLine) return true;
    if (size == text.size()) return false;
    text.remove_prefix(size + 1);
    column = 0;
  }
}

std::size_t ColumnBehind(std::string_view text, std::size_t column) {
  const std::size_t newline = text.rfind('\n');
  return newline == std::string_view::npos ? column + text.size() : text.size() - newline - 1;
}

}  // namespace uilfix
