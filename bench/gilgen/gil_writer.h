// SPDX-License-Identifier: MIT
// Writes objects as a GIL 3 file in the layout in which the interface editor saves them: one
// attribute a line, a tab, the keyword, the value in column 24.
#ifndef PANDREL_BENCH_GILGEN_GIL_WRITER_H
#define PANDREL_BENCH_GILGEN_GIL_WRITER_H

#include <string>
#include <vector>

#include "gilgen/object.h"
#include "gilgen/text_output.h"

enum class Attributes : uint8_t {
  kFull,   // every attribute that the editor saves, most with their default value
  kShort,  // only those that carry something: about a quarter of the bytes
};

class GilWriter {
 public:
  // `output` is shared and outlives the writer.
  GilWriter(TextOutput* output, Attributes attributes) : out_(output), attributes_(attributes) {}

  // The version header and the opening parenthesis of an interface file.
  void Begin();
  void Write(const Object& object);
  void End();

  // A whole project file that names the interface files and carries the connections between them.
  void WriteProject(const std::vector<std::string>& interfaces,
                    const std::vector<Connection>& connections);

 private:
  void WriteConnections(const std::vector<Connection>& connections);
  void WriteKeyword(std::string_view keyword);

  TextOutput* out_;
  Attributes attributes_;
};

#endif
