// SPDX-License-Identifier: MIT
#include "uil/writer.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "flags/flags.h"
#include "osi/strings.h"
#include "widget/procedures.h"
#include "widget/tree.h"

namespace {

// Output gathers here, to be written in pieces of a few objects. Larger ones take longer: a small
// module then touches more new memory than it has bytes.
std::string text;
constexpr std::size_t kPieceSize = 8 * 1024;
std::FILE* output = nullptr;

void Flush() {
  std::fwrite(text.data(), 1, text.size(), output);
  text.clear();
}

template <typename... Parts>
void Put(const Parts&... parts) {
  (text.append(std::string_view(parts)), ...);
}

bool IsWritten(const Widg* widg) { return OsiStrlen(widg->class_name) > 0; }

// UIL has no shells. They stand in the module as comments: each of their lines begins with a mark,
// which the builder knows. All other lines begin with the empty mark.
std::string_view ShellMark() { return usezo ? "!(ZO)" : "!"; }

// Without the builder only people read the comments, so they may be left out.
bool OmitShells() { return !usezo && nocomments; }

void GenProcedures() {
  char** procedures = nullptr;
  const std::size_t count = GetProcedures(&procedures);
  for (std::size_t i = 0; i < count; ++i) Put("procedure ", OsiView(procedures[i]), ";\n");
  Put("\n");
}

void GenControls(const Widg* widg, std::string_view mark) {
  Put(mark, "\tcontrols {\n");
  for (const Widg* child = widg->child; child; child = child->next) {
    if (!IsWritten(child)) continue;
    const bool marked = mark.empty() && IsShell(child);
    if (marked && OmitShells()) continue;
    Put(marked ? ShellMark() : mark, "\t\t", child->managed ? "" : "unmanaged ", child->class_name,
        " ", child->name, ";\n");
  }
  Put(mark, "\t\t};\n");
}

void GenArguments(const Widg* widg, std::string_view mark) {
  Put(mark, "\targuments {\n");
  for (const Resource* resource = widg->resources; resource; resource = resource->next) {
    // Motif has no such resource; it is how steps of the conversion pass on a glyph's file name.
    if (OsiStrcmp(resource->name, "XmNoriginalPixmapName") == 0) continue;
    Put(mark, "\t\t", resource->name, " = ", OsiView(resource->value), ";\n");
  }
  Put(mark, "\t\t};\n");
}

// Puts several callbacks in one list under the name of the first, whatever their own: the builder
// reads no second list.
void GenProcedureList(const Callback* callbacks, std::string_view mark) {
  Put(mark, "\t\t", callbacks->callback_name, " = procedures {\n");
  for (const Callback* callback = callbacks; callback; callback = callback->next) {
    Put(mark, "\t\t\t", OsiView(callback->procedure), "(", OsiView(callback->argument), ");\n");
  }
  Put(mark, "\t\t\t};\n", mark, "\n", mark, "};\n");
}

// Ends the object, too: where its closing brace stands depends on the callbacks.
void GenCallbacks(const Widg* widg, std::string_view mark) {
  Put(mark, "\tcallbacks {\n");
  const Callback* callbacks = widg->callbacks;
  if (!callbacks) {
    Put(mark, "\t\t};\n\n", mark, "\t};\n\n");
    return;
  }
  if (callbacks->next) {
    GenProcedureList(callbacks, mark);
  } else {
    Put(mark, "\t\t", callbacks->callback_name, " = procedure ", OsiView(callbacks->procedure), "(",
        OsiView(callbacks->argument), ");\n", mark, "\t\t};\n");
  }
  Put(mark, "};\n\n");
}

void GenObject(const Widg* widg) {
  if (IsShell(widg) && OmitShells()) return;
  const std::string_view mark = IsShell(widg) ? ShellMark() : "";
  Put(mark, "object\n", mark, widg->name, ":", widg->class_name, "{\n");
  GenControls(widg, mark);
  GenArguments(widg, mark);
  GenCallbacks(widg, mark);
  if (text.size() > kPieceSize) Flush();
}

// Writes the objects below the widget, then its own. Writes each widget once, where it comes first,
// and nothing of a widget without a class or below one.
void GenUILForWidg(Widg* widg) {
  struct Frame {
    Widg* widg;
    Widg* next_child;
  };
  std::vector<Frame> open;
  const auto Open = [&open](Widg* w) {
    if (w->generated) return;
    w->generated = 1;
    if (IsWritten(w)) open.push_back({w, w->child});
  };
  Open(widg);
  while (!open.empty()) {
    Frame& frame = open.back();
    if (Widg* child = frame.next_child) {
      frame.next_child = child->next;
      Open(child);
      continue;
    }
    GenObject(frame.widg);
    open.pop_back();
  }
}

}  // namespace

void GenUILForWidgHierarchy(Widg* top, std::FILE* stream) {
  output = stream;
  Put("module Pandrel\n"
      "names = case_sensitive\n"
      "\n");
  GenProcedures();
  for (Widg* widg = top; widg; widg = widg->next) GenUILForWidg(widg);
  Put("\nend module;\n\n");
  Flush();
}
