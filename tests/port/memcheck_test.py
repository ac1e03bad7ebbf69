#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Ported programs under valgrind: no error, and nothing lost, in what pandrel-port writes.

usage: memcheck_test.py BUILD-FOLDERS [unittest arguments]
"""
import pathlib
import shutil
import sys
import tempfile
import time
import unittest

from ports import CORPUS, EXAMPLES, Port, choose_first_item, close_window, find, visible_windows

from harness import SECONDS, Server

HERE = pathlib.Path(__file__).resolve().parent
PROGRAMS = []
FOUND = 99
VALGRIND = ["valgrind", "-q", f"--error-exitcode={FOUND}", "--num-callers=40",
            "--leak-check=full", "--show-leak-kinds=definite", "--errors-for-leak-kinds=definite",
            f"--suppressions={HERE / 'motif.supp'}"]


class Memcheck(unittest.TestCase):
    def setUp(self):
        self.server = self.enterContext(Server())
        self.scratch = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))

    def port(self, source):
        return Port(self.server, PROGRAMS, self.scratch / "app", source=source)

    def start(self, port):
        return self.enterContext(port.start(tool=VALGRIND))

    def end(self, program):
        """Closes every window; returns the status and what valgrind said."""
        end = time.monotonic() + SECONDS
        while program.process.poll() is None and time.monotonic() < end:
            for window in visible_windows(self.server):
                close_window(self.server.display, window)
            time.sleep(1)
        return program.process.poll(), program.process.stderr.read()

    def test_an_example_with_connections_between_its_files(self):
        library = self.port(EXAMPLES / "library" / "library.P")
        places = library.widgets()
        program = self.start(library)
        title = "Library: Catalog"
        # Without a window manager an iconic window is shown, too, and may come last.
        program.wait_for_window("Library: Members")
        self.server.xdotool("windowraise", program.wait_for_window(title))
        choose_first_item(self.server, program, title, places["catalogButton"], pause=2)
        program.wait_for_window("Library: Lend")
        self.assertEqual(self.end(program), (0, ""))

    def test_a_real_interface(self):
        if not CORPUS.is_dir():
            self.skipTest("the folder of real interfaces is not there")
        fax = self.port(CORPUS / "faxtool.G")
        places = fax.widgets()
        program = self.start(fax)
        program.wait_for_window("Fax Tool")
        program.click("Fax Tool", places["props_button"])
        program.wait_for_window("Fax Tool - Properties")
        self.server.xdotool("windowraise", program.wait_for_window("Fax Tool"))
        program.click("Fax Tool", places["send_button"])
        self.assertIsNotNone(program.line())
        self.assertEqual(self.end(program), (0, ""))

    def test_notices_an_error_in_a_callback(self):
        port = self.port(HERE / "controls.G")
        callbacks = port.folder / "callbacks.c"
        text = callbacks.read_text()
        stub = 'PortStub("exit_callback", widget);'
        self.assertIn(stub, text)
        callbacks.write_text(text.replace(
            stub, 'char *name = XtMalloc(2); printf("%d\\n", name[2]); XtFree(name); ' + stub))
        port.build()
        places = port.widgets()
        program = self.start(port)
        program.wait_for_window("Controls")
        program.click("Controls", places["press"])
        self.assertIsNotNone(program.line())
        status, said = self.end(program)
        self.assertEqual(status, FOUND)
        self.assertIn("exit_callback (callbacks.c:", said)


if __name__ == "__main__":
    PROGRAMS = sys.argv.pop(1).split(":")
    if not find(PROGRAMS, "pandrel-view"):
        print("skipped: pandrel-view is not built")
        sys.exit(77)
    for tool in ("Xvfb", "uil", "xdotool", "make", "cc", "valgrind"):
        if not shutil.which(tool):
            print(f"skipped: {tool} is not installed")
            sys.exit(77)
    unittest.main(verbosity=2)
