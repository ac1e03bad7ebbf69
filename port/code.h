// SPDX-License-Identifier: MIT
// The C code of ExecuteCode actions: how it can be part of a file that must compile.
#ifndef PANDREL_PORT_CODE_H
#define PANDREL_PORT_CODE_H

#include <cstdint>
#include <string>
#include <vector>

namespace port {

enum class CodePlace : uint8_t {
  kLive,     // as it is: it calls only functions of the C library
  kDead,     // between #if 0 and #endif: it needs what the program may not have
  kComment,  // line by line in a comment: it could end the block around it
};

CodePlace PlaceOfCode(const std::string& code);

// The lines of the code, each fit for a comment.
std::vector<std::string> CommentLines(const std::string& code);

}  // namespace port

#endif
