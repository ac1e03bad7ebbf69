// SPDX-License-Identifier: MIT
// The files of the program. Each function makes the text of one from the model and a template.
#ifndef PANDREL_PORT_GENERATE_H
#define PANDREL_PORT_GENERATE_H

#include <string>
#include <vector>

#include "port/model.h"
#include "port/templates.h"

namespace port {

std::string MainFile(const Model& model, const Templates& templates);
std::string ConnectionsFile(const Model& model, const Templates& templates);
std::string ResourceFile(const Model& model, const Templates& templates);
std::string MakefileText(const Model& model, const Templates& templates);
std::string ReadmeText(const Model& model, const Templates& templates);

// The header of callbacks.c. `former` are functions that an earlier run put there and that the
// model has no more.
std::string CallbacksHeader(const Model& model, const std::vector<std::string>& former,
                            const Templates& templates);

// callbacks.c with a function for each of the model's that is not in `existing` yet, which is
// otherwise kept byte by byte; an empty text begins a new file. Names of what was added go to
// `added`.
std::string CallbacksFile(const Model& model, const std::string& existing,
                          const Templates& templates, std::vector<std::string>* added);

// The class of the program: its name with a capital letter.
std::string ClassName(const Model& model);

// The interface's file, fit for a comment.
std::string Title(const Model& model);

// Where the connection comes from, for a reader: fileMenu / "Quit" (main.G), Notify.
std::string OriginText(const Model& model, const Connection& connection);

}  // namespace port

#endif
