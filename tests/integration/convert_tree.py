#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""examples/convert-tree: goes on after failures, tells what happened to each file, and ends with 1.

usage: convert_tree.py path/to/pandrel
"""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
EXAMPLES = ROOT / "examples"


def run(pandrel, *arguments):
    return subprocess.run([EXAMPLES / "convert-tree", *map(str, arguments)], capture_output=True, text=True,
                          env=dict(os.environ, PANDREL=str(pandrel)), timeout=240)


def main():
    pandrel = pathlib.Path(sys.argv[1]).resolve()
    failures = []

    def expect(what, fact, detail=""):
        if not fact:
            failures.append(what)
            print(f"not so: {what}\n{detail}")

    runners = [["-x"]]
    if shutil.which("parallel"):
        runners.append([])
    else:
        print("skipped: the runs with GNU parallel, which is not installed")
    with tempfile.TemporaryDirectory() as folder:
        folder = pathlib.Path(folder)
        good = folder / "good"
        shutil.copytree(EXAMPLES, good)

        bad = folder / "bad tree"
        (bad / "a b").mkdir(parents=True)
        shutil.copy(EXAMPLES / "hello.G", bad / "a b" / "it's $HOME.G")
        (bad / "empty.G").write_text("")
        (bad / "old.G").write_text(";GIL-2\n()\n")
        (bad / "orphan.G").write_text("(\n(:type :button :name a :owner nobody)\n)\n")
        (bad / "loop.P").write_text("(:interfaces (loop.P ))\n")
        (bad / "long.G").write_text('(\n(:type :button :name a :label "%s")\n)\n' % ("x" * 150))

        for number, runner in enumerate(runners):
            name = "xargs" if runner else "parallel"
            done = run(pandrel, *runner, "-j", 2, "-u", good, folder / f"good{number}", "-Dicons")
            expect(f"{name}: the examples convert", done.returncode == 0, done.stdout + done.stderr)
            expect(f"{name}: and compile", (folder / f"good{number}" / "weather.uid").exists())

            os.environ["LIMIT"] = "2"
            out = folder / f"bad {number}"
            done = run(pandrel, *runner, "-j", 2, "-u", bad, out)
            del os.environ["LIMIT"]
            table = {}
            for line in done.stdout.splitlines():
                verdict, _, rest = line.partition(" ")
                table[rest.strip()] = verdict
            expect(f"{name}: status 1 after a failure", done.returncode == 1, done.stderr)

            def row(verdict, start, why):
                return any(v == verdict and r.startswith(start) and why in r for r, v in table.items())

            expect(f"{name}: a name with odd characters", row("converted", "a b/it's $HOME.G", ""), done.stdout)
            expect(f"{name}: an empty file", row("failed", "empty.G", "status 255: Error: Parse error"), done.stdout)
            expect(f"{name}: an old file", row("failed", "old.G", "status 255:"), done.stdout)
            expect(f"{name}: a warning", row("warned", "orphan.G", "Cannot find owner nobody"), done.stdout)
            expect(f"{name}: no end", row("failed", "loop.P", "no end after 2 seconds"), done.stdout)
            expect(f"{name}: refused by uil", row("failed", "long.G", "uil:"), done.stdout)
            expect(f"{name}: the sum", "6 files: 1 converted, 1 warned, 4 failed" in done.stdout, done.stdout)
            expect(f"{name}: the source is untouched", not list(bad.rglob("*.uil")))
            again = run(pandrel, bad, out)
            expect(f"{name}: a folder that is not empty is refused", again.returncode == 2, again.stdout)
    print(f"{len(failures)} failures")
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
