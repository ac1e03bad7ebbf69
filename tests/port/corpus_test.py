#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Real interfaces, where there are some, and the examples: every action and object is told of, and
every port builds and runs.

usage: corpus_test.py BUILD-FOLDERS [unittest arguments]
"""
import concurrent.futures
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

from ports import CORPUS, EXAMPLES, build, close_window, run_port, visible_windows

from harness import SECONDS, Server

PROGRAMS = []
OPTIONS = [[], ["-zo30"], ["-nozo"], ["-nozo", "-genzocallbacks"], ["-motif12", "-openlook"]]
# Every file under every option takes minutes; by default the options but for none are tried on a few.
ALL = bool(os.environ.get("PORT_TEST_ALL"))
SOME = {"weather.G", "library.P", "faxtool.G"}
RUN_SECONDS = 5


def files():
    found = [*EXAMPLES.rglob("*.[GP]"), *CORPUS.rglob("*.[GP]")]
    return [file for file in sorted(found) if not file.read_bytes().startswith(b";GIL-2")]


def gil_text(file):
    """The file's text; of a project, with those of its interfaces."""
    text = file.read_text(encoding="latin-1")
    names = re.search(r":interfaces\s*\((.*?)\)", text, re.S)
    for name in names.group(1).split() if names else []:
        text += (file.parent / name).read_text(encoding="latin-1")
    return text


class Corpus(unittest.TestCase):
    def setUp(self):
        self.scratch = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))

    def test_tells_of_every_action_and_object_once(self):
        for file in files():
            with self.subTest(file=file.name):
                done = run_port(PROGRAMS, "--no-pictures", "-o", self.scratch / file.name, file)
                self.assertEqual(done.returncode, 0, done.stderr)
                totals = done.stdout.splitlines()[-1]
                actions, module, connections, functions, lost, objects, shown, replaced, gone = map(
                    int, re.match(r"(\d+) actions?: (\d+) in the module, (\d+) in connections.c, "
                                  r"(\d+) calls? of your functions, (\d+) lost; (\d+) objects?: "
                                  r"(\d+) shown, (\d+) replaced, (\d+) lost", totals).groups())
                text = re.sub(r'"(?:\\.|[^"\\])*"', '""', gil_text(file), flags=re.S)
                self.assertEqual(actions, len(re.findall(r":function_type\b", text)))
                self.assertEqual(objects, len(re.findall(r":type\s+:", text)))
                self.assertEqual(module + connections + functions + lost, actions)
                self.assertEqual(shown + replaced + gone, objects)

    def test_builds_and_runs_under_every_option(self):
        for tool in ("Xvfb", "xdotool", "uil", "make", "cc"):
            if not shutil.which(tool):
                self.skipTest(f"{tool} is not installed")
        server = self.enterContext(Server())
        for options in OPTIONS:
            chosen = [file for file in files() if not options or ALL or file.name in SOME]
            built = self.build_all(chosen, options)
            self.run_together(server, built, options)
            for file, program in built.items():
                with self.subTest(file=file.name, options=options):
                    self.close_all_windows(server, program)

    def build_all(self, chosen, options):
        """Ports and builds the files, as many at a time as there are processors; returns the
        programs that came of it."""
        def build_one(file):
            app = pathlib.Path(tempfile.mkdtemp(dir=self.scratch)) / "app"
            done = run_port(PROGRAMS, "-q", "--no-pictures", "-o", app, *options, file)
            self.assertEqual(done.returncode, 0, done.stderr)
            build(app, "CFLAGS=-O0 -Wall -Wextra -Werror")
            return next(app.glob("*.uil")).with_suffix("")

        built = {}
        with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
            jobs = {file: pool.submit(build_one, file) for file in chosen}
        for file, job in jobs.items():
            with self.subTest(file=file.name, options=options):
                built[file] = job.result()
        return built

    def start(self, server, program):
        return subprocess.Popen([str(program)], cwd=program.parent, stdout=subprocess.DEVNULL,
                                stderr=subprocess.PIPE, text=True,
                                env=server.environment(PROGRAMS))

    def check_end(self, process):
        """The program ends by itself, with status 0 and without a complaint."""
        said = process.communicate(timeout=SECONDS)[1]
        self.assertEqual(process.returncode, 0)
        # Icons that nobody has are the only thing to complain of.
        complaints = [line for line in said.splitlines() if "XmGetPixmap failed" not in line]
        self.assertEqual(complaints, [])

    def run_together(self, server, built, options):
        """Starts all programs, so that they wait for the end of the time together."""
        running = {file: self.start(server, program) for file, program in built.items()}
        time.sleep(RUN_SECONDS)
        for file, process in running.items():
            with self.subTest(file=file.name, options=options):
                self.assertIsNone(process.poll(), "ended by itself")
                process.send_signal(signal.SIGTERM)
                self.check_end(process)

    def close_all_windows(self, server, program):
        """The program is alone on the server: every window there is its own."""
        process = self.start(server, program)
        end = time.monotonic() + SECONDS
        while process.poll() is None and time.monotonic() < end:
            for window in visible_windows(server):
                close_window(server.display, window)
            time.sleep(0.05)
        self.assertIsNotNone(process.poll(), "still runs with all windows closed")
        self.check_end(process)


if __name__ == "__main__":
    PROGRAMS = sys.argv.pop(1).split(":")
    if not CORPUS.is_dir():
        print("the folder of real interfaces is not there: only the examples are tried")
    unittest.main(verbosity=2)
