// SPDX-License-Identifier: MIT
// A UIL module as its writer laid it out, in records that give the same bytes back. The rewrites of
// pandrel-uilfix and the shell reader of pandrel-view work on these records and never on text.
//
// Two layouts are taken apart: the exact one that pandrel writes, in which a name may hold
// anything, and the compiler's free one, for modules that were edited or written by hand. Any other
// text (a value section, a message printed in front of the module) is kept whole as Verbatim, so
// reading and rendering is the identity for every input.
#ifndef PANDREL_UILFIX_MODULE_H
#define PANDREL_UILFIX_MODULE_H

#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "uilfix/gil_starts.h"
#include "uilfix/line_ends.h"

namespace uilfix {

// What a Verbatim text does in its object.
enum class Mark { kNone, kControls, kArguments, kCallbacks, kEnd, kObjectEnd };

// Text that no rewrite looks into, line end included.
struct Verbatim {
  std::string text;
  Mark mark = Mark::kNone;  // the section that is open behind it; kEnd when it closes the last
  int line = 0;             // in the module as read, counted from 1; of the text's first line
  bool closes = false;      // it closes the section that is open before it
};

// The texts around the names and values of a record, where they are not what pandrel writes. Each
// record says which of the three it has.
struct Layout {
  std::string head;
  std::string middle;
  std::string tail;
};

// Null stands for pandrel's own layout.
using LayoutPtr = std::shared_ptr<const Layout>;

// One line of a "controls" list: "<lead>[unmanaged ]Class name;".
struct Control {
  std::string lead;  // comment prefix and tabs; in the free layout any blanks and comments
  std::string class_name;
  std::string name;
  bool unmanaged = false;
  int line = 0;
  LayoutPtr layout = nullptr;  // head "unmanaged ", middle " ", tail ";\n"
};

// One entry of an "arguments" list: "<lead>XmNresource = value;". The value may run over several
// lines, with a line feed inside a string literal or between the parts of an expression.
struct Argument {
  std::string lead;
  std::string resource;
  std::string value;  // without the semicolon
  int line = 0;
  LayoutPtr layout = nullptr;  // middle " = ", tail ";\n"
};

// One procedure call of a callback: "procedure(argument)".
struct Call {
  std::string procedure;
  std::string argument;  // as it stands between the parentheses; empty for none
  int line = 0;
  LayoutPtr layout = nullptr;  // head what stands before the call, middle "(", tail ");\n"
};

// One entry of a "callbacks" list: "<lead>XmNreason = procedure p(a);", or, with `list` set,
// "<lead>XmNreason = procedures {" with each call on its own line, and the closing brace on
// another, behind "<lead>" and a tab.
struct Callback {
  std::string lead;
  std::string reason;
  std::vector<Call> calls;
  bool list = false;
  int line = 0;
  // Middle " = procedure "; of a list " = procedures {\n", head what stands before the closing
  // brace, tail "};\n".
  LayoutPtr layout = nullptr;
};

using Entry = std::variant<Verbatim, Control, Argument, Callback>;

// "procedure name;" on a line of its own.
struct Declaration {
  std::string name;
  int line = 0;
  LayoutPtr layout = nullptr;  // head "procedure ", tail ";\n"
};

// "<prefix>object", "<prefix>name:Class{" and everything up to the object's closing brace. The
// section heads and closing braces stand among the entries as Verbatim.
struct Object {
  std::string prefix;  // "", or "!" / "!(ZO)" for a shell that stands only in comments
  std::string name;
  std::string class_name;
  std::vector<Entry> entries;
  int line = 0;                // of the line that holds the name
  LayoutPtr layout = nullptr;  // head "object\n", middle ":", tail "{\n"

  // A commented object: the compiler never sees it.
  bool IsComment() const { return !prefix.empty(); }
};

using Item = std::variant<Verbatim, Declaration, Object>;

struct Module {
  std::vector<Item> items;
  // The line of a text, in objects or between them, that fits no form and is neither blank nor a
  // comment, or that was changed; 0 for none. Read again it may be taken for something else.
  int odd_line = 0;
  CarriageReturns carriage_returns;  // left out when it was read
  std::vector<GilStart> starts;      // from the GIL file, when the user named it
};

// Takes a module apart. Never fails.
Module ParseModule(std::string_view text);

// The module as text. RenderModule(ParseModule(text)) equals text.
std::string RenderModule(const Module& module);

// One entry as text, line end included.
std::string RenderEntry(const Entry& entry);

// How many bytes RenderEntry gives.
std::size_t EntrySize(const Entry& entry);

// Whether the text holds a module: a line that begins with "module" and a name. What is printed in
// front of it does not matter.
bool HoldsModule(std::string_view text);

// Whether a line of a live object stands in a comment.
inline bool IsCommented(std::string_view lead) { return lead.starts_with('!'); }

// Calls `visit(Object&)` for each object of the module in order.
template <typename M, typename Visit>
void ForEachObject(M& module, Visit visit) {
  for (auto& item : module.items) {
    if (auto* object = std::get_if<Object>(&item)) visit(*object);
  }
}

// Calls `visit(T&)` for each entry of kind T (Control, Argument, Callback) of the object.
template <typename T, typename O, typename Visit>
void ForEachEntry(O& object, Visit visit) {
  for (auto& entry : object.entries) {
    if (auto* found = std::get_if<T>(&entry)) visit(*found);
  }
}

// Whether the value of this resource is the name of a widget.
bool IsWidgetReference(std::string_view resource);

// The value of the object's argument `resource`, or null when it has none. A line that stands in a
// comment within a live object does not count.
const std::string* FindArgument(const Object& object, std::string_view resource);

// Adds an argument behind the object's others. Returns false, and does nothing, when the list of
// arguments cannot be found.
bool AddArgument(Object& object, const std::string& resource, const std::string& value);

// Makes a control unmanaged, whatever it was.
void Unmanage(Control& control);

}  // namespace uilfix

#endif
