#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""pandrel-view under an X server of its own: clicked, listed, photographed and given bad input.

usage: view_test.py BUILD-FOLDERS [unittest arguments]    the folders, joined by ":", hold
pandrel-view first, then pandrel and the rest
"""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

from harness import SECONDS, Picture, Server, Viewer, parse_listing

HERE = pathlib.Path(__file__).resolve().parent
ACTIONS = HERE / "actions.G"
EXAMPLES = HERE.parent.parent / "examples"
PROGRAMS = []


def run(server, *arguments, **keywords):
    """pandrel-view run to its end."""
    environment = keywords.pop("env", None) or server.environment(PROGRAMS)
    return subprocess.run([str(pathlib.Path(PROGRAMS[0], "pandrel-view")), *map(str, arguments)],
                          capture_output=True, text=True, encoding="latin-1", timeout=SECONDS * 2,
                          check=False, env=environment, **keywords)


class WithServer(unittest.TestCase):
    def setUp(self):
        self.server = self.enterContext(Server())
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))

    def start(self, *arguments):
        viewer = self.enterContext(Viewer(self.server, PROGRAMS, *arguments))
        viewer.wait_for_window("Actions")
        return viewer

    def convert(self, source, *options):
        """The module of a GIL file."""
        target = self.folder / (source.stem + ".uil")
        with open(source, "rb") as stream:
            subprocess.run(["pandrel", *options, str(target)], stdin=stream, check=True,
                           cwd=self.folder, timeout=SECONDS, env=self.server.environment(PROGRAMS),
                           stdout=subprocess.DEVNULL)
        return target


@unittest.skipUnless(shutil.which("xdotool"), "xdotool is not installed")
class Actions(WithServer):
    """What the module's connections do when a user clicks."""

    def test_show_and_hide_a_dialog(self):
        viewer = self.start(ACTIONS)
        widgets = viewer.listing()
        self.assertNotIn("aboutDialog", widgets)
        viewer.click("Actions", widgets["aboutButton"])
        viewer.wait_for_window("About")
        dialog = viewer.listing()
        self.assertIn("aboutDialog", dialog)
        viewer.click("About", dialog["okButton"])
        viewer.wait_for_window("About", shown=False)

    def test_show_and_hide_a_second_window(self):
        viewer = self.start(ACTIONS)
        viewer.click("Actions", viewer.listing()["moreButton"])
        viewer.wait_for_window("More")
        viewer.click("More", viewer.listing()["closeButton"])
        viewer.wait_for_window("More", shown=False)

    def test_hide_and_show_a_widget(self):
        viewer = self.start(ACTIONS)
        widgets = viewer.listing()
        self.assertFalse(widgets["saveButton"].has("unmapped"))
        viewer.click("Actions", widgets["hideButton"])
        self.assertTrue(viewer.listing()["saveButton"].has("unmapped"))
        viewer.click("Actions", widgets["showButton"])
        self.assertFalse(viewer.listing()["saveButton"].has("unmapped"))

    def test_disable_and_enable(self):
        # The target's GIL name has a capital letter, its widget's has none.
        viewer = self.start(ACTIONS)
        widgets = viewer.listing()
        viewer.click("Actions", widgets["disableButton"])
        self.assertTrue(viewer.listing()["target"].has("insensitive"))
        viewer.click("Actions", widgets["target"])
        self.assertIsNone(viewer.line(1))
        viewer.click("Actions", widgets["enableButton"])
        self.assertFalse(viewer.listing()["target"].has("insensitive"))
        viewer.click("Actions", widgets["target"])
        self.assertEqual(viewer.line(), "target: XmNactivateCallback -> hit")

    def test_procedures_are_announced(self):
        viewer = self.start(ACTIONS)
        widgets = viewer.listing()
        viewer.click("Actions", widgets["saveButton"])
        self.assertEqual(viewer.line(), "saveButton: XmNactivateCallback -> save_file")

    def test_inactive_button_is_insensitive(self):
        viewer = self.start(ACTIONS)
        off = viewer.listing()["offButton"]
        self.assertTrue(off.has("insensitive"))
        viewer.click("Actions", off)
        self.assertIsNone(viewer.line(1))

    def test_exclusive_setting_has_one_choice_set(self):
        viewer = self.start(ACTIONS)
        for chosen, other in (("size_toggle_b", "size_toggle_b1"),
                              ("size_toggle_b1", "size_toggle_b"),
                              ("size_toggle_b1", "size_toggle_b")):
            viewer.click("Actions", viewer.listing()[chosen], from_left=8)
            widgets = viewer.listing()
            self.assertTrue(widgets[chosen].has("set"), chosen)
            self.assertFalse(widgets[other].has("set"), other)

    def test_pulldown_menu(self):
        viewer = self.start(ACTIONS)
        viewer.click("Actions", viewer.listing()["fileButton"])
        viewer.server.xdotool("key", "Down", "Return")
        self.assertEqual(viewer.line(), "fileMenuchoice: XmNactivateCallback -> quit")

    def test_popup_menu_posts_on_the_menu_button_only(self):
        viewer = self.start(ACTIONS)
        widgets = viewer.listing()
        self.assertTrue(widgets["drawMenu"].has("unmanaged"))
        x, y = viewer.place("Actions", widgets["canvas"])
        self.server.xdotool("mousemove", x, y, "mousedown", 3)
        time.sleep(0.2)
        self.server.xdotool("mousemove", x + 20, y + 12, "mouseup", 3)
        self.assertEqual(viewer.line(), "drawMenuchoice1: XmNactivateCallback -> draw_line")

    def test_numeric_field_takes_digits_only(self):
        viewer = self.start("-zo30", ACTIONS)
        window = viewer.wait_for_window("Actions")
        self.server.xdotool("windowfocus", window)
        viewer.click("Actions", viewer.listing()["count"])
        self.server.xdotool("key", "End")
        self.server.xdotool("type", "1x2")
        self.assertIn('value="712"', viewer.listing()["count"].rest)

    def test_help_comes_on_the_help_key_and_not_on_activation(self):
        viewer = self.start("-zo30", ACTIONS)
        window = viewer.wait_for_window("Actions")
        self.server.xdotool("windowfocus", window)
        save = viewer.listing()["saveButton"]
        viewer.click("Actions", save)
        self.assertEqual(viewer.line(), "saveButton: XmNactivateCallback -> save_file")
        self.assertEqual(self.server.xdotool("search", "--onlyvisible", "--name", "^Help"), [])
        self.server.xdotool("key", "F1")
        viewer.wait_for_window("Help: saveButton")

    def test_closing_the_last_window_ends_the_program(self):
        with Server(window_manager=True) as server, Viewer(server, PROGRAMS, ACTIONS) as viewer:
            window = viewer.wait_for_window("Actions")
            self.assertEqual(server.xdotool("search", "--onlyvisible", "--name", "^More$"), [])
            server.xdotool("windowfocus", window)
            server.xdotool("key", "alt+F4")
            self.assertEqual(viewer.process.wait(timeout=SECONDS), 0)


class Listing(WithServer):
    def test_tree_of_the_example(self):
        done = run(self.server, "--list", EXAMPLES / "hello.G")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        widgets = parse_listing(done.stdout)
        names = [(widget.depth, widget.name, widget.class_name) for widget in widgets]
        self.assertEqual(names[:3], [(0, "helloWindow", "TopLevelShell"),
                                     (1, "helloControls", "XmBulletinBoard"),
                                     (2, "greeting", "XmLabel")])
        self.assertEqual((widgets[0].width, widgets[0].height), (300, 110))
        self.assertEqual(widgets[2].label, "Hello from Devguide.")

    def test_places_are_those_on_the_screen(self):
        # A widget inside a row-column: its place is told relative to the window.
        widgets = {widget.name: widget
                   for widget in parse_listing(run(self.server, "--list", ACTIONS).stdout)}
        label, row = widgets["count_label"], widgets["count_rc"]
        self.assertGreater(label.x, row.x)
        self.assertLess(label.x + label.width, row.x + row.width)

    def test_every_option_set_lists_the_same_controls(self):
        for options in ([], ["-zo30"], ["-nozo"], ["-nozo", "-nocomments"],
                        ["-motif12", "-openlook"]):
            done = run(self.server, *options, "--list", ACTIONS)
            self.assertEqual((done.returncode, done.stderr), (0, ""), options)
            for name in ("aboutButton", "target", "count", "canvas", "okButton", "drawMenu"):
                self.assertRegex(done.stdout, rf"(?m)^ *{name}: ", options)

    def test_module_and_compiled_module(self):
        module = self.convert(ACTIONS)
        wanted = run(self.server, "--list", ACTIONS).stdout
        self.assertEqual(run(self.server, "--list", module).stdout, wanted)
        mended = self.folder / "mended.uil"
        subprocess.run(["pandrel-uilfix", "-q", str(module), "-o", str(mended)], check=True,
                       timeout=SECONDS, env=self.server.environment(PROGRAMS))
        subprocess.run(["uil", str(mended), "-o", str(self.folder / "mended.uid")], check=True,
                       timeout=SECONDS, capture_output=True)
        self.assertEqual(run(self.server, "--list", self.folder / "mended.uid").stdout, wanted)

    def test_compiled_module_alone(self):
        module = self.convert(EXAMPLES / "hello.G")
        alone = self.folder / "alone.uid"
        subprocess.run(["uil", str(module), "-o", str(alone)], check=True, timeout=SECONDS,
                       capture_output=True)
        done = run(self.server, "--list", alone)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        names = [widget.name for widget in parse_listing(done.stdout)]
        self.assertEqual(names[:3], ["helloControls_shell", "helloControls", "greeting"])
        self.assertEqual(done.stdout.count("_shell: "), 1)

    def test_folder_beside_the_file(self):
        # Its name stands in the GIL file, as that of a project's interface would.
        shutil.copy(EXAMPLES / "hello.G", self.folder)
        (self.folder / "greeting").mkdir()
        done = run(self.server, "--list", self.folder / "hello.G")
        self.assertEqual((done.returncode, done.stderr), (0, ""))

    def test_toolkit_options(self):
        done = run(self.server, "-geometry", "420x210", "-xrm", "*greeting.labelString: Changed",
                   "--list", EXAMPLES / "hello.G")
        self.assertRegex(done.stdout, r"^helloWindow: TopLevelShell 420x210")
        other = run(self.server, "-display", self.server.display, "--list", EXAMPLES / "hello.G",
                    env=dict(self.server.environment(PROGRAMS), DISPLAY=":nowhere"))
        self.assertEqual(other.returncode, 0)


class Screenshots(WithServer):
    def check_picture(self, picture, widgets):
        """The picture of one window, whose widgets are given, shell first."""
        shell = widgets[0]
        self.assertEqual((picture.width, picture.height), (shell.width, shell.height), shell.name)
        self.assertGreater(picture.colors(0, 0, picture.width, picture.height), 1, shell.name)
        shown = 0
        hidden_depth = None
        for widget in widgets[1:]:
            if hidden_depth is not None and widget.depth > hidden_depth:
                continue
            hidden_depth = None
            if widget.has("unmanaged") or widget.has("unmapped"):
                hidden_depth = widget.depth
                continue
            inside = widget.x >= 0 and widget.y >= 0 and widget.x + widget.width <= shell.width \
                and widget.y + widget.height <= shell.height
            if not widget.label or not widget.label.strip() or not inside:
                continue
            # The letters have another colour than what is around them, inside the border.
            colors = picture.colors(widget.x + 3, widget.y + 3, widget.width - 6, widget.height - 6)
            self.assertGreater(colors, 1, f"{shell.name}: nothing to read in {widget.name}")
            shown += 1
        return shown

    def check_file(self, file, *options):
        folder = pathlib.Path(tempfile.mkdtemp(dir=self.folder))
        done = run(self.server, *options, "--screenshot", folder, file)
        self.assertEqual(done.returncode, 0, done.stderr)
        listing = run(self.server, *options, "--list", file).stdout
        windows = []
        for widget in parse_listing(listing):
            if widget.depth == 0:
                windows.append([])
            windows[-1].append(widget)
        self.assertEqual(sorted(path.stem for path in folder.iterdir()),
                         sorted(window[0].name for window in windows))
        return sum(self.check_picture(Picture(folder / (window[0].name + ".png")), window)
                   for window in windows)

    def test_labels_are_to_be_seen(self):
        self.assertEqual(self.check_file(EXAMPLES / "hello.G"), 3)
        self.assertGreater(self.check_file(ACTIONS), 15)
        self.assertGreater(self.check_file(EXAMPLES / "weather.G", "-Dicons"), 15)
        self.assertGreater(self.check_file(EXAMPLES / "weather.G", "-Dicons", "-openlook"), 15)

    def test_one_picture_and_further_ones(self):
        target = self.folder / "shot.png"
        self.assertEqual(run(self.server, "-o", target, ACTIONS).returncode, 0)
        self.assertEqual(sorted(path.name for path in self.folder.glob("*.png")),
                         ["shot-aboutDialog.png", "shot-moreWindow.png", "shot.png"])
        self.assertEqual(Picture(target).width, 440)

    def test_picture_that_cannot_be_written(self):
        done = run(self.server, "-o", self.folder / "none" / "shot.png", EXAMPLES / "hello.G")
        self.assertEqual(done.returncode, 1)
        self.assertIn("shot.png: No such file or directory", done.stderr)

    def test_glyphs_leave_no_files_behind(self):
        before = sorted(EXAMPLES.rglob("*"))
        done = run(self.server, "-Dicons", "-o", self.folder / "w.png", EXAMPLES / "weather.G")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertEqual(sorted(EXAMPLES.rglob("*")), before)


class Mistakes(WithServer):
    def fails(self, *arguments, status=1, **keywords):
        done = run(self.server, *arguments, **keywords)
        self.assertEqual(done.returncode, status, done.stderr)
        self.assertEqual(done.stdout, "")
        return done.stderr

    def write(self, name, text):
        file = self.folder / name
        file.write_text(text, encoding="latin-1")
        return file

    def test_no_display(self):
        error = self.fails(EXAMPLES / "hello.G",
                           env=dict(self.server.environment(PROGRAMS), DISPLAY=":4711"))
        self.assertEqual(error, 'pandrel-view: cannot open display ":4711"\n')

    def test_no_file(self):
        error = self.fails(self.folder / "none.G")
        self.assertIn("none.G: No such file or directory", error)
        self.assertIn("is a folder", self.fails(self.folder))
        self.assertIn("no file to show", self.fails(status=2))
        self.assertIn("unknown option: --nonsense", self.fails("--nonsense", "x", status=2))

    def test_not_gil(self):
        error = self.fails(self.write("bad.G", "(no gil"))
        self.assertIn("bad.G cannot be converted:", error)
        self.assertIn("Parse error", error)

    def test_not_a_compiled_module(self):
        self.assertIn("not a compiled UIL module", self.fails(self.write("bad.uid", "rubbish")))

    def test_module_without_windows(self):
        module = self.write("empty.uil", "module Pandrel\nnames = case_sensitive\n\n\n\nend module;\n")
        self.assertIn("no window to show", self.fails("--list", module))

    def test_module_that_does_not_compile(self):
        module = self.convert(ACTIONS)
        text = module.read_text(encoding="latin-1").replace("XmNx = 20;", "XmNx = twenty;", 1)
        error = self.fails("--list", self.write("bad.uil", text))
        self.assertIn("bad.uil does not compile:", error)
        self.assertRegex(error, r"Error: value twenty was never defined \(line \d+\), in widget \w+")

    def test_compiler_messages_name_the_gil_object(self):
        source = EXAMPLES / "hello.G"
        text = source.read_text(encoding="latin-1").replace('"Greet"', '"Greet\\q"')
        error = self.fails("--no-fix", "--list", self.write("escape.G", text))
        self.assertIn("in widget greetButton of GIL object greetButton", error)
        self.assertEqual(run(self.server, "--list", self.folder / "escape.G").returncode, 0)

    def test_procedure_named_like_a_widget(self):
        text = ACTIONS.read_text(encoding="latin-1").replace("(save_file)", "(saveButton)")
        source = self.write("clash.G", text)
        error = self.fails("--no-fix", "--list", source)
        self.assertIn("procedure saveButton is named like a widget; rename one of the two", error)
        self.assertIn("saveButton_widget: XmPushButton", run(self.server, "--list", source).stdout)

    def test_unknown_target_is_reported(self):
        text = ACTIONS.read_text(encoding="latin-1").replace(
            ":to                     (Target)", ":to                     (Nobody)")
        viewer = self.start(self.write("nobody.G", text))
        if not shutil.which("xdotool"):
            self.skipTest("xdotool is not installed")
        viewer.click("Actions", viewer.listing()["disableButton"])
        time.sleep(0.5)
        viewer.process.terminate()
        self.assertIn("ZoSetInsensitiveCB: no widget named Nobody", viewer.process.stderr.read())


class Informing(unittest.TestCase):
    def test_help_and_version(self):
        with Server() as server:
            self.assertRegex(run(server, "--help").stdout, r"^Usage: pandrel-view ")
            self.assertRegex(run(server, "--version").stdout, r"^pandrel-view \d+\.\d+")


if __name__ == "__main__":
    PROGRAMS = sys.argv.pop(1).split(":")
    for tool in ("Xvfb", "uil"):
        if not shutil.which(tool):
            print(f"skipped: {tool} is not installed")
            sys.exit(77)
    os.environ.pop("XENVIRONMENT", None)
    unittest.main(verbosity=2)
