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

// The text is gathered here and written in large pieces.
std::string text;
constexpr std::size_t kPieceSize = 64 * 1024;
std::FILE* output = nullptr;

void Flush() {
  std::fwrite(text.data(), 1, text.size(), output);
  text.clear();
}

void Put(std::string_view part) { text += part; }

void PutText(const char* part) {
  if (part) Put(part);
}

// A line of an object, or the first part of one. The mark is what each line of an object that
// stands as a comment begins with.
void PutLine(std::string_view mark, std::string_view part) {
  if (!mark.empty()) Put(mark);
  Put(part);
}

bool IsShell(const Widg* widg) {
  return IsClass(widg, "TopLevelShell") || IsClass(widg, "XmDialogShell");
}

bool IsWritten(const Widg* widg) { return OsiStrlen(widg->class_name) > 0; }

// UIL has no shells: they stand in the module as comments, which the builder knows by its own mark.
std::string_view ShellMark() { return usezo ? "!(ZO)" : "!"; }

// Without the builder's mark the comments serve only the reader and may be left out.
bool OmitShells() { return !usezo && nocomments; }

void GenStdHeader() {
  Put("module Pandrel\n"
      "names = case_sensitive\n"
      "\n");
}

void GenStdFooter() { Put("\nend module;"); }

void GenProcedures() {
  char** procedures = nullptr;
  const std::size_t count = GetProcedures(&procedures);
  for (std::size_t i = 0; i < count; ++i) {
    Put("procedure ");
    PutText(procedures[i]);
    Put(";\n");
  }
  Put("\n");
}

void GenControls(const Widg* widg, std::string_view mark) {
  PutLine(mark, "\tcontrols {\n");
  for (const Widg* child = widg->child; child; child = child->next) {
    if (!IsWritten(child)) continue;
    const bool marked = mark.empty() && IsShell(child);
    if (marked && OmitShells()) continue;
    PutLine(marked ? ShellMark() : mark, "\t\t");
    if (!child->managed) Put("unmanaged ");
    PutText(child->class_name);
    Put(" ");
    PutText(child->name);
    Put(";\n");
  }
  PutLine(mark, "\t\t};\n");
}

void GenArguments(const Widg* widg, std::string_view mark) {
  PutLine(mark, "\targuments {\n");
  for (const Resource* resource = widg->resources; resource; resource = resource->next) {
    // Carries the glyph's file name between the steps of the conversion; no resource of Motif's.
    if (OsiStrcmp(resource->name, "XmNoriginalPixmapName") == 0) continue;
    PutLine(mark, "\t\t");
    PutText(resource->name);
    Put(" = ");
    PutText(resource->value);
    Put(";\n");
  }
  PutLine(mark, "\t\t};\n");
}

void PutCall(const Callback* callback) {
  PutText(callback->procedure);
  Put("(");
  PutText(callback->argument);
  Put(")");
}

// Several callbacks stand in one list under the name of the first, whatever their own: the builder
// reads no second list.
void GenProcedureList(const Callback* callbacks, std::string_view mark) {
  PutLine(mark, "\t\t");
  PutText(callbacks->callback_name);
  Put(" = procedures {\n");
  for (const Callback* callback = callbacks; callback; callback = callback->next) {
    PutLine(mark, "\t\t\t");
    PutCall(callback);
    Put(";\n");
  }
  PutLine(mark, "\t\t\t};\n");
  PutLine(mark, "\n");
  PutLine(mark, "};\n");
}

// Ends the object, too: where its closing brace stands depends on the callbacks.
void GenCallbacks(const Widg* widg, std::string_view mark) {
  PutLine(mark, "\tcallbacks {\n");
  const Callback* callbacks = widg->callbacks;
  if (!callbacks) {
    PutLine(mark, "\t\t};\n");
    Put("\n");
    PutLine(mark, "\t};\n");
    Put("\n");
    return;
  }
  if (callbacks->next) {
    GenProcedureList(callbacks, mark);
  } else {
    PutLine(mark, "\t\t");
    PutText(callbacks->callback_name);
    Put(" = procedure ");
    PutCall(callbacks);
    Put(";\n");
    PutLine(mark, "\t\t};\n");
  }
  PutLine(mark, "};\n");
  Put("\n");
}

void GenObject(const Widg* widg) {
  if (IsShell(widg) && OmitShells()) return;
  const std::string_view mark = IsShell(widg) ? ShellMark() : "";
  PutLine(mark, "object\n");
  Put(mark);
  PutText(widg->name);
  Put(":");
  PutText(widg->class_name);
  Put("{\n");
  GenControls(widg, mark);
  GenArguments(widg, mark);
  GenCallbacks(widg, mark);
  if (text.size() > kPieceSize) Flush();
}

// Writes the objects below the widget, then its own. A widget is written once, where it is met
// first; one without a class hides all that is below it.
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
  GenStdHeader();
  GenProcedures();
  for (Widg* widg = top; widg; widg = widg->next) GenUILForWidg(widg);
  GenStdFooter();
  Put("\n\n");
  Flush();
}
