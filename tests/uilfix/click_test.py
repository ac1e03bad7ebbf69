#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Mended modules at work: converted, mended, compiled, and clicked under an X server of their own.

Where the module compiles without the rewrite as well, the click has to fail there: otherwise it would
say nothing about the rewrite.

usage: click_test.py BUILD-FOLDERS [unittest arguments]    as for view_test.py
"""
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "view"))
from harness import SECONDS, Server, Viewer  # pylint: disable=wrong-import-position

SOURCE = pathlib.Path(__file__).resolve().parent / "mending.G"
PROGRAMS = []


class Clicks(unittest.TestCase):
    def setUp(self):
        self.server = self.enterContext(Server())
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))

    def run_program(self, *words, **keywords):
        subprocess.run([*map(str, words)], check=True, cwd=self.folder, timeout=SECONDS,
                       env=self.server.environment(PROGRAMS), capture_output=True, **keywords)

    def show(self, *mender_options, converter_options=()):
        """The viewer on the compiled module, which it cannot mend any more."""
        module, mended, compiled = (self.folder / name for name in ("a.uil", "m.uil", "m.uid"))
        self.run_program("pandrel", *converter_options, module, input=SOURCE.read_bytes())
        self.run_program("pandrel-uilfix", *mender_options, module, "-o", mended)
        self.run_program("uil", mended, "-o", compiled)
        viewer = self.enterContext(Viewer(self.server, PROGRAMS, compiled))
        viewer.wait_for_window("Mending")
        return viewer

    def click_item(self, viewer, name):
        """Clicks the first item of a list; what the program says to that."""
        widget = viewer.listing()[name]
        x, y = viewer.place("Mending", widget, from_left=20)
        self.server.xdotool("mousemove", x, y - widget.height // 2 + 14, "click", 1)
        return viewer.line(3)

    def test_list_calls_by_its_selection_policy(self):
        viewer = self.show()
        self.assertEqual(self.click_item(viewer, "one"),
                         "one: XmNbrowseSelectionCallback -> chose_one")
        self.assertEqual(self.click_item(viewer, "several"),
                         "several: XmNmultipleSelectionCallback -> chose_several")

    def test_list_calls_nothing_unmended(self):
        viewer = self.show("--no-reasons")
        self.assertIsNone(self.click_item(viewer, "one"))
        self.assertIsNone(self.click_item(viewer, "several"))

    def test_list_with_help_calls_after_its_callbacks_were_sorted(self):
        for options in ((), ("--no-reasons",)):
            viewer = self.show(*options, converter_options=("-zo30",))
            self.assertEqual(self.click_item(viewer, "helped"),
                             "helped: XmNmultipleSelectionCallback -> chose_helped")
            viewer.process.kill()
            viewer.wait_for_window("Mending", shown=False)

    def test_menu_item_is_disabled_by_its_label(self):
        viewer = self.show()
        by_label = {widget.label: widget for widget in viewer.listing().values()}
        self.assertFalse(by_label["Save"].has("insensitive"))
        viewer.click("Mending", by_label["No saving"])
        by_label = {widget.label: widget for widget in viewer.listing().values()}
        self.assertTrue(by_label["Save"].has("insensitive"))
        self.assertFalse(by_label["Quit"].has("insensitive"))

    def test_dialog_stays_on_request(self):
        for options, stays in (((), False), (("--with=dialogs",), True)):
            viewer = self.show(*options)
            viewer.click("Mending", viewer.listing()["showButton"])
            viewer.wait_for_window("Notes")
            viewer.click("Notes", viewer.listing()["noteButton"])
            self.assertEqual(viewer.line(), "noteButton: XmNactivateCallback -> take_note")
            time.sleep(0.5)
            viewer.wait_for_window("Notes", shown=stays)
            viewer.process.kill()
            viewer.wait_for_window("Mending", shown=False)

    def test_lists_in_the_order_of_the_file_start_selected(self):
        viewer = self.show("--with=order,starts", f"--gil={SOURCE}")
        # The second item is selected: a click there takes it back, and a click on the first adds.
        module = (self.folder / "m.uil").read_text(encoding="latin-1")
        self.assertIn('string_table("Athens",\n"Berne",\n"Cairo")', module)
        self.assertIn('XmNselectedItems = string_table("Berne")', module)
        self.assertEqual(self.click_item(viewer, "several"),
                         "several: XmNmultipleSelectionCallback -> chose_several")


if __name__ == "__main__":
    PROGRAMS = [pathlib.Path(folder).resolve() for folder in sys.argv.pop(1).split(":")]
    for tool in ("Xvfb", "uil", "xdotool"):
        if not shutil.which(tool):
            print(f"skipped: {tool} is not installed")
            sys.exit(77)
    unittest.main(verbosity=2)
