// SPDX-License-Identifier: MIT
#include "port/code.h"

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

// Whether the text could end the "#if 0" that it stands in, or hide its end: a line of the
// preprocessor's, a comment that is not closed, lines joined, bytes that compilers warn of.
bool CouldBreakOut(std::string_view code) {
  if (code.find('#') != code.npos) return true;
  if (code.find("%:") != code.npos || code.find("??") != code.npos) return true;
  if (code.find("\\\n") != code.npos || code.ends_with('\\')) return true;
  for (char c : code) {
    if (!IsBlank(c) && (c < ' ' || c > '~')) return true;
  }
  // Comments closed one by one. Line comments may hold anything, so they count as risky when they
  // hold the beginning of another.
  for (std::size_t at = code.find("/*"); at != code.npos; at = code.find("/*", at)) {
    const std::size_t end = code.find("*/", at + 2);
    if (end == code.npos || code.substr(at + 2, end - at - 2).find("/*") != code.npos) return true;
    at = end + 2;
  }
  if (code.find("//") == code.npos) return false;
  for (std::size_t at = code.find("//"); at != code.npos; at = code.find("//", at + 2)) {
    const std::size_t end = code.find('\n', at);
    if (code.substr(at, end - at).find("/*") != code.npos) return true;
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
