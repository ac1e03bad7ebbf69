// SPDX-License-Identifier: MIT
// Module records back to text.
#include "uilfix/module.h"

namespace uilfix {
namespace {

std::string RenderCall(const Call& call) { return call.procedure + "(" + call.argument + ");\n"; }

std::string Render(const Verbatim& verbatim) { return verbatim.text; }

std::string Render(const Control& control) {
  return control.lead + (control.unmanaged ? "unmanaged " : "") + control.class_name + " " +
         control.name + ";\n";
}

std::string Render(const Argument& argument) {
  return argument.lead + argument.resource + " = " + argument.value + ";\n";
}

std::string Render(const Callback& callback) {
  std::string text = callback.lead + callback.reason + " = ";
  if (!callback.list) return text + "procedure " + RenderCall(callback.calls.front());
  text += "procedures {\n";
  for (const Call& call : callback.calls) text += callback.call_lead + RenderCall(call);
  return text + callback.close_lead + "};\n";
}

std::string Render(const Declaration& declaration) {
  return "procedure " + declaration.name + ";\n";
}

std::string Render(const Object& object) {
  std::string text =
      object.prefix + "object\n" + object.prefix + object.name + ":" + object.class_name + "{\n";
  for (const Entry& entry : object.entries) text += RenderEntry(entry);
  return text;
}

}  // namespace

std::string RenderEntry(const Entry& entry) {
  return std::visit([](const auto& record) { return Render(record); }, entry);
}

std::string RenderModule(const Module& module) {
  std::string text;
  for (const Item& item : module.items) {
    text += std::visit([](const auto& record) { return Render(record); }, item);
  }
  return text;
}

}  // namespace uilfix
