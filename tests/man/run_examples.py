#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs the EXAMPLES of a manual page in a copy of examples/, and compares what they print.

A line that begins with "$ " is a command; the lines after it, up to the next command or the end of the
display, are the output it must give on standard output (nothing is compared when there are none).
All commands of a page run in one shell.

usage: run_examples.py --bin DIR [--bin DIR ...] page.1
"""
import argparse
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]


def displays(page):
    """The literal displays in the EXAMPLES section, as the reader sees them."""
    section = re.search(r"^\.Sh EXAMPLES\n(.*?)(?=^\.Sh |\Z)", page, re.S | re.M)
    if not section:
        return []
    blocks = re.findall(r"^\.Bd -literal.*?\n(.*?)^\.Ed", section.group(1), re.S | re.M)
    return [block.replace(r"\e", "\\").replace(r"\&", "") for block in blocks]


def steps(block):
    """(command, expected lines) pairs of one display; text before the first command is none."""
    found = []
    for line in block.replace("\\\n", " ").splitlines():
        if line.startswith("$ "):
            found.append((line[2:], []))
        elif found:
            found[-1][1].append(line)
    return found


def main():
    arguments = argparse.ArgumentParser()
    arguments.add_argument("--bin", action="append", required=True)
    arguments.add_argument("page", type=pathlib.Path)
    options = arguments.parse_args()

    todo = [step for block in displays(options.page.read_text()) for step in steps(block)]
    if not todo:
        sys.exit(f"{options.page}: no commands in EXAMPLES")

    with tempfile.TemporaryDirectory() as folder:
        work = pathlib.Path(folder) / "examples"
        shutil.copytree(ROOT / "examples", work)
        # Each command's output goes to a file of its own; a failure ends the script.
        script = ["set -e"]
        for number, (command, _) in enumerate(todo):
            script += [f"exec 3> '{folder}/{number}'", f"{{ {command}\n}} >&3"]
        path = ":".join(options.bin + [os.environ["PATH"]])
        run = subprocess.run(["sh", "-c", "\n".join(script)], cwd=work, timeout=120,
                             env=dict(os.environ, PATH=path, LC_ALL="C"))
        failures = 0
        for number, (command, expected) in enumerate(todo):
            output = pathlib.Path(folder) / str(number)
            if not output.exists():
                print(f"not reached: $ {command}")
                failures += 1
                continue
            got = output.read_text().splitlines()
            if expected and got != expected:
                print(f"$ {command}\n  expected: {expected}\n  got:      {got}")
                failures += 1
        if run.returncode:
            print(f"the commands ended with status {run.returncode}")
            failures += 1
    print(f"{options.page.name}: {len(todo)} commands, {failures} failures")
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
