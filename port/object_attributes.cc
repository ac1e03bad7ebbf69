// SPDX-License-Identifier: MIT
#include "port/object_attributes.h"

#include <algorithm>
#include <cstdlib>

#include "gil/tokens.h"
#include "port/model.h"
#include "port/page_text.h"

namespace port {

using Kind = GilValue::Kind;

static const int kFarthest = 20000;

static const std::vector<GilValue>& ValuesOf(const PortObject& obj, int32_t attribute) {
  static const std::vector<GilValue> none;
  const GilAttribute* found = obj.Find(attribute);
  return found ? found->values : none;
}

static std::string Text(const GilValue& value) {
  return value.kind == Kind::kToken ? "" : PageText(value.text);
}

int NumberOf(const PortObject& obj, int32_t attribute, int missing) {
  const std::vector<GilValue>& values = ValuesOf(obj, attribute);
  if (values.empty() || values[0].kind == Kind::kToken) return missing;
  long number = values[0].number;
  if (values[0].kind == Kind::kString) {
    char* end = nullptr;
    number = std::strtol(values[0].text.c_str(), &end, 10);
    if (end == values[0].text.c_str()) return missing;
  }
  return static_cast<int>(std::clamp<long>(number, -kFarthest, kFarthest));
}

std::string TextOf(const PortObject& obj, int32_t attribute) {
  const std::vector<GilValue>& values = ValuesOf(obj, attribute);
  return values.empty() ? "" : Text(values[0]);
}

std::vector<std::string> TextsOf(const PortObject& obj, int32_t attribute) {
  std::vector<std::string> texts;
  for (const GilValue& value : ValuesOf(obj, attribute)) texts.push_back(Text(value));
  return texts;
}

int32_t TokenOf(const PortObject& obj, int32_t attribute, int32_t missing) {
  const std::vector<GilValue>& values = ValuesOf(obj, attribute);
  return values.empty() || values[0].kind != Kind::kToken ? missing : values[0].number;
}

std::vector<int32_t> TokensOf(const PortObject& obj, int32_t attribute) {
  std::vector<int32_t> tokens;
  for (const GilValue& value : ValuesOf(obj, attribute)) {
    tokens.push_back(value.kind == Kind::kToken ? value.number : int32_t{NIL});
  }
  return tokens;
}

bool IsTrue(const PortObject& obj, int32_t attribute) { return TokenOf(obj, attribute, NIL) == T; }

}  // namespace port
