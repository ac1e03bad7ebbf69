// SPDX-License-Identifier: MIT
#include "uil/writer.h"

#include <cstring>
#include <string_view>
#include <vector>

#include "flags/flags.h"
#include "osi/io_buffer.h"
#include "osi/strings.h"
#include "names/name_table.h"
#include "widget/procedures.h"
#include "widget/tree.h"

namespace {

// The module is gathered in pieces before it goes to the stream.
constexpr std::size_t kPieceSize = kIoBufferSize;

std::FILE* output = nullptr;
constexpr char* piece = io_buffer;
std::size_t piece_length = 0;

void Flush() {
  std::fwrite(piece, 1, piece_length, output);
  piece_length = 0;
}

// A text that the rest of the piece is too small for.
[[gnu::noinline]] void PutOnNextPiece(std::string_view text) {
  Flush();
  if (text.size() > kPieceSize) {
    std::fwrite(text.data(), 1, text.size(), output);
    return;
  }
  std::memcpy(piece, text.data(), text.size());
  piece_length = text.size();
}

// In line, so that a literal is a store or two: a module consists of very many short ones.
[[gnu::always_inline]] inline void Put(std::string_view text) {
  if (text.size() > kPieceSize - piece_length) return PutOnNextPiece(text);
  std::memcpy(piece + piece_length, text.data(), text.size());
  piece_length += text.size();
}

void PutText(const char* text) {
  if (text) Put(text);
}

// What each line of an object that stands as a comment begins with; mostly nothing.
void PutMark(std::string_view mark) {
  if (!mark.empty()) Put(mark);
}

// A line of an object, or the first part of one.
[[gnu::always_inline]] inline void PutLine(std::string_view mark, std::string_view text) {
  PutMark(mark);
  Put(text);
}

bool IsShell(const Widg* widg) {
  return IsClass(widg, "TopLevelShell") || IsClass(widg, "XmDialogShell");
}

bool IsWritten(const Widg* widg) { return !widg->class_name.empty(); }

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

// UIL has one name space for procedures and objects, which the builder sorts out by itself.
void FixProcedureName(char* name) {
  if (usezo || NameLookup(InstanceNameTbl(), name) == kNoName) return;
  std::fprintf(stderr, "Changing procedure named %s to ", name);
  if (*name >= 'a' && *name <= 'z') *name = static_cast<char>(*name - 'a' + 'A');
  std::fprintf(stderr, "%s to avoid name collision\n", name);
}

void GenProcedures() {
  char** procedures = nullptr;
  const std::size_t count = GetProcedures(&procedures);
  for (std::size_t i = 0; i < count; ++i) {
    FixProcedureName(procedures[i]);
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
    Put(child->class_name.view());
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
    if (resource->name == "XmNoriginalPixmapName") continue;
    PutLine(mark, "\t\t");
    Put(resource->name.view());
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
  PutMark(mark);
  PutText(widg->name);
  Put(":");
  Put(widg->class_name.view());
  Put("{\n");
  GenControls(widg, mark);
  GenArguments(widg, mark);
  GenCallbacks(widg, mark);
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
  piece_length = 0;
  GenStdHeader();
  GenProcedures();
  for (Widg* widg = top; widg; widg = widg->next) GenUILForWidg(widg);
  GenStdFooter();
  Put("\n\n");
  Flush();
}
