#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The examples convert under the usual sets of options, without a warning, and uil takes the modules.

usage: examples_compile.py path/to/pandrel
"""
import pathlib
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
OPTIONS = ["", "-zo30", "-nozo", "-nozo -nocomments", "-motif12 -openlook", "-noreposition -nogrouplabels",
           "-ignoregroups -mapall", "-genzocallbacks -nozo"]


def main():
    pandrel = pathlib.Path(sys.argv[1]).resolve()
    if not shutil.which("uil"):
        print("skipped: uil is not installed")
        sys.exit(77)
    failures = runs = 0
    with tempfile.TemporaryDirectory() as folder:
        work = pathlib.Path(folder) / "examples"
        shutil.copytree(ROOT / "examples", work)
        # The files of a project connect to one another, and alone would lack each other's objects.
        for file in [*sorted(work.glob("*.G")), *sorted(work.rglob("*.P"))]:
            for options in OPTIONS:
                runs += 1
                with file.open("rb") as gil:
                    run = subprocess.run([pandrel, "-quiet", "-Dicons", *options.split(), "m.uil"], stdin=gil,
                                         cwd=file.parent, capture_output=True, timeout=60, text=True)
                said = [line for line in (run.stdout + run.stderr).splitlines()
                        if not line.startswith("Osi output: ")]
                uil = subprocess.run(["uil", "-o", "m.uid", "m.uil"], cwd=file.parent, capture_output=True,
                                     timeout=60, text=True)
                if run.returncode or said or uil.returncode or uil.stdout.strip() or uil.stderr.strip():
                    failures += 1
                    print(f"{file.name} {options}: status {run.returncode}, {said}, "
                          f"uil {uil.returncode}: {uil.stdout}{uil.stderr}")
        # Every icon that is named was found and converted.
        bitmaps = sorted(path.name for path in (work / "icons").glob("*.xbm") if path.stat().st_size)
        if len(bitmaps) != 6:
            failures += 1
            print("bitmaps:", bitmaps)
    print(f"{runs} runs, {failures} failures")
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
