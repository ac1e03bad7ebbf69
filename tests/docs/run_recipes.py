#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs the commands of README.md and docs/batch.md as they are written, with the programs of a build.

Of README.md the ```sh blocks, but for those that call make, which would build and test once more
(scripts/fresh-root-check runs them too). Of docs/batch.md the recipes for xargs and GNU parallel, which
run on this machine alone, and those for whole programs.

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
    # Many machines: this one alone, to which parallel has nothing to carry.
    carried = re.findall(r"(?:^    .*\n)+", page.split("\n### On many machines\n")[1].split("\n## ")[0], re.M)[1]
    if shutil.which("parallel"):
        with tempfile.TemporaryDirectory() as folder:
            work = pathlib.Path(folder)
            shutil.copytree(ROOT / "examples", work / "a tree")
            (work / "machines").write_text(":\n")
            (work / "files").write_text("a tree/hello.G\na tree/library/loan.G\n")
            run("docs/batch.md many machines", re.sub("^    ", "", carried, flags=re.M), work)
            for result in ["hello.uil", "hello.log", "library/loan.uil", "library/loan.log"]:
                if not (work / "a tree" / result).exists():
                    failures += 1
                    print(f"docs/batch.md many machines: {result} was not made")
    # Programs: all blocks of the section, the names of folders and of the array's list made this test's.
    section = page.split("\n## Programs: pandrel-port -r\n")[1].split("\n## ")[0]
    tree, find, task = re.findall(r"(?:^    .*\n)+", section, re.M)
    with tempfile.TemporaryDirectory() as folder:
        work = pathlib.Path(folder)
        shutil.copytree(ROOT / "examples", work / "a tree")
        (work / "files").write_text("a tree/hello.G\n")
        places = {"~/interfaces": "'a tree'", "/tmp/programs": "of-tree", "-r ": "-r --no-pictures "}
        for old, new in places.items():
            tree = tree.replace(old, new)
        run("docs/batch.md pandrel-port -r", tree, work)
        run("docs/batch.md job array", "SLURM_ARRAY_TASK_ID=1\n" + re.sub("^    ", "", task, flags=re.M), work)
        wanted = ["of-tree/index.html", "of-tree/library/library/main.c", "of-tree/weather/main.c",
                  "programs/a tree/hello/main.c"]
        if shutil.which("parallel"):
            (work / "programs").mkdir(exist_ok=True)
            run("docs/batch.md pandrel-port with parallel", find, work / "a tree")
            wanted.append("programs/library/library/main.c")
        for result in wanted:
            if not (work / result).exists():
                failures += 1
                print(f"docs/batch.md: {result} was not made")
    print(f"{failures} failures")
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
