#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Ports that are built, run and clicked.

usage: run_test.py BUILD-FOLDERS [unittest arguments]
"""
import pathlib
import shutil
import signal
import sys
import tempfile
import time
import unittest

from ports import EXAMPLES, Port, close_window, find, run_port

from harness import SECONDS, Server

HERE = pathlib.Path(__file__).resolve().parent
PROGRAMS = []


class RunTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.server = cls.enterClassContext(Server())
        cls.scratch = pathlib.Path(cls.enterClassContext(tempfile.TemporaryDirectory()))

    def port(self, name, *options, source):
        return Port(self.server, PROGRAMS, self.scratch / name, *options, source=source)

    def close(self, program, title):
        close_window(self.server.display, program.wait_for_window(title))


class Controls(RunTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.controls = Port(cls.server, PROGRAMS, cls.scratch / "controls",
                            source=HERE / "controls.G")
        cls.places = cls.controls.widgets()

    def start(self):
        program = self.enterContext(self.controls.start())
        program.wait_for_window("Controls")
        return program

    def click(self, program, widget, title="Controls", **options):
        program.click(title, self.places[widget], **options)

    def choose_fruit(self, program):
        """Clicks the first item."""
        x, y = program.place("Controls", self.places["fruits"])
        y += 10 - self.places["fruits"].height // 2
        self.server.xdotool("mousemove", x, y, "click", 1)

    def test_a_button_calls_its_stub_whatever_the_stubs_name(self):
        program = self.start()
        self.click(program, "press")
        self.assertEqual(program.line(), "exit_callback: called by press")

    def test_a_list_calls_on_selection(self):
        program = self.start()
        self.choose_fruit(program)
        self.assertEqual(program.line(), "chooseFruit: called by fruits")

    def test_a_dialog_opens_and_closes(self):
        program = self.start()
        self.click(program, "openButton")
        program.wait_for_window("Dialog")
        self.click(program, "closeButton", title="Dialog")
        program.wait_for_window("Dialog", shown=False)

    def test_closing_a_dialog_hides_it_and_calls_its_done_function(self):
        program = self.start()
        self.click(program, "openButton")
        self.close(program, "Dialog")
        self.assertEqual(program.line(), "dialogDone: called by dialog")
        program.wait_for_window("Dialog", shown=False)
        self.assertIsNone(program.process.poll())

    def test_a_stack_settings_choice_disables_a_button(self):
        program = self.start()
        x, y = program.place("Controls", self.places["mode_option_menu"])
        # The menu posts with the chosen item under the pointer; the next one lies below.
        self.server.xdotool("mousemove", x, y, "mousedown", 1)
        time.sleep(0.3)
        self.server.xdotool("mousemove_relative", 0, 20, "sleep", "0.2", "mouseup", 1)
        time.sleep(0.3)
        self.click(program, "press")
        self.assertIsNone(program.line(seconds=1), "the button is insensitive")

    def test_button_three_posts_the_popup_menu(self):
        program = self.start()
        x, y = program.place("Controls", self.places["area"], from_left=390)
        self.server.xdotool("mousemove", x, y, "click", 3)
        time.sleep(0.3)
        self.server.xdotool("mousemove_relative", 8, 8, "click", 1)
        self.assertTrue((program.line() or "").startswith("pickLeaf: called by"))

    def test_code_of_the_file_runs(self):
        program = self.start()
        self.click(program, "endButton")
        self.assertEqual(program.process.wait(SECONDS), 7)

    def test_closing_the_last_window_ends_the_program(self):
        program = self.start()
        self.close(program, "Controls")
        self.assertEqual(program.process.wait(SECONDS), 0)

    def test_a_signal_ends_the_program(self):
        program = self.start()
        program.process.send_signal(signal.SIGTERM)
        self.assertEqual(program.process.wait(SECONDS), 0)
        self.assertEqual(program.process.stderr.read(), "")

    def test_an_edited_function_survives_a_second_run(self):
        port = self.port("again", source=HERE / "controls.G")
        callbacks = port.folder / "callbacks.c"
        edited = callbacks.read_text().replace('PortStub("chooseFruit", widget);',
                                               'puts("mine"); fflush(stdout);')
        callbacks.write_text(edited)
        done = run_port(PROGRAMS, "--no-pictures", "-o", port.folder, HERE / "controls.G")
        self.assertEqual(done.returncode, 0, done.stderr)
        port.build()
        program = self.enterContext(port.start())
        self.choose_fruit(program)
        self.assertEqual(program.line(), "mine")


class Project(RunTest):
    def test_a_connection_of_the_project_opens_a_dialog_of_another_file(self):
        library = self.port("library", source=EXAMPLES / "library" / "library.P")
        places = library.widgets()
        program = self.enterContext(library.start())
        program.wait_for_window("Library: Catalog")
        window = program.wait_for_window("Library: Catalog")
        self.server.xdotool("windowraise", window)
        program.click("Library: Catalog", places["catalogButton"])
        time.sleep(0.3)
        self.server.xdotool("mousemove_relative", 0, 20, "click", 1)
        program.wait_for_window("Library: Lend")


if __name__ == "__main__":
    PROGRAMS = sys.argv.pop(1).split(":")
    if not find(PROGRAMS, "pandrel-view"):
        print("skipped: pandrel-view is not built")
        sys.exit(77)
    for tool in ("Xvfb", "uil", "xdotool", "make", "cc"):
        if not shutil.which(tool):
            print(f"skipped: {tool} is not installed")
            sys.exit(77)
    unittest.main(verbosity=2)
