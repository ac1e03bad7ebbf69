// SPDX-License-Identifier: MIT
// Module records back to text.
#include <initializer_list>

#include "uilfix/module.h"

namespace uilfix {
namespace {

const Layout kControl = {"", " ", ";\n"};
const Layout kUnmanaged = {"unmanaged ", " ", ";\n"};
const Layout kArgument = {"", " = ", ";\n"};
const Layout kCall = {"", "(", ");\n"};
const Layout kCallback = {"", " = procedure ", ""};
const Layout kCallbackList = {"", " = procedures {\n", "};\n"};
const Layout kDeclaration = {"procedure ", "", ";\n"};
const Layout kObject = {"object\n", ":", "{\n"};

const Layout& LayoutOf(const LayoutPtr& layout, const Layout& usual) {
  return layout ? *layout : usual;
}

// Gathers text.
struct Writer {
  std::string text;
  void Put(std::initializer_list<std::string_view> parts) {
    for (const std::string_view part : parts) text += part;
  }
};

// Counts it.
struct Counter {
  std::size_t size = 0;
  void Put(std::initializer_list<std::string_view> parts) {
    for (const std::string_view part : parts) size += part.size();
  }
};

template <typename Out>
void Render(const Verbatim& verbatim, Out& out) {
  out.Put({verbatim.text});
}

template <typename Out>
void Render(const Control& control, Out& out) {
  const Layout& layout = LayoutOf(control.layout, control.unmanaged ? kUnmanaged : kControl);
  out.Put(
      {control.lead, layout.head, control.class_name, layout.middle, control.name, layout.tail});
}

template <typename Out>
void Render(const Argument& argument, Out& out) {
  const Layout& layout = LayoutOf(argument.layout, kArgument);
  out.Put({argument.lead, argument.resource, layout.middle, argument.value, layout.tail});
}

template <typename Out>
void Render(const Callback& callback, Out& out) {
  const Layout& layout = LayoutOf(callback.layout, callback.list ? kCallbackList : kCallback);
  out.Put({callback.lead, callback.reason, layout.middle});
  for (const Call& call : callback.calls) {
    const Layout& around = LayoutOf(call.layout, kCall);
    if (callback.list && !call.layout) out.Put({callback.lead, "\t"});
    out.Put({around.head, call.procedure, around.middle, call.argument, around.tail});
  }
  if (callback.list && !callback.layout) out.Put({callback.lead, "\t"});
  out.Put({layout.head, layout.tail});
}

template <typename Out>
void Render(const Declaration& declaration, Out& out) {
  const Layout& layout = LayoutOf(declaration.layout, kDeclaration);
  out.Put({layout.head, declaration.name, layout.tail});
}

template <typename Out>
void Render(const Object& object, Out& out) {
  const Layout& layout = LayoutOf(object.layout, kObject);
  out.Put({object.prefix, layout.head, object.prefix, object.name, layout.middle, object.class_name,
           layout.tail});
  for (const Entry& entry : object.entries) {
    std::visit([&](const auto& record) { Render(record, out); }, entry);
  }
}

}  // namespace

std::string RenderEntry(const Entry& entry) {
  Writer writer;
  std::visit([&](const auto& record) { Render(record, writer); }, entry);
  return writer.text;
}

std::size_t EntrySize(const Entry& entry) {
  Counter counter;
  std::visit([&](const auto& record) { Render(record, counter); }, entry);
  return counter.size;
}

std::string RenderModule(const Module& module) {
  Counter counter;
  Writer writer;
  const auto render = [&](auto& out) {
    for (const Item& item : module.items) {
      std::visit([&](const auto& record) { Render(record, out); }, item);
    }
  };
  render(counter);
  writer.text.reserve(counter.size);
  render(writer);
  return std::move(writer.text);
}

}  // namespace uilfix
