// SPDX-License-Identifier: MIT
#include "port/escape.h"

#include <cstdio>

namespace port {
namespace {

bool IsPlain(char c) { return c >= ' ' && c <= '~'; }

std::string Octal(char c) {
  char text[8];
  std::snprintf(text, sizeof text, "\\%03o", static_cast<unsigned char>(c));
  return text;
}

}  // namespace

std::string CText(const std::string& text) {
  std::string escaped;
  for (char c : text) {
    if (c == '\n') {
      escaped += "\\n";
    } else if (!IsPlain(c)) {
      escaped += Octal(c);
    } else {
      if (c == '"' || c == '\\' || c == '?') escaped += '\\';
      escaped += c;
    }
  }
  return escaped;
}

std::string OneLine(const std::string& text) {
  std::string line;
  for (char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (IsPlain(c)) {
      line += c;
    } else if (byte >= 0xA0) {
      line += static_cast<char>(0xC0 | (byte >> 6));
      line += static_cast<char>(0x80 | (byte & 0x3F));
    } else {
      line += ' ';
    }
  }
  return line;
}

std::string CComment(const std::string& text) {
  std::string comment;
  for (char c : OneLine(text)) {
    const char last = comment.empty() ? '\0' : comment.back();
    // A trigraph may stand for the backslash that joins two lines.
    if ((last == '*' && c == '/') || (last == '/' && c == '*') || (last == '?' && c == '?')) {
      comment += ' ';
    }
    comment += c;
  }
  // What stands behind the text must not end the comment together with it.
  if (!comment.empty() && (comment.back() == '\\' || comment.back() == '*')) comment += ' ';
  return comment;
}

std::string ResourceText(const std::string& text) {
  std::string escaped;
  for (char c : text) {
    if (c == '\n') {
      escaped += "\\n";
    } else if (c == '\\') {
      escaped += "\\\\";
    } else if (!IsPlain(c)) {
      escaped += Octal(c);
    } else if (c == ' ' && escaped.empty()) {
      escaped += "\\ ";
    } else {
      escaped += c;
    }
  }
  return escaped;
}

std::string RecipeText(const std::string& text) {
  std::string escaped;
  for (char c : text) {
    if (c == '$') escaped += '$';
    if (c == '\'') {
      escaped += "'\\''";
    } else {
      escaped += c == '\n' ? ' ' : c;
    }
  }
  return escaped;
}

}  // namespace port
