// SPDX-License-Identifier: MIT
#include "gil_outline.h"

#include <algorithm>
#include <utility>

namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\n'; }
bool EndsWord(char c) { return IsBlank(c) || c == '(' || c == ')' || c == '"' || c == ';'; }

// Steps through a text in pieces: parentheses, strings, comments, words.
class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  bool at_end() const { return position_ >= text_.size(); }

  void SkipBlanks() {
    while (!at_end() && IsBlank(text_[position_])) ++position_;
  }

  // The first character of the piece that Next would return, NUL at the end.
  char Peek() {
    SkipBlanks();
    return at_end() ? '\0' : text_[position_];
  }

  std::string_view Next() {
    SkipBlanks();
    if (at_end()) return {};
    const std::size_t start = position_;
    const char first = text_[position_++];
    if (first == '"') {
      while (!at_end() && text_[position_] != '"') position_ += text_[position_] == '\\' ? 2 : 1;
      position_ = std::min(position_ + 1, text_.size());
    } else if (first == ';') {
      while (!at_end() && text_[position_] != '\n') ++position_;
    } else if (first != '(' && first != ')') {
      while (!at_end() && !EndsWord(text_[position_])) {
        if (text_[position_] == ':') break;  // a keyword may follow without a blank
        ++position_;
      }
    }
    return text_.substr(start, position_ - start);
  }

  // A word or string, or everything up to the parenthesis that closes the one at hand.
  std::string_view NextValue() {
    SkipBlanks();
    const std::size_t start = position_;
    int depth = 0;
    do {
      const std::string_view piece = Next();
      if (piece.empty()) break;
      if (piece == "(") ++depth;
      if (piece == ")") --depth;
    } while (depth > 0);
    return text_.substr(start, position_ - start);
  }

  std::string Rest() {
    SkipBlanks();
    std::string rest(text_.substr(position_));
    position_ = text_.size();
    return rest;
  }

 private:
  std::string_view text_;
  std::size_t position_ = 0;
};

// The attributes up to the closing parenthesis of an object, which is read too.
OutlineObject ReadObject(Reader* reader) {
  OutlineObject object;
  while (true) {
    const char next = reader->Peek();
    if (next == '\0') break;
    if (next == ')') {
      reader->Next();
      break;
    }
    OutlineAttribute attribute;
    if (next == ':') {
      attribute.keyword = reader->Next();
      const char value = reader->Peek();
      if (value != '\0' && value != ')' && value != ';') attribute.value = reader->NextValue();
    } else {
      attribute.value = reader->NextValue();
      if (next == ';') attribute.value += '\n';
    }
    object.attributes.push_back(std::move(attribute));
  }
  return object;
}

}  // namespace

OutlineFile ReadOutline(std::string_view text, std::size_t max_objects) {
  OutlineFile file;
  Reader reader(text);
  while (reader.Peek() != '(' && !reader.at_end()) {
    const bool comment = reader.Peek() == ';';
    file.head += reader.Next();
    file.head += comment ? '\n' : ' ';
  }
  if (reader.at_end()) {
    file.list = false;
    return file;
  }
  reader.Next();
  file.list = reader.Peek() == '(';
  if (!file.list) {
    file.objects.push_back(ReadObject(&reader));
    file.tail = reader.Rest();
    return file;
  }
  while (reader.Peek() == '(' && file.objects.size() < max_objects) {
    reader.Next();
    file.objects.push_back(ReadObject(&reader));
  }
  if (reader.Peek() == ')') reader.Next();
  file.tail = reader.Rest();
  return file;
}

void PrintOutline(const OutlineFile& file, std::string* out) {
  *out += file.head;
  if (file.list) *out += "(\n";
  for (const OutlineObject& object : file.objects) {
    *out += '(';
    for (const OutlineAttribute& attribute : object.attributes) {
      *out += attribute.keyword;
      if (!attribute.keyword.empty()) *out += ' ';
      *out += attribute.value;
      *out += '\n';
    }
    *out += ")\n";
  }
  if (file.list) *out += ")\n";
  *out += file.tail;
}

std::vector<std::string> ListElements(std::string_view value) {
  std::vector<std::string> elements;
  if (value.size() < 2 || value.front() != '(' || value.back() != ')') return elements;
  Reader reader(value.substr(1, value.size() - 2));
  while (reader.Peek() != '\0') elements.emplace_back(reader.NextValue());
  return elements;
}

std::string MakeList(const std::vector<std::string>& elements) {
  std::string list = "(";
  for (const std::string& element : elements) {
    list += element;
    list += ' ';
  }
  return list += ')';
}
