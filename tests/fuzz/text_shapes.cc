// SPDX-License-Identifier: MIT
#include "text_shapes.h"

#include <algorithm>
#include <cctype>
#include <vector>

namespace {

bool IsWordByte(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }
bool IsAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

// ---- C ----

class CTokens {
 public:
  explicit CTokens(std::string_view text) : text_(text) {}

  Shape Read() {
    for (std::string_view trigraph :
         {"?\?=", "?\?/", "?\?'", "?\?(", "?\?)", "?\?!", "?\?<", "?\?>", "?\?-"}) {
      if (text_.find(trigraph) != text_.npos) shape_.error = "a trigraph";
    }
    if (text_.find("\\\n") != text_.npos) shape_.error = "joined lines";
    while (shape_.error.empty() && at_ < text_.size()) Take();
    if (shape_.error.empty() && off_) shape_.error = "#if 0 does not end";
    FoldKnownCalls();
    for (const std::string& token : tokens_) shape_.text += token + "\n";
    return shape_;
  }

 private:
  bool Starts(std::string_view word) const { return text_.substr(at_).starts_with(word); }

  void Emit(std::string token) {
    if (!off_) tokens_.push_back(std::move(token));
  }

  void Take() {
    const char c = text_[at_];
    if (c == '\n') {
      line_begins_ = true;
      ++at_;
    } else if (c == ' ' || c == '\t') {
      ++at_;
    } else if (Starts("/*")) {
      TakeComment();
    } else if (Starts("//")) {
      // Only code of the user's has such comments, and only where it is switched off.
      if (!off_) shape_.error = "a comment of one line";
      at_ = std::min(text_.find('\n', at_), text_.size());
    } else if (c == '#' || Starts("%:")) {
      TakeDirective();
    } else {
      line_begins_ = false;
      TakeToken(c);
    }
  }

  void TakeComment() {
    const std::size_t end = text_.find("*/", at_ + 2);
    if (end == text_.npos) {
      shape_.error = "a comment that is not closed";
    } else if (text_.substr(at_ + 2, end - at_ - 2).find("/*") != text_.npos) {
      shape_.error = "a comment that seems to begin twice";
    } else {
      at_ = end + 2;
    }
  }

  void TakeDirective() {
    if (!line_begins_) {
      shape_.error = "a directive within a line";
      return;
    }
    std::string line(text_.substr(at_, std::min(text_.find('\n', at_), text_.size()) - at_));
    const bool comment = line.find("/*") != line.npos;
    line.resize(std::min(line.find("/*"), line.size()));
    while (line.ends_with(' ')) line.pop_back();
    if (off_) {
      if (line != "#endif") shape_.error = "a directive where code is switched off";
      off_ = false;
      Emit("#endif of #if 0");
    } else {
      Emit(line);
      off_ = line == "#if 0";
    }
    at_ = comment ? text_.find("/*", at_) : std::min(text_.find('\n', at_), text_.size());
  }

  void TakeToken(char c) {
    if (c == '"' || c == '\'') {
      TakeLiteral(c);
    } else if (IsWordByte(c)) {
      const std::size_t begin = at_;
      while (at_ < text_.size() && IsWordByte(text_[at_])) ++at_;
      EmitWord(std::string(text_.substr(begin, at_ - begin)));
    } else if (!IsAscii(c) || (c < ' ' && c != '\f')) {
      shape_.error = "a byte that no token has";
    } else {
      Emit(std::string(1, c));
      ++at_;
    }
  }

  void EmitWord(const std::string& word) {
    if (std::isdigit(static_cast<unsigned char>(word[0]))) {
      Emit("number");
    } else {
      Emit(word);
    }
  }

  void TakeLiteral(char quote) {
    for (++at_; at_ < text_.size() && text_[at_] != '\n'; ++at_) {
      if (!IsAscii(text_[at_]) || std::iscntrl(static_cast<unsigned char>(text_[at_]))) {
        shape_.error = "a byte that no literal has";
        return;
      }
      if (text_[at_] == '\\') {
        ++at_;
      } else if (text_[at_] == quote) {
        ++at_;
        Emit(quote == '"' ? "string" : "character");
        return;
      }
    }
    shape_.error = "a literal that is not closed";
  }

  void FoldKnownCalls() {
    const auto is_call = [&](std::size_t at) {
      if (at + 5 > tokens_.size()) return false;
      const bool exits = tokens_[at] == "exit" && tokens_[at + 2] == "number";
      const bool puts = tokens_[at] == "puts" && tokens_[at + 2] == "string";
      return (exits || puts) && tokens_[at + 1] == "(" && tokens_[at + 3] == ")" &&
             tokens_[at + 4] == ";";
    };
    std::vector<std::string> folded;
    for (std::size_t at = 0; at < tokens_.size();) {
      if (!is_call(at)) {
        folded.push_back(tokens_[at++]);
        continue;
      }
      if (folded.empty() || folded.back() != "known calls") folded.push_back("known calls");
      at += 5;
    }
    tokens_ = std::move(folded);
  }

  std::string_view text_;
  std::size_t at_ = 0;
  bool line_begins_ = true;
  bool off_ = false;
  std::vector<std::string> tokens_;
  Shape shape_;
};

// ---- HTML ----

// Whether a control byte other than the end of a line is in the text, as UTF-8.
bool HasControls(std::string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte < 0x20 && text[i] != '\n' && text[i] != '\t') || byte == 0x7F) return true;
    if (byte == 0xC2 && i + 1 < text.size() && static_cast<unsigned char>(text[i + 1]) < 0xA0) {
      return true;
    }
  }
  return false;
}

class Tags {
 public:
  explicit Tags(std::string_view text) : text_(text) {}

  Shape Read() {
    if (HasControls(text_)) shape_.error = "a control byte";
    while (shape_.error.empty() && at_ < text_.size()) Take();
    if (shape_.error.empty() && !open_.empty()) shape_.error = open_.back() + " is not closed";
    return shape_;
  }

 private:
  void Take() {
    const char c = text_[at_];
    if (c == '&') {
      TakeEntity();
    } else if (c == '<') {
      TakeTag();
    } else {
      ++at_;
    }
  }

  void TakeEntity() {
    for (std::string_view known : {"&amp;", "&lt;", "&gt;", "&quot;", "&#39;", "&#160;"}) {
      if (!text_.substr(at_).starts_with(known)) continue;
      at_ += known.size();
      return;
    }
    shape_.error = "an & that begins nothing";
  }

  std::string Word() {
    const std::size_t begin = at_;
    while (at_ < text_.size() &&
           (IsWordByte(text_[at_]) || text_[at_] == '-' || text_[at_] == ':')) {
      ++at_;
    }
    return std::string(text_.substr(begin, at_ - begin));
  }

  void SkipBlanks() {
    while (at_ < text_.size() && (text_[at_] == ' ' || text_[at_] == '\n')) ++at_;
  }

  void TakeTag() {
    if (text_.substr(at_).starts_with("<!DOCTYPE html>")) {
      at_ += 15;
      return;
    }
    ++at_;
    const bool closes = at_ < text_.size() && text_[at_] == '/';
    if (closes) ++at_;
    const std::string name = Word();
    if (name.empty()) shape_.error = "a < that begins nothing";
    shape_.text += (closes ? "/" : "") + name;
    bool empty = name == "meta" || name == "img";
    for (SkipBlanks(); at_ < text_.size() && text_[at_] != '>' && shape_.error.empty();
         SkipBlanks()) {
      if (text_[at_] == '/') {
        empty = true;
        ++at_;
        continue;
      }
      TakeAttribute();
    }
    ++at_;
    shape_.text += "\n";
    if (!closes && !empty) open_.push_back(name);
    if (closes && (open_.empty() || open_.back() != name)) shape_.error = name + " closes nothing";
    if (closes && !open_.empty()) open_.pop_back();
    // A sheet of styles is no markup.
    if (name == "style" && !closes) at_ = std::min(text_.find("</style>", at_), text_.size());
  }

  void TakeAttribute() {
    const std::string name = Word();
    if (name.empty() || !text_.substr(at_).starts_with("=\"")) {
      shape_.error = "an attribute without quotes";
      return;
    }
    shape_.text += " " + name;
    for (at_ += 2; at_ < text_.size() && text_[at_] != '"' && shape_.error.empty();) {
      if (text_[at_] == '<') shape_.error = "a < in an attribute";
      if (text_[at_] == '&') {
        TakeEntity();
      } else {
        ++at_;
      }
    }
    ++at_;
  }

  std::string_view text_;
  std::size_t at_ = 0;
  std::vector<std::string> open_;
  Shape shape_;
};

// ---- make ----

// A recipe as the shell gets it: "$$" is one "$", and what make expands is "X".
std::string Expanded(std::string_view recipe, std::string* error) {
  std::string text;
  for (std::size_t i = 0; i < recipe.size(); ++i) {
    if (recipe[i] != '$') {
      text += recipe[i];
      continue;
    }
    const char next = ++i < recipe.size() ? recipe[i] : '\0';
    if (next == '$') {
      text += '$';
    } else if (next == '(') {
      i = recipe.find(')', i);
      if (i == recipe.npos) {
        *error = "a variable that is not closed";
        return text;
      }
      text += 'X';
    } else if (next == '@' || next == '<') {
      text += 'X';
    } else {
      *error = "a $ that begins nothing";
    }
  }
  return text;
}

// How many words the shell makes of a command, and what separates commands.
std::string WordsOf(std::string_view command, std::string* error) {
  int words = 0;
  bool in_word = false;
  std::string marks;
  for (std::size_t i = 0; i < command.size(); ++i) {
    const char c = command[i];
    const bool blank = c == ' ' || c == '\t';
    if (!blank && !in_word) ++words;
    in_word = !blank;
    if (c == '\'' || c == '"') {
      i = command.find(c, i + 1);
      if (i == command.npos) {
        *error = "a quote that is not closed";
        return "";
      }
    } else if (c == '\\') {
      ++i;
    } else if (std::string_view("$`;|&<>()").find(c) != std::string_view::npos) {
      marks += c;
    }
  }
  return std::to_string(words) + " words " + marks;
}

}  // namespace

Shape ShapeOfC(std::string_view text) { return CTokens(text).Read(); }

Shape ShapeOfPage(std::string_view text) { return Tags(text).Read(); }

Shape ShapeOfMakefile(std::string_view text) {
  Shape shape;
  for (const std::string& line : LinesOf(text)) {
    if (line.starts_with("#")) {
      if (line.ends_with('\\')) shape.error = "a comment that goes on";
      shape.text += "comment\n";
    } else if (line.starts_with('\t')) {
      const std::string command = Expanded(line, &shape.error);
      shape.text += "recipe of " + WordsOf(command, &shape.error) + "\n";
    } else {
      shape.text += line.substr(0, line.find_first_of(":=")) + "\n";
    }
  }
  return shape;
}

Shape ShapeOfResources(std::string_view text) {
  Shape shape;
  for (const std::string& line : LinesOf(text)) {
    const std::size_t colon = line.find(':');
    const std::size_t slashes = line.size() - (line.find_last_not_of('\\') + 1);
    if (slashes % 2 == 1) shape.error = "a line that goes on";
    if (line.empty() || line[0] == '!') {
      shape.text += "comment\n";
    } else if (colon == line.npos || !std::all_of(line.begin(), line.begin() + colon, [](char c) {
                 return IsWordByte(c) || c == '*' || c == '.';
               })) {
      shape.error = "a line that sets nothing: " + line;
    } else {
      shape.text += line.substr(0, colon) + "\n";
    }
  }
  return shape;
}

Shape ShapeOfLines(std::string_view text) {
  Shape shape;
  shape.text = std::to_string(std::count(text.begin(), text.end(), '\n'));
  if (HasControls(text)) shape.error = "a control byte";
  return shape;
}
