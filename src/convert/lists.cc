// SPDX-License-Identifier: MIT
#include "convert/lists.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "convert/companions.h"
#include "convert/object_label.h"
#include "flags/flags.h"
#include "gil/object.h"
#include "gil/tokens.h"
#include "gil/value.h"
#include "osi/arena.h"
#include "osi/fatal.h"
#include "osi/owned_text.h"
#include "osi/strings.h"
#include "text/uil_text.h"
#include "widget/resources.h"
#include "widget/tree.h"

static constexpr std::size_t kBufferStep = 1024;
static constexpr std::size_t kBufferReserve = 256;

// Keeps its grown value, since the next list of the file is likely to be as long.
static std::size_t buffer_size = kBufferStep;

static const char kNoMemory[] = "Out of memory in pandrel making string table\n";

// The working buffer of one table.
struct TableBuffer {
  char* text;
  std::size_t length;
};

static void Append(TableBuffer* buffer, const char* text) {
  const std::size_t added = std::strlen(text);
  std::size_t size = buffer_size;
  while (buffer->length + added + kBufferReserve > size) size += kBufferStep;
  if (size != buffer_size) {
    auto* grown = static_cast<char*>(TryRealloc(buffer->text, size));
    if (!grown) {
      std::free(buffer->text);
      std::fputs(kNoMemory, stderr);
      OsiExit(0);
    }
    buffer->text = grown;
    buffer_size = size;
  }
  std::memcpy(buffer->text + buffer->length, text, added);
  buffer->length += added;
}

int MakeStringTable(const Value* values, char** tableOut) {
  if (!values) {
    std::fputs("MakeStringTable passed NULL string_value", stderr);
    return 0;
  }
  TableBuffer buffer = {static_cast<char*>(TryRealloc(nullptr, buffer_size)), 0};
  if (!buffer.text) {
    std::fputs(kNoMemory, stderr);
    return 0;
  }
  int count = 0;
  Append(&buffer, "string_table(");
  for (const Value* value = values; value; value = value->next) {
    if (count++ > 0) Append(&buffer, ",\n");
    Append(&buffer, ValueText(value));
  }
  Append(&buffer, ")");
  buffer.text[buffer.length] = '\0';
  *tableOut = OsiStrdup(buffer.text);
  std::free(buffer.text);
  return count;
}

void ResetStringTable() { buffer_size = kBufferStep; }

static void SetItems(Obj* obj, Widg* list) {
  const Value* values = TakeValue(obj, INITIAL_LIST_VALUES);
  const Value* glyphs = TakeValue(obj, INITIAL_LIST_GLYPHS);
  if (*ValueText(glyphs) && verbose) {
    std::printf("ScrollingList %s: Motif lists do not support glyphs\n", list->gil_name);
  }
  if (!values) return;
  char* table = nullptr;
  const int count = MakeStringTable(values, &table);
  if (count == 0) return;
  const OsiOwnedText owner(table);
  AddResource(list, "XmNitems", MergeStrings(table, ""));
  AddResource(list, "XmNitemCount", IntToString(count));
}

static Widg* WrapInScrolledWindow(Widg* list) {
  Widg* sw = MakeNamedAfter("XmScrolledWindow", list, "_sw");
  AddResource(sw, "XmNscrollBarDisplayPolicy", "XmSTATIC");
  WrapIn(sw, list, nullptr);
  CopySizeResources(list, sw);
  list->wrapped = 1;
  return sw;
}

// A frame of Motif 1.2 places its title by itself.
static void ArrangeInFrame(Widg* title, Widg* sw) {
  AddResource(sw, "XmNchildType", "XmFRAME_WORKAREA_CHILD");
  AddResource(title, "XmNchildType", "XmFRAME_TITLE_CHILD");
  AddResource(title, "XmNchildVerticalAlignment", "XmALIGNMENT_WIDGET_TOP");
}

static void ArrangeInForm(Widg* title, Widg* sw) {
  AddResource(title, "XmNtopAttachment", "XmATTACH_FORM");
  AddResource(title, "XmNleftAttachment", "XmATTACH_FORM");
  AddResource(sw, "XmNtopAttachment", "XmATTACH_WIDGET");
  AddResource(sw, "XmNtopWidget", title->name);
  AddResource(sw, "XmNbottomAttachment", "XmATTACH_FORM");
  AddResource(sw, "XmNleftAttachment", "XmATTACH_FORM");
  AddResource(sw, "XmNrightAttachment", "XmATTACH_FORM");
}

static Widg* AddTitle(const Widg* list, Widg* sw, const Value* text) {
  Widg* container =
      motif12 ? MakeNamedAfter("XmFrame", list, "_frame") : MakeNamedAfter("XmForm", list, "_form");
  CopyGilGeometry(list, container);
  Widg* title = MakeNamedAfter("XmLabel", list, "_title");
  AddResource(title, "XmNlabelString", ValueText(text));
  WrapIn(container, sw, title);
  CopySizeResources(sw, container);
  sw->wrapped = 1;
  (motif12 ? ArrangeInFrame : ArrangeInForm)(title, sw);
  return container;
}

Widg* SpecProcScrollingList(Obj* obj, Widg* list) {
  Widg* sw = WrapInScrolledWindow(list);
  SetItems(obj, list);
  const Value* title = TakeValue(obj, TITLE);
  return SpecProcObjLabel(obj, HasGilText(title) ? AddTitle(list, sw, title) : sw, 0);
}
