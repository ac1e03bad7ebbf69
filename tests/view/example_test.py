#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The C program in examples/motif, built with its own Makefile and clicked.

usage: example_test.py BUILD-FOLDERS [unittest arguments]
"""
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

from harness import SECONDS, Server, Viewer, parse_listing

EXAMPLES = pathlib.Path(__file__).resolve().parent.parent.parent / "examples"
PROGRAMS = []


class Hello(unittest.TestCase):
    def test_builds_and_greets(self):
        server = self.enterContext(Server())
        environment = server.environment(PROGRAMS)
        folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        shutil.copytree(EXAMPLES / "motif", folder / "motif")
        shutil.copy(EXAMPLES / "hello.G", folder)
        subprocess.run(["make", "-C", str(folder / "motif"), "CFLAGS=-Wall -Wextra -Werror"],
                       check=True, timeout=SECONDS * 2, env=environment,
                       stdout=subprocess.DEVNULL)
        listing = subprocess.run([f"{PROGRAMS[0]}/pandrel-view", "--compact", "--list",
                                  str(folder / "hello.G")], check=True, capture_output=True,
                                 text=True, timeout=SECONDS, env=environment).stdout
        button = next(widget for widget in parse_listing(listing) if widget.name == "greetButton")
        with Viewer(server, PROGRAMS, program=folder / "motif" / "hello",
                    folder=folder / "motif") as hello:
            hello.wait_for_window("Hello")
            hello.click("Hello", button)
            self.assertEqual(hello.line(), "Hello, world!")


if __name__ == "__main__":
    PROGRAMS = sys.argv.pop(1).split(":")
    for tool in ("Xvfb", "uil", "xdotool", "make", "cc"):
        if not shutil.which(tool):
            print(f"skipped: {tool} is not installed")
            sys.exit(77)
    unittest.main(verbosity=2)
