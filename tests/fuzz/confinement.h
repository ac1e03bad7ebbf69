// SPDX-License-Identifier: MIT
// Keeps what runs within it away from the system: standard input and every file that is opened come
// from the input, nothing is written anywhere, and a shell command is examined instead of run. The
// linker's --wrap option puts this in place of the system's functions; outside of a Confinement
// they are what they always are.
#ifndef PANDREL_TESTS_FUZZ_CONFINEMENT_H
#define PANDREL_TESTS_FUZZ_CONFINEMENT_H

#include <string>
#include <vector>

class Confinement {
 public:
  // The first file becomes standard input. The others are found under the names a.G, b.G, ... and
  // the last one also under every name that ends in ".icon"; "unopenable.G" exists but cannot be
  // opened. After a number of openings there is no file at all.
  explicit Confinement(std::vector<std::string> files);
  ~Confinement();
  Confinement(const Confinement&) = delete;
  Confinement& operator=(const Confinement&) = delete;
};

// Whether the command is one of the two that convert a glyph, with every file name kept together as
// one word: the shell would run nothing but the converters, sed and mv.
bool IsGlyphCommand(const std::string& command);

#endif
