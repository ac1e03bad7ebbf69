// SPDX-License-Identifier: MIT
// Runs a fuzz target on given files, and on the files of given folders, without any fuzzer: past
// findings stay tests under every compiler. The last line tells how many inputs there were.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size);
// Only some targets have one.
extern "C" [[gnu::weak]] int LLVMFuzzerInitialize(int* argc, char*** argv);
// The targets offer their mutator to libFuzzer; nothing here asks for it.
extern "C" std::size_t LLVMFuzzerMutate(uint8_t* data, std::size_t size, std::size_t max_size);
extern "C" std::size_t LLVMFuzzerMutate(uint8_t*, std::size_t size, std::size_t) { return size; }

int main(int argc, char** argv) {
  if (LLVMFuzzerInitialize != nullptr) LLVMFuzzerInitialize(&argc, &argv);
  std::vector<std::filesystem::path> inputs;
  for (int i = 1; i < argc; ++i) {
    if (std::filesystem::is_directory(argv[i])) {
      for (const auto& entry : std::filesystem::recursive_directory_iterator(argv[i])) {
        if (entry.is_regular_file()) inputs.push_back(entry.path());
      }
    } else {
      inputs.emplace_back(argv[i]);
    }
  }
  std::sort(inputs.begin(), inputs.end());
  for (const std::filesystem::path& input : inputs) {
    std::ifstream file(input, std::ios::binary);
    if (!file) {
      std::fprintf(stderr, "cannot read %s\n", input.c_str());
      return 1;
    }
    const std::string text((std::istreambuf_iterator<char>(file)), {});
    // Shows up last when the target crashes.
    std::fprintf(stderr, "%s\n", input.c_str());
    std::fflush(stderr);
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(text.data()), text.size());
  }
  std::fprintf(stderr, "%zu inputs\n", inputs.size());
  return inputs.empty() ? 77 : 0;
}
