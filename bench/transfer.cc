// SPDX-License-Identifier: MIT
// copy BYTES: reads standard input to its end, then writes BYTES bytes to standard output. A
// converter that reads an input and writes a module of that size cannot be faster than this.
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("Usage: copy BYTES < input > output\n", stderr);
    return 2;
  }
  std::vector<char> buffer(1U << 18U, ' ');
  ssize_t got = 0;
  while ((got = read(STDIN_FILENO, buffer.data(), buffer.size())) > 0) {
  }
  if (got < 0) return 1;
  for (unsigned long long left = std::strtoull(argv[1], nullptr, 10); left > 0;) {
    const ssize_t put =
        write(STDOUT_FILENO, buffer.data(), std::min<unsigned long long>(left, buffer.size()));
    if (put < 0) return 1;
    left -= static_cast<unsigned long long>(put);
  }
  return 0;
}
