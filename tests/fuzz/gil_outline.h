// SPDX-License-Identifier: MIT
// A loose picture of a GIL text, for the mutator to take apart and put together again: files, their
// objects, the objects' attributes with the text of each value. It accepts any bytes whatever; what
// it cannot place is kept as it stands, so a text and the print of its outline mean the same.
#ifndef PANDREL_TESTS_FUZZ_GIL_OUTLINE_H
#define PANDREL_TESTS_FUZZ_GIL_OUTLINE_H

#include <string>
#include <string_view>
#include <vector>

// Separates the files of an input that is a project and its interfaces: FS, which no GIL token
// holds and no test of the reader needs.
constexpr char kFileSeparator = '\x1c';

struct OutlineAttribute {
  std::string keyword;  // with its colon; empty for text that follows none
  std::string value;    // one word or string, or a list with its parentheses; may be empty
};

struct OutlineObject {
  std::vector<OutlineAttribute> attributes;
};

struct OutlineFile {
  std::string head;  // what precedes the first parenthesis: the version header, comments
  bool list = true;  // objects within a further pair of parentheses; false for a project
  std::vector<OutlineObject> objects;
  std::string tail;  // what follows the last object
};

// Takes one file apart; stops to look for structure behind `max_objects` objects.
OutlineFile ReadOutline(std::string_view text, std::size_t max_objects);

// Adds the file's text to `out`.
void PrintOutline(const OutlineFile& file, std::string* out);

// The elements of a value that is a list, none when it is no list. A nested list is one element.
std::vector<std::string> ListElements(std::string_view value);

// The list of these elements.
std::string MakeList(const std::vector<std::string>& elements);

#endif
