#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks docs/troubleshooting.md and the manual pages against the messages in the sources.

Every message that the converter can write must be a heading there, and every heading a message; and it
must stand in pandrel(1) or gildump(1). A text in the sources that has a blank and is no message must
stand in NO_MESSAGES below; a message that no input brings about, in INTERNAL, and has no page.

usage: check_messages.py
"""
import pathlib
import re
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
PAGE = ROOT / "docs" / "troubleshooting.md"

# Texts with a blank that are no messages: parts of the module, commands, the usage text, the dump.
NO_MESSAGES = re.compile("|".join([
    r"module Pandrel", r"names = case_sensitive", r"procedure %s;", r"end module;", r"(controls|arguments|callbacks) \{",
    r"= procedures?( \{)?", r"%s = .*", r"unmanaged", r"procedure",
    r"icontopbm .*", r"\| pbmtoxbm >", r"sed -e .*",
    r"Usage: pandrel", r"\[-.*", r"< \{gilfile\} .*",
    r"(Obj|func_type|arg_type|action_name|from|when|to|ID): ?.*", r"(NIL|T|%s|%d)", r"%s: \(", r"Action:",
    r"%s %s", r"Error: %s",
]))

# What the program says when it is at fault itself, and values that the grammar lets nobody write.
INTERNAL = {
    "Unknown value for INITIAL_STATE %d", "TextField: Unknown INITIAL_VALUE type: %d",
    "Bad Value: Slider ORIENTATION", "SpecProcSetting: cannot handle SETTING_TYPE: %d",
    "***Unknown menu type: %d", "MakeStringTable passed NULL string_value",
    "ERROR: MakeSubHier: parent and child are not",
    "Bad attribute passed to ProcessStdAttributes", "Sorry, fatal error trying to convert GIL file.",
    "Illegal value type: %d", "OsiProcExec: File %s not found", "OsiProcExec: Failed to exec %s",
}


def literals(source):
    """The string literals of a C++ source, neighbours joined; not those of includes and comments."""
    code = re.sub(r"^\s*#.*$", "", source, flags=re.M)
    token = re.compile(r'//[^\n]*|/\*.*?\*/|\'(?:\\.|[^\'\\])\'|R"(\w*)\((.*?)\)\1"|"((?:\\.|[^"\\])*)"', re.S)
    end = None
    for match in token.finditer(code):
        if match.group(2) is not None:
            text = match.group(2)
        elif match.group(3) is not None:
            text = match.group(3).encode().decode("unicode_escape")
        else:
            continue
        # Only white space between two literals joins them.
        if end is not None and not code[end[0]:match.start()].strip():
            end = (match.end(), end[1] + text)
        else:
            if end is not None:
                yield end[1]
            end = (match.end(), text)
    if end is not None:
        yield end[1]


def messages():
    found = {}
    for path in sorted((ROOT / "src").rglob("*.cc")) + sorted((ROOT / "src").rglob("*.h")):
        for text in literals(path.read_text()):
            for line in text.split("\n"):
                line = line.strip()
                if " " in line and not NO_MESSAGES.fullmatch(line):
                    found.setdefault(line, path.relative_to(ROOT))
    return found


def manual():
    """The text of the manual pages as it is read, on one line; None without mandoc."""
    if not shutil.which("mandoc"):
        return None
    pages = [ROOT / "man" / name for name in ("pandrel.1", "gildump.1")]
    shown = subprocess.run(["mandoc", "-T", "ascii", "-O", "width=250", *pages], capture_output=True, check=True,
                           text=True).stdout
    return re.sub(r"\s+", " ", re.sub(".\b", "", shown))


def main():
    page = PAGE.read_text().split("\n## What uil says")[0]
    headings = re.findall(r"^### `(.*)`$", page, re.M)
    patterns = {}
    for heading in headings:
        text = re.sub(r"%(\.\*)?[sdc]", "\0", heading)
        # A message that ends the run has "Error: " put in front when it is written.
        patterns[heading] = re.compile("(?:Error: )?" + re.escape(re.sub(r"^Error: ", "", text)).replace("\0", ".*"))
    found = messages()
    failures = 0
    for message in sorted(INTERNAL - set(found)):
        failures += 1
        print(f"tests/docs/check_messages.py: no message in the sources: {message}")
    for message, path in found.items():
        if message in INTERNAL:
            continue
        normal = re.sub(r"%\.\*s", "%s", message)
        if not any(pattern.fullmatch(normal) for pattern in patterns.values()):
            failures += 1
            print(f"{path}: not in docs/troubleshooting.md: {message}")
    for heading, pattern in patterns.items():
        if not any(pattern.fullmatch(re.sub(r"%\.\*s", "%s", message)) for message in set(found) - INTERNAL):
            failures += 1
            print(f"docs/troubleshooting.md: no message in the sources: {heading}")
    described = manual()
    if described is None:
        print("skipped: the manual pages, for lack of mandoc")
    else:
        for heading in headings:
            # What stands for a name or number may be called anything there.
            pieces = [re.escape(piece.strip()) for piece in re.split(r"%[sdc]", heading.removeprefix("Error: "))]
            pattern = r" ?\S*( \S+)? ?".join(re.sub(r"(\\ )+", r"\\s+", piece) for piece in pieces)
            if not re.search(pattern, described):
                failures += 1
                print(f"man/: not described: {heading}")
    print(f"{len(found)} messages, {len(headings)} headings, {failures} failures")
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
