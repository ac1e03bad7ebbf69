// SPDX-License-Identifier: MIT
// A program that does nothing: linked against the libraries of the converter, it costs what the
// kernel and the dynamic linker cost before the converter's own first instruction.
int main() { return 0; }
