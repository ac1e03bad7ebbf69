// SPDX-License-Identifier: MIT
#include "model_builder.h"

#include "gil/tokens.h"

namespace port {

using Kind = GilValue::Kind;

Model EmptyModel() {
  Model model;
  model.name = "app";
  model.files.push_back({"app.G", false, true, {}});
  return model;
}

GilAttribute Number(int32_t name, int number) {
  return {name, {{Kind::kInteger, number, std::to_string(number)}}};
}

GilAttribute Text(int32_t name, const std::string& text) { return Texts(name, {text}); }

GilAttribute Texts(int32_t name, const std::vector<std::string>& texts) {
  GilAttribute attribute{name, {}};
  for (const std::string& text : texts) attribute.values.push_back({Kind::kString, 0, text});
  return attribute;
}

GilAttribute Word(int32_t name, int32_t token) { return Words(name, {token}); }

GilAttribute Words(int32_t name, const std::vector<int32_t>& tokens) {
  GilAttribute attribute{name, {}};
  for (int32_t token : tokens) attribute.values.push_back({Kind::kToken, token, ""});
  return attribute;
}

std::vector<GilAttribute> At(int x, int y, int width, int height,
                             std::initializer_list<GilAttribute> others) {
  std::vector<GilAttribute> all = {Number(X, x), Number(Y, y), Number(WIDTH, width),
                                   Number(HEIGHT, height)};
  all.insert(all.end(), others);
  return all;
}

int AddObject(Model* model, int32_t type, const std::string& name, int parent,
              const std::vector<GilAttribute>& attributes) {
  const int index = static_cast<int>(model->objects.size());
  PortObject object;
  object.file = 0;
  object.type = type;
  object.name = name;
  object.parent = parent;
  object.attributes = attributes;
  model->objects.push_back(object);
  model->files[0].objects.push_back(index);
  if (parent >= 0) model->objects[parent].children.push_back(index);
  return index;
}

}  // namespace port
