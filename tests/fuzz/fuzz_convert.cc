// SPDX-License-Identifier: MIT
// The whole conversion in process, from the command line to the module. The first two bytes of an
// input choose the options, the rest is the file on standard input and the interfaces that it may
// name.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string>
#include <vector>

#include "../unit/support/checked_searches.h"
#include "confinement.h"
#include "driver/command_line.h"
#include "driver/driver.h"
#include "fuzz_session.h"
#include "gil_mutator.h"
#include "passes/procedure_names.h"
#include "uil/writer.h"
#include "widget/search.h"
#include "widget/tree.h"
#include "widget/walk.h"
#include "widget/walk_testing.h"

namespace {

// One bit each, in this order.
constexpr const char* kOptions[] = {
    "-openlook",      "-noreposition",   "-quiet", "-ignoregroups", "-motif12",
    "-nogrouplabels", "-zo30",           "-nozo",  "-mapall",       "-genzocallbacks",
    "-nocomments",    "-noconverticons", "-Dicons"};
// The last two bits: every option set is also tried twice, to see that nothing is left over from
// the conversion before.
constexpr unsigned kRepeat = 0xc000;
constexpr std::size_t kPrefix = 2;
constexpr unsigned kNoOptions = ' ';  // so that an input without options is a text
static_assert(std::size(kOptions) <= 14);

unsigned options;
std::string module;

void Convert() {
  std::vector<std::string> words = {"pandrel"};
  for (std::size_t i = 0; i < std::size(kOptions); ++i) {
    if ((options >> i & 1U) != 0) words.emplace_back(kOptions[i]);
  }
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  ParseCommandLine(static_cast<int>(words.size()), arguments.data());

  ProcessGILFile(&top_widget);
  ProcessProject();
  ProcessActions();
  FixProcedureNames();
  char* text = nullptr;
  std::size_t size = 0;
  std::FILE* output = open_memstream(&text, &size);
  if (output == nullptr) std::abort();
  GenUILForWidgHierarchy(top_widget, output);
  std::fclose(output);
  module.assign(text, size);
  std::free(text);
}

int ConvertFiles(const std::vector<std::string>& files) {
  const Confinement confinement(files);
  module.clear();
  return RunSession(Convert);
}

void Require(bool condition, const char* what) {
  if (condition) return;
  std::fprintf(stderr, "%s\n", what);
  std::fflush(stderr);
  std::abort();
}

bool EndsWith(const std::string& text, const std::string& end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

}  // namespace

extern "C" {

int LLVMFuzzerInitialize(int*, char***) {
  BufferStreams();
  CheckSearches(true);
  LimitRepeats(1000);
  return 0;
}

std::size_t LLVMFuzzerMutate(uint8_t* data, std::size_t size, std::size_t max_size);

std::size_t LLVMFuzzerCustomMutator(uint8_t* data, std::size_t size, std::size_t max_size,
                                    unsigned seed) {
  return MutateGil(data, size, max_size, seed, kPrefix, LLVMFuzzerMutate);
}

std::size_t LLVMFuzzerCustomCrossOver(const uint8_t* first, std::size_t first_size,
                                      const uint8_t* second, std::size_t second_size, uint8_t* out,
                                      std::size_t max_size, unsigned seed) {
  return CrossOverGil(first, first_size, second, second_size, out, max_size, seed, kPrefix);
}

int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  if (size < kPrefix) return 0;
  options = (data[0] ^ kNoOptions) | static_cast<unsigned>(data[1] ^ kNoOptions) << 8U;
  std::vector<std::string> files = SplitFiles(data + kPrefix, size - kPrefix);
  const int status = ConvertFiles(files);
  Require(status == 0 || status == 1 || status == 255, "a status that is none of the program's");
  Require(status != 0 || module.compare(0, 15, "module Pandrel\n") == 0, "no head of the module");
  Require(status != 0 || EndsWith(module, "\nend module;\n\n"), "no end of the module");
  if ((options & kRepeat) == kRepeat) {
    const std::string first = module;
    Require(ConvertFiles(files) == status && module == first, "a second run gives another module");
  }
  return 0;
}
}
