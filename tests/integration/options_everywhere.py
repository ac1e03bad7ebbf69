#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Every option that the program knows stands in the manual page and both completions, and no other."""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]


def options(path, pattern):
    return set(re.findall(pattern, (ROOT / path).read_text(), re.M))


def main():
    known = options("src/driver/command_line.cc", r'"-([a-zA-Z][\w]*)"')
    places = {
        "completions/pandrel.bash": set(re.findall(r"-(\w+)", re.search(
            r"_pandrel_options='(.*?)'", (ROOT / "integration/completions/pandrel.bash").read_text(), re.S).group(1))),
        "completions/pandrel.zsh": options("integration/completions/pandrel.zsh", r"-([a-zA-Z]\w*)-?\["),
    }
    manual = (ROOT / "man/pandrel.1").read_text()
    listed = re.search(r"\.Ss Options\n(.*?)\.Sh ", manual, re.S).group(1)
    places["pandrel.1"] = set()
    for line in re.findall(r"^\.It Fl (.*)$", listed, re.M):
        places["pandrel.1"] |= {"D"} if line.startswith("D Ns") else set(line.split(" , "))
    known.add("D")
    failed = False
    for place, found in places.items():
        for word, why in [(sorted(known - found), "lacks"), (sorted(found - known), "has unknown")]:
            if word:
                failed = True
                print(f"{place} {why} {' '.join(word)}")
    print(f"{len(known)} options")
    sys.exit(failed)


if __name__ == "__main__":
    main()
