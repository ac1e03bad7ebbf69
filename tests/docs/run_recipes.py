#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs the commands of README.md and docs/batch.md as they are written, with the programs of a build.

Of README.md the ```sh blocks, but for those that call make, which would build and test once more
(scripts/fresh-root-check runs them too). Of docs/batch.md the local recipes for xargs and GNU parallel.

usage: run_recipes.py --bin DIR [--bin DIR ...]
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


def indented_block(page, heading):
    """The first indented block below a heading."""
    section = page.split(f"\n{heading}\n")[1]
    block = re.search(r"(?:^    .*\n|^\n(?=    ))+", section, re.M).group(0)
    return re.sub(r"^    ", "", block, flags=re.M)


def main():
    arguments = argparse.ArgumentParser()
    arguments.add_argument("--bin", action="append", required=True)
    given = arguments.parse_args()
    environment = dict(os.environ, PATH=":".join([*given.bin, os.environ["PATH"]]))
    failures = 0

    def run(name, script, folder):
        nonlocal failures
        done = subprocess.run(["sh", "-e", "-c", script], cwd=folder, env=environment, capture_output=True,
                              text=True, timeout=240)
        if done.returncode:
            failures += 1
            print(f"{name}: status {done.returncode}\n{script}\n{done.stdout}{done.stderr}")
        return done

    with tempfile.TemporaryDirectory() as folder:
        work = pathlib.Path(folder)
        shutil.copytree(ROOT / "examples", work / "examples")
        blocks = re.findall(r"^```sh\n(.*?)^```", (ROOT / "README.md").read_text(), re.M | re.S)
        blocks = [block for block in blocks if not re.search(r"^make ", block, re.M)]
        # What the README writes to /tmp goes to this test's own folder.
        run("README.md", "".join(blocks).replace("/tmp/", f"{folder}/"), work)
        for result in ["pandrel-examples/weather.uid", "pandrel-examples/library/library.uil",
                       "pandrel-converted/hello.uil"]:
            if not (work / result).exists():
                failures += 1
                print(f"README.md: {result} was not made")

    page = (ROOT / "docs/batch.md").read_text()
    for heading, tool in [("## xargs", "xargs"), ("## GNU parallel", "parallel")]:
        if not shutil.which(tool):
            print(f"skipped: {heading}: {tool} is not installed")
            continue
        with tempfile.TemporaryDirectory() as folder:
            work = pathlib.Path(folder)
            shutil.copytree(ROOT / "examples", work / "a tree")
            done = run(f"docs/batch.md {heading}", indented_block(page, heading), work)
            wanted = {path.with_suffix(".uil") for path in work.rglob("*.G")}
            if done.stdout or {path for path in wanted if not path.exists() or not path.stat().st_size}:
                failures += 1
                print(f"docs/batch.md {heading}: {done.stdout}{done.stderr}")
    print(f"{failures} failures")
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
