// SPDX-License-Identifier: MIT
// Models in a few lines, for tests of what is made from them.
//
//   Model model = EmptyModel();
//   const int window = AddObject(&model, BASE_WINDOW, "window", -1, {Number(WIDTH, 200)});
//   AddObject(&model, BUTTON, "ok", window, {Text(LABEL, "OK")});
#ifndef PANDREL_TESTS_PORT_MODEL_BUILDER_H
#define PANDREL_TESTS_PORT_MODEL_BUILDER_H

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

#include "port/model.h"

namespace port {

// A model of one interface file, "app.G", without objects.
Model EmptyModel();

GilAttribute Number(int32_t name, int number);
GilAttribute Text(int32_t name, const std::string& text);
GilAttribute Texts(int32_t name, const std::vector<std::string>& texts);
GilAttribute Word(int32_t name, int32_t token);
GilAttribute Words(int32_t name, const std::vector<int32_t>& tokens);

// X, Y, WIDTH and HEIGHT, then the others.
std::vector<GilAttribute> At(int x, int y, int width, int height,
                             std::initializer_list<GilAttribute> others = {});

// Adds an object below `parent` (-1: at the top level) and returns its place in the model.
int AddObject(Model* model, int32_t type, const std::string& name, int parent,
              const std::vector<GilAttribute>& attributes = {});

}  // namespace port

#endif
