#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""convert-tree: mends, goes on after failures, tells what happened to each file, and ends with 1 then.

usage: convert_tree.py convert-tree path/to/pandrel path/to/pandrel-uilfix
"""
import os
import pathlib
import pty
import shutil
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
EXAMPLES = ROOT / "examples"
# A starting line that every machine can keep; a shell per step of each file took five times as long.
SECONDS_FOR_400_FILES = 30

failures = []


def expect(what, fact, detail=""):
    if not fact:
        failures.append(what)
        print(f"not so: {what}\n{detail}")


class Tree:
    def __init__(self, program, pandrel, uilfix):
        self.program = pathlib.Path(program).resolve()
        self.environment = dict(os.environ, PANDREL=str(pathlib.Path(pandrel).resolve()),
                                PANDREL_UILFIX=str(pathlib.Path(uilfix).resolve()))

    def run(self, *arguments, **environment):
        return subprocess.run([self.program, *map(str, arguments)], capture_output=True, text=True,
                              env=dict(self.environment, **environment), timeout=240, stdin=subprocess.DEVNULL)


def test_examples(tree, folder, name, runner):
    out = folder / "good"
    done = tree.run(*runner, "-j", 2, "-u", EXAMPLES, out, "-Dicons")
    expect(f"{name}: the examples convert", done.returncode == 0, done.stdout + done.stderr)
    expect(f"{name}: and compile", (out / "weather.uid").exists())
    expect(f"{name}: files of a project are parts of it alone",
           not list(out.rglob("catalog.uil")) and "catalog.G" not in done.stdout
           and "3 files: 3 converted, 0 warned, 0 failed; 3 more are parts of projects" in done.stdout, done.stdout)
    log = (out / "weather.G.log").read_text()
    expect(f"{name}: the log has the notes of both programs",
           "Glyph Filename encountered" in log and "pandrel-uilfix: line" in log, log)
    expect(f"{name}: the module is mended", "unmanaged XmPopupMenu" in (out / "weather.uil").read_text())
    expect(f"{name}: nothing but results is left", not list(out.rglob("*.raw")) + list(out.rglob("*.uil.log")))


def make_bad_tree(bad):
    (bad / "a b").mkdir(parents=True)
    shutil.copy(EXAMPLES / "hello.G", bad / "a b" / "it's $HOME.G")
    shutil.copy(EXAMPLES / "hello.G", bad / "-dash.G")
    (bad / "empty.G").write_text("")
    (bad / "old.G").write_text(";GIL-2\n()\n")
    (bad / "orphan.G").write_text("(\n(:type :button :name a :owner nobody)\n)\n")
    (bad / "icon.G").write_text('(\n(:type :message :name a :label "gone.icon" :label-type :glyph)\n)\n')
    (bad / "event.G").write_text("(\n(:type :button :name a :actions ((:from (a ) :when (Enter ) :to (a ) "
                                 ":function_type CallFunction :arg_type () :action (f ))))\n)\n")
    (bad / "loop.P").write_text("(:interfaces (loop.P ))\n")
    # Longer than uil's lines; pandrel-uilfix cuts it.
    (bad / "long.G").write_text('(\n(:type :button :name a :label "%s")\n)\n' % ("x" * 150))


def test_failures(tree, folder, name, runner):
    bad, out = folder / "bad tree", folder / "bad out"
    make_bad_tree(bad)
    before = sorted(bad.rglob("*"))
    # The project that names itself would convert itself, and be a part of nothing.
    done = tree.run(*runner, "-n", "-j", 2, "-u", bad, out, LIMIT="1")
    table = [line.split(None, 1) for line in done.stdout.splitlines() if line]
    expect(f"{name}: status 1 after a failure", done.returncode == 1, done.stderr)

    def row(verdict, start, why=""):
        return any(v == verdict and r.startswith(start) and why in r for v, r in table)

    expect(f"{name}: a name with odd characters", row("converted", "a b/it's $HOME.G"), done.stdout)
    expect(f"{name}: a name that begins with a dash", row("converted", "-dash.G"), done.stdout)
    expect(f"{name}: an empty file", row("failed", "empty.G", "status 255: Error: Parse error"), done.stdout)
    expect(f"{name}: no module of a file that failed", not (out / "empty.uil").exists())
    expect(f"{name}: an old file", row("failed", "old.G", "status 255:"), done.stdout)
    expect(f"{name}: a warning", row("warned", "orphan.G", "Cannot find owner nobody"), done.stdout)
    expect(f"{name}: a missing icon", row("warned", "icon.G", "Cannot access glyph filename gone.icon"), done.stdout)
    expect(f"{name}: a dropped connection", row("converted", "event.G", "connections without a callback: 1"),
           done.stdout)
    expect(f"{name}: no end", row("failed", "loop.P", "no end after 1 seconds"), done.stdout)
    expect(f"{name}: refused by uil", row("failed", "long.G", "uil:"), done.stdout)
    expect(f"{name}: the sum", "9 files: 3 converted, 2 warned, 4 failed\n" in done.stdout, done.stdout)
    expect(f"{name}: the source is untouched", before == sorted(bad.rglob("*")))
    again = tree.run(bad, out)
    expect(f"{name}: a folder that is not empty is refused", again.returncode == 2, again.stdout)

    (bad / "loop.P").unlink()
    mended = tree.run(*runner, "-j", 2, "-u", bad, folder / "mended")
    expect(f"{name}: what uil refused is mended", "long.G" in mended.stdout and "uil:" not in mended.stdout,
           mended.stdout)


def test_projects(tree, folder):
    source = folder / "projects"
    (source / "sub").mkdir(parents=True)
    for name in ["one.G", "two.G", "sub/two.G", "sub/three.G", "sub/app.G"]:
        shutil.copy(EXAMPLES / "hello.G", source / name)
    # A blank, a line end and a comment stand where the format takes them.
    (source / "sub/app.P").write_text(";GIL-3\n(\n\t; one.G is old\n\t:interfaces\t( three.G\n\ttwo.G)\n"
                                      "\t:actions ()\n)\n")
    done = tree.run(source, folder / "projects out")
    out = folder / "projects out"
    converted = sorted(str(path.relative_to(out)) for path in out.rglob("*.uil"))
    expect("a project converts its files, the others convert alone",
           converted == ["one.uil", "sub/app.project.uil", "sub/app.uil", "two.uil"],
           (converted, done.stdout, done.stderr))


def test_usage(tree, folder):
    for arguments, why in [(["-j", "x", EXAMPLES, folder / "o"], "-j"), (["-j", "0", EXAMPLES, folder / "o"], "-j"),
                           (["-j"], "-j"), (["-z", EXAMPLES, folder / "o"], "-z"), ([EXAMPLES], "result folder"),
                           ([folder / "none", folder / "o"], "none"), ([folder, folder / "o"], "inside")]:
        done = tree.run(*arguments)
        expect(f"a usage error: {arguments}", done.returncode == 2 and why in done.stderr and not done.stdout,
               done.stderr)
    expect("no folder after a usage error", not (folder / "o").exists())
    done = tree.run(EXAMPLES, folder / "o", PANDREL="/nowhere/pandrel")
    expect("a program that is not there", done.returncode == 2 and "/nowhere/pandrel" in done.stderr, done.stderr)
    version = (ROOT / "VERSION").read_text().strip()
    expect("--version", tree.run("--version").stdout == f"convert-tree {version}\n")
    expect("--help", tree.run("--help").stdout.startswith("usage: convert-tree"))


def test_many(tree, folder):
    many = folder / "many"
    many.mkdir()
    for number in range(400):
        shutil.copy(EXAMPLES / "hello.G", many / f"f{number}.G")
    start = time.monotonic()
    done = tree.run("-j", 2, many, folder / "many out")
    seconds = time.monotonic() - start
    expect("400 files convert", "400 files: 400 converted, 0 warned, 0 failed" in done.stdout, done.stdout[-300:])
    expect("400 files take little time", seconds < SECONDS_FOR_400_FILES, seconds)
    print(f"400 files: {seconds:.1f} s")
    expect("no progress where no terminal is", done.stderr == "", done.stderr)


def test_progress(tree, folder):
    ours, theirs = pty.openpty()
    subprocess.run([tree.program, EXAMPLES, folder / "shown"], stdout=subprocess.DEVNULL, stderr=theirs,
                   stdin=subprocess.DEVNULL, env=tree.environment, timeout=240)
    os.close(theirs)
    shown = os.read(ours, 10000).decode()
    os.close(ours)
    expect("progress on a terminal", "3 of 3 files, 0 failed" in shown and shown.endswith("\r\033[K"), repr(shown))


def main():
    tree = Tree(*sys.argv[1:4])
    runners = [("xargs", [])]
    if shutil.which("parallel"):
        runners.append(("parallel", ["-p"]))
    else:
        print("skipped: the runs with GNU parallel, which is not installed")
    for name, runner in runners:
        for test in [test_examples, test_failures]:
            with tempfile.TemporaryDirectory() as folder:
                test(tree, pathlib.Path(folder), name, runner)
    for test in [test_projects, test_usage, test_many, test_progress]:
        with tempfile.TemporaryDirectory() as folder:
            test(tree, pathlib.Path(folder))
    print(f"{len(failures)} failures")
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
