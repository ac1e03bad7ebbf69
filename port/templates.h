// SPDX-License-Identifier: MIT
// The templates of C, make and resource texts. They are in the language of mustache: {{x}} is
// escaped for the file's language (inside a string of C, a value of a resource, single quotes in a
// recipe),
// {{{x}}} stays as it is.
#ifndef PANDREL_PORT_TEMPLATES_H
#define PANDREL_PORT_TEMPLATES_H

#include <filesystem>
#include <kainjow/mustache.hpp>
#include <map>
#include <string>
#include <vector>

namespace port {

using Data = kainjow::mustache::data;

// Thrown when a template is missing or malformed.
struct TemplateError {
  std::string text;
};

class Templates {
 public:
  // Looks in the user's folder first, if that is not empty, then in the installed one.
  explicit Templates(const std::filesystem::path& own);

  // The template NAME.mustache filled with `data`.
  std::string Fill(const std::string& name, const Data& data,
                   std::string (*escape)(const std::string& text)) const;

  // A file that is taken as it is, such as "zo.c".
  std::string Plain(const std::string& name) const;

 private:
  std::string Read(const std::string& name) const;

  std::vector<std::filesystem::path> folders_;
  // One template may be filled for each of hundreds of functions.
  mutable std::map<std::string, kainjow::mustache::mustache> parsed_;
};

}  // namespace port

#endif
