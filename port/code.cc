// SPDX-License-Identifier: MIT
#include "port/code.h"

#include <algorithm>
#include <string_view>

#include "port/escape.h"

namespace port {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\n'; }

// Reads statements of the form exit(number); and puts("text"); with comments between.
class Statements {
 public:
  explicit Statements(std::string_view text) : rest_(text) {}

  bool AllKnown() {
    bool any = false;
    while (SkipBlanks() && !rest_.empty()) {
      if (!Statement()) return false;
      any = true;
    }
    return any && rest_.empty();
  }

 private:
  bool Take(std::string_view word) {
    if (!rest_.starts_with(word)) return false;
    rest_.remove_prefix(word.size());
    return true;
  }

  // False when a comment has no end.
  bool SkipBlanks() {
    for (;;) {
      while (!rest_.empty() && IsBlank(rest_[0])) rest_.remove_prefix(1);
      if (!rest_.starts_with("/*")) return true;
      const std::size_t end = rest_.find("*/", 2);
      // Compilers warn of a comment that seems to begin twice.
      if (end == std::string_view::npos || rest_.substr(2, end - 2).find("/*") != rest_.npos) {
        return false;
      }
      rest_.remove_prefix(end + 2);
    }
  }

  bool Number() {
    const std::size_t end = rest_.find_first_not_of("0123456789");
    if (end == 0 || end > 3) return false;
    rest_.remove_prefix(end);
    return true;
  }

  bool String() {
    if (!Take("\"")) return false;
    for (std::size_t i = 0; i < rest_.size(); ++i) {
      const char c = rest_[i];
      if (c < ' ' || c > '~') return false;
      if (c == '\\') {
        // Only escapes of one letter.
        if (i + 1 == rest_.size() || std::string_view("nt\\\"").find(rest_[i + 1]) == rest_.npos) {
          return false;
        }
        ++i;
      } else if (c == '"') {
        rest_.remove_prefix(i + 1);
        return true;
      }
    }
    return false;
  }

  bool Statement() {
    const bool exits = Take("exit");
    if (!exits && !Take("puts")) return false;
    return SkipBlanks() && Take("(") && SkipBlanks() && (exits ? Number() : String()) &&
           SkipBlanks() && Take(")") && SkipBlanks() && Take(";");
  }

  std::string_view rest_;
};

// One past the comment or literal at the start of `text`; 1 for any other byte, npos for a comment
// or literal that does not end, or that compilers warn of.
std::size_t PieceEnd(std::string_view text) {
  if (text.starts_with("//") || text.starts_with("/*")) {
    const bool line = text[1] == '/';
    const std::size_t end = line ? std::min(text.find('\n'), text.size()) : text.find("*/", 2);
    if (end == text.npos || text.substr(2, end - 2).find("/*") != text.npos) return text.npos;
    return line ? end : end + 2;
  }
  if (text[0] != '"' && text[0] != '\'') return 1;
  for (std::size_t i = 1; i < text.size() && text[i] != '\n'; ++i) {
    if (text[i] == text[0]) return i + 1;
    if (text[i] == '\\') ++i;
  }
  return text.npos;
}

// Whether the text could end the "#if 0" around it, or hide its end: by a line of the preprocessor,
// by a comment or literal that is not closed, or by joined lines.
bool CouldBreakOut(std::string_view code) {
  if (code.ends_with('\\')) return true;
  for (std::string_view risk : {"#", "%:", "??", "\\\n"}) {
    if (code.find(risk) != code.npos) return true;
  }
  for (char c : code) {
    if (!IsBlank(c) && (c < ' ' || c > '~')) return true;
  }
  while (!code.empty()) {
    const std::size_t end = PieceEnd(code);
    if (end == code.npos) return true;
    code.remove_prefix(end);
  }
  return false;
}

}  // namespace

CodePlace PlaceOfCode(const std::string& code) {
  if (code.find("??") == code.npos && Statements(code).AllKnown()) return CodePlace::kLive;
  return CouldBreakOut(code) ? CodePlace::kComment : CodePlace::kDead;
}

std::vector<std::string> CommentLines(const std::string& code) {
  std::vector<std::string> lines;
  std::size_t begin = 0;
  while (begin <= code.size()) {
    const std::size_t end = std::min(code.find('\n', begin), code.size());
    lines.push_back(CComment(code.substr(begin, end - begin)));
    begin = end + 1;
  }
  return lines;
}

}  // namespace port
