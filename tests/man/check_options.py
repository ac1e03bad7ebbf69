#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Every option and list entry that a program's --help names stands in its manual page.

usage: check_options.py program page.1
"""
import re
import subprocess
import sys


def main():
    program, page = sys.argv[1:]
    shown = subprocess.run([program, "--help"], capture_output=True, text=True, check=True, timeout=60).stdout
    manual = open(page, encoding="utf-8").read()
    described = " ".join(re.findall(r"^\.It (.*)$", manual, re.M))
    # One macro with several options repeats its mark in front of each.
    described = re.sub(r" , (?=[a-z])", " Fl ", described)
    missing = []
    # Words in capitals stand for values and are not looked for.
    for word in re.findall(r"(?<![\w-])--?[a-zA-Z][a-z0-9-]*=?", shown):
        name = word.lstrip("-")
        mark = ("Fl Fl " if word.startswith("--") else "Fl ") + name
        if not re.search(re.escape(mark) + r"(?![\w])", described):
            missing.append(word)
    for entry in re.findall(r"^  ([a-z]+)  +[a-z]", shown, re.M):
        if not re.search(rf"^\.It {entry}$", manual, re.M):
            missing.append(entry)
    if missing:
        sys.exit(f"{page} does not describe: {' '.join(sorted(set(missing)))}")
    print("all described")


if __name__ == "__main__":
    main()
