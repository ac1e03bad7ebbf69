// SPDX-License-Identifier: MIT
#include <cctype>
#include <set>

#include "gil/tokens.h"
#include "port/code.h"
#include "port/escape.h"
#include "port/functions.h"
#include "port/generate.h"

namespace port {
namespace {

using kainjow::mustache::list;

// Every word of the file that an opening parenthesis follows: functions are among them, wherever
// the user put them and whatever type they have by now.
std::set<std::string> WordsBeforeParentheses(const std::string& text) {
  std::set<std::string> words;
  for (std::size_t at = text.find('('); at != std::string::npos; at = text.find('(', at + 1)) {
    std::size_t end = at;
    while (end > 0 && std::isspace(static_cast<unsigned char>(text[end - 1]))) --end;
    std::size_t begin = end;
    while (begin > 0 && IsWordByte(text[begin - 1])) --begin;
    if (begin < end) words.insert(text.substr(begin, end - begin));
  }
  return words;
}

std::string SourcesText(const Connection& connection) {
  std::string text;
  for (const Source& source : connection.sources) {
    text += (text.empty() ? ": " : ", ") + source.event + " of " + source.widget;
  }
  return text;
}

std::string CallerText(const Model& model, const Connection& connection) {
  std::string text = OriginText(model, connection);
  if (connection.from_object >= 0) {
    const PortObject& object = model.objects[connection.from_object];
    text = TypeName(object.type) + " " + text;
    const std::string label = object.Text(LABEL);
    if (!label.empty()) text += ", labelled \"" + label + "\"";
  }
  if (connection.sources.empty()) return text + ": not connected, " + connection.reason;
  return text + SourcesText(connection);
}

Data FunctionData(const Model& model, const PortFunction& function) {
  Data data;
  data.set("function", function.name);
  data.set("heading",
           CComment(function.gil_name == function.name || function.gil_name.empty()
                        ? function.name + ": called by"
                        : function.name + ", in the file " + function.gil_name + ": called by"));
  Data callers{list{}};
  for (int connection : function.connections) {
    callers.push_back(Data(CComment(CallerText(model, model.connections[connection]))));
  }
  data.set("callers", callers);
  if (function.code.empty()) return data;
  switch (PlaceOfCode(function.code)) {
    case CodePlace::kLive:
      data.set("live_code", function.code);
      break;
    case CodePlace::kDead:
      data.set("dead_code", function.code);
      break;
    case CodePlace::kComment: {
      Data lines{list{}};
      for (const std::string& line : CommentLines(function.code)) lines.push_back(Data(line));
      data.set("comment_lines", lines);
      data.set("has_comment_lines", Data(true));
      break;
    }
  }
  return data;
}

}  // namespace

std::string CallbacksHeader(const Model& model, const std::vector<std::string>& former,
                            const Templates& templates) {
  Data data;
  data.set("title", Title(model));
  Data functions{list{}};
  const auto add = [&](const std::string& name) {
    Data row;
    row.set("function", name);
    functions.push_back(row);
  };
  for (const PortFunction& function : model.functions) add(function.name);
  for (const std::string& name : former) add(name);
  data.set("functions", functions);
  return templates.Fill("callbacks.h", data, CText);
}

std::string CallbacksFile(const Model& model, const std::string& existing,
                          const Templates& templates, std::vector<std::string>* added) {
  std::string text = existing;
  if (text.empty()) {
    Data data;
    data.set("title", Title(model));
    text = templates.Fill("callbacks.c", data, CText);
  }
  const std::set<std::string> known = WordsBeforeParentheses(existing);
  for (const PortFunction& function : model.functions) {
    if (known.contains(function.name)) continue;
    if (!text.empty() && text.back() != '\n') text += '\n';
    text += templates.Fill("function.c", FunctionData(model, function), CText);
    added->push_back(function.name);
  }
  return text;
}

}  // namespace port
