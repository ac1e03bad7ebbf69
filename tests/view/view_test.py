#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""pandrel-view under an X server of its own: clicked, listed, photographed and given bad input.

usage: view_test.py BUILD-FOLDERS [unittest arguments]    the folders, joined by ":", hold
pandrel-view first, then pandrel and the rest
"""
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
        # A sign at the start, one of them, and nothing before it.
        self.server.xdotool("key", "Home")
        self.server.xdotool("type", "--", "-")
        self.server.xdotool("key", "Home")
        self.server.xdotool("type", "+5")
        self.server.xdotool("key", "End")
        self.server.xdotool("type", "+")
        self.assertIn('value="-712"', viewer.listing()["count"].rest)

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


@unittest.skipUnless(shutil.which("xdotool"), "xdotool is not installed")
class Windows(WithServer):
    """What is shown at start and after changes, and what a pin does."""

    def write(self, name, text):
        file = self.folder / name
        file.write_text(text, encoding="latin-1")
        return file

    def begin(self, *arguments):
        return self.enterContext(Viewer(self.server, PROGRAMS, *arguments))

    def test_interface_whose_windows_are_all_hidden(self):
        with Server(window_manager=True) as server, \
                Viewer(server, PROGRAMS, EXAMPLES / "library" / "loan.G") as viewer:
            window = viewer.wait_for_window("Library: Lend")
            self.assertEqual(viewer.process.stderr.readline(),
                             "pandrel-view: every window starts hidden; all are shown\n")
            server.xdotool("windowfocus", window)
            server.xdotool("key", "alt+F4")
            self.assertEqual(viewer.process.wait(timeout=SECONDS), 0)

    def test_hidden_windows_on_request(self):
        viewer = self.begin("--all", ACTIONS)
        for title in ("Actions", "More", "About"):
            viewer.wait_for_window(title)

    def test_hiding_the_last_window_ends_the_program(self):
        text = ACTIONS.read_text(encoding="latin-1").replace(
            ":to                     (aboutDialog)", ":to                     (mainWindow)", 1)
        viewer = self.begin(self.write("hide.G", text.replace("(Show)", "(Hide)", 1)))
        viewer.wait_for_window("Actions")
        listing = viewer.listing()
        viewer.click("Actions", listing["aboutButton"])
        self.assertEqual(viewer.process.wait(timeout=SECONDS), 0)

    def about_dialog(self, pinned):
        """The dialog, after its button, which now calls a function and no more, was pressed."""
        text = ACTIONS.read_text(encoding="latin-1")
        head, dialog = text.split("aboutArea", 1)
        head = head.replace(":pinned                 nil", f":pinned                 {pinned}")
        dialog = dialog.replace("(Hide)", "(apply_it)").replace("(aboutDialog)", "(okButton)")
        dialog = dialog.replace(":user_defined", "CallFunction")
        viewer = self.begin(self.write("pin.G", head + "aboutArea" + dialog))
        viewer.wait_for_window("Actions")
        viewer.click("Actions", viewer.listing()["aboutButton"])
        viewer.wait_for_window("About")
        viewer.click("About", viewer.listing()["okButton"])
        self.assertEqual(viewer.line(), "okButton: XmNactivateCallback -> apply_it")
        return viewer

    def test_button_in_a_pinned_dialog_leaves_it_open(self):
        viewer = self.about_dialog("t")
        self.assertIn("aboutDialog", viewer.listing())

    def test_button_in_another_dialog_closes_it(self):
        self.about_dialog("nil").wait_for_window("About", shown=False)

    def test_watch_shows_what_was_saved(self):
        source = self.folder / "hello.G"
        text = (EXAMPLES / "hello.G").read_text(encoding="latin-1")
        source.write_text(text, encoding="latin-1")
        viewer = self.begin("--watch", source)
        window = viewer.wait_for_window("Hello")
        self.server.xdotool("windowmove", window, 200, 150)
        # One that cannot be converted leaves the window as it is.
        source.write_text("(no gil", encoding="latin-1")
        self.assertIn("cannot be converted", viewer.process.stderr.readline())
        self.assertEqual(viewer.wait_for_window("Hello"), window)
        # As editors do it: a new file in place of the old one.
        other = self.folder / "hello.G~"
        other.write_text(text.replace('"Greet"', '"Wave"'), encoding="latin-1")
        other.replace(source)
        end = time.monotonic() + SECONDS
        shown = window
        while shown in (None, window) and time.monotonic() < end:
            shown = next(iter(self.server.xdotool("search", "--onlyvisible", "--name", "^Hello$")),
                         None)
        self.assertEqual(viewer.listing()["greetButton"].label, "Wave")
        place = "\n".join(self.server.xdotool("getwindowgeometry", "--shell",
                                              viewer.wait_for_window("Hello")))
        self.assertIn("X=200\nY=150", place)


class CleaningUp(WithServer):
    """Temporary files and processes are gone, however the program ends."""

    def setUp(self):
        super().setUp()
        self.scratch = self.folder / "tmp"
        self.scratch.mkdir()

    def start_viewer(self, *arguments, **keywords):
        environment = dict(self.server.environment(PROGRAMS), TMPDIR=str(self.scratch))
        environment["PATH"] = keywords.pop("path", "") + environment["PATH"]
        process = subprocess.Popen(
            [str(pathlib.Path(PROGRAMS[0], "pandrel-view")), *map(str, arguments)],
            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, env=environment)
        self.addCleanup(process.communicate)
        self.addCleanup(process.kill)
        return process

    def check_gone(self):
        self.assertEqual(list(self.scratch.iterdir()), [])
        left = [entry for entry in pathlib.Path("/proc").glob("[0-9]*/environ")
                if self.mentions_scratch(entry)]
        self.assertEqual(left, [])

    def mentions_scratch(self, environ):
        try:
            return str(self.scratch).encode() in environ.read_bytes()
        except OSError:
            return False

    def wait_for(self, condition):
        end = time.monotonic() + SECONDS
        while not condition() and time.monotonic() < end:
            time.sleep(0.05)
        self.assertTrue(condition())

    def test_signals_while_windows_are_shown(self):
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            viewer = self.start_viewer(EXAMPLES / "hello.G")
            self.wait_for(lambda: self.server.xdotool("search", "--onlyvisible", "--name", "^Hello$"))
            viewer.send_signal(number)
            self.assertEqual(viewer.wait(timeout=SECONDS), -number)
            self.check_gone()

    def test_signals_while_something_else_runs(self):
        # A compiler and an X server that never get anywhere.
        programs = self.folder / "programs"
        programs.mkdir()
        for name, options in (("uil", []), ("Xvfb", ["--list"])):
            slow = programs / name
            slow.write_text(f"#!/bin/sh\ntouch {self.folder}/{name}.runs\nsleep 60\n")
            slow.chmod(0o755)
            viewer = self.start_viewer(*options, EXAMPLES / "hello.G", path=f"{programs}:")
            self.wait_for((self.folder / f"{name}.runs").exists)
            viewer.send_signal(signal.SIGTERM)
            self.assertEqual(viewer.wait(timeout=SECONDS), -signal.SIGTERM)
            slow.unlink()
            self.check_gone()

    def test_temporary_folder_named_from_where_the_user_is(self):
        environment = dict(self.server.environment(PROGRAMS), TMPDIR="tmp")
        done = run(self.server, "--compact", "--check", EXAMPLES / "hello.G", env=environment,
                   cwd=self.folder)
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""))
        self.check_gone()

    def test_temporary_folder_that_is_not_there(self):
        environment = dict(self.server.environment(PROGRAMS), TMPDIR="/no/such/folder")
        done = run(self.server, "--check", EXAMPLES / "hello.G", env=environment, cwd=self.folder)
        self.assertEqual(done.returncode, 1)
        self.assertEqual(done.stderr, "pandrel-view: cannot make a temporary folder: "
                                      "No such file or directory\n")
        self.assertEqual(list(self.folder.iterdir()), [self.scratch])

    def test_closed_streams(self):
        target = self.folder / "shot.png"
        done = subprocess.run(
            ["/bin/sh", "-c", 'exec "$@" <&- >&- 2>&-', "sh",
             str(pathlib.Path(PROGRAMS[0], "pandrel-view")), "-o", str(target),
             str(EXAMPLES / "hello.G")],
            timeout=SECONDS, check=False, env=self.server.environment(PROGRAMS))
        self.assertEqual(done.returncode, 0)
        self.assertTrue(target.is_file())

    def test_being_killed(self):
        # To reload it keeps its files for as long as it runs.
        for options in ([], ["--watch"]):
            viewer = self.start_viewer(*options, EXAMPLES / "hello.G")
            self.wait_for(
                lambda: self.server.xdotool("search", "--onlyvisible", "--name", "^Hello$"))
            viewer.kill()
            viewer.wait(timeout=SECONDS)
            self.wait_for(lambda: not self.server.xdotool("search", "--name", "^Hello$"))
            self.wait_for(lambda: not list(self.scratch.iterdir()))

    def test_being_killed_while_it_compiles(self):
        programs = self.folder / "programs"
        programs.mkdir()
        slow = programs / "uil"
        slow.write_text(f"#!/bin/sh\ntouch {self.folder}/uil.runs\nexec sleep 60\n")
        slow.chmod(0o755)
        viewer = self.start_viewer(EXAMPLES / "hello.G", path=f"{programs}:")
        self.wait_for((self.folder / "uil.runs").exists)
        self.assertTrue(list(self.scratch.iterdir()))
        viewer.kill()
        viewer.wait(timeout=SECONDS)
        self.wait_for(lambda: not list(self.scratch.iterdir()))

    def test_crash(self):
        viewer = self.start_viewer(EXAMPLES / "hello.G")
        self.wait_for(lambda: self.server.xdotool("search", "--onlyvisible", "--name", "^Hello$"))
        children = pathlib.Path(f"/proc/{viewer.pid}/task/{viewer.pid}/children").read_text().split()
        os.kill(int(children[-1]), signal.SIGABRT)  # the first is there to clean up
        self.assertEqual(viewer.wait(timeout=SECONDS), 1)
        self.assertRegex(viewer.stderr.read(), r"^pandrel-view: \S*hello.G: the toolkit crashed \(.*\)\n$")
        self.check_gone()

    def test_batch(self):
        viewer = self.start_viewer("--compact", "--check", EXAMPLES / "hello.G")
        self.assertEqual(viewer.wait(timeout=SECONDS), 0)
        self.check_gone()


class Checking(WithServer):
    def test_what_does_not_fit_is_told(self):
        # The field's box is 37 pixels high with the toolkit's margins and begins at 40; the button
        # below it begins at 76. In its 19 pixels, less two shadows and two frames of 2 each, 11 are
        # left for letters of 13.
        done = run(self.server, "--check", EXAMPLES / "hello.G")
        self.assertEqual((done.returncode, done.stderr), (1, ""))
        self.assertEqual(done.stdout.splitlines(), [
            "helloWindow: who_rc (GIL object who) 169x37+16+40 overlaps greetButton by 60x1",
            'helloWindow: greetButton 60x19+16+76 cuts its text "Greet" by 0x2'])
        listing = run(self.server, "--list", EXAMPLES / "hello.G")
        self.assertEqual((listing.returncode, listing.stderr), (1, done.stdout))

    def test_fields_for_programs(self):
        done = run(self.server, "--check=tab", EXAMPLES / "hello.G")
        self.assertEqual([line.split("\t") for line in done.stdout.splitlines()], [
            ["overlap", "who_rc", "who", "helloWindow", "16", "40", "169", "37", "greetButton",
             "greetButton", "60", "1"],
            ["cut", "greetButton", "greetButton", "helloWindow", "16", "76", "60", "19", "Greet", "",
             "0", "2"]])

    def test_control_outside_its_container(self):
        text = (EXAMPLES / "hello.G").read_text(encoding="latin-1")
        head, button = text.split("greetButton\n", 1)
        source = self.folder / "out.G"
        # The window is 300 wide; the button, 60 wide, reaches 10 pixels out of it.
        source.write_text(head + "greetButton\n" + re.sub(r"(:x\s+)16", r"\g<1>250", button, count=1),
                          encoding="latin-1")
        done = run(self.server, "--compact", "--check=tab", source)
        self.assertEqual(done.returncode, 1)
        self.assertEqual(done.stdout.split("\t"),
                         ["outside", "greetButton", "greetButton", "helloWindow", "250", "76", "60",
                          "19", "helloControls", "helloControls", "10", "0\n"])

    def test_compact_metrics_make_it_fit(self):
        for source in (EXAMPLES / "hello.G", EXAMPLES / "library" / "library.P"):
            done = run(self.server, "--compact", "--check", source)
            self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""))

    def test_letters_have_the_width_that_the_editor_left(self):
        # "Name:" in the bold letters and 8 pixels; the editor put the field 48 behind the label.
        widgets = {widget.name: widget for widget in parse_listing(
            run(self.server, "--compact", "--list", EXAMPLES / "hello.G").stdout)}
        self.assertEqual(widgets["who"].x - widgets["who_label"].x,
                         widgets["who_label"].width + 8)

    def test_letters_for_a_server_without_them(self):
        with Server("-fp", "built-ins") as server:
            done = run(server, "-display", server.display, "--compact", "--check",
                       EXAMPLES / "hello.G")
            self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""))

    def test_many_windows_take_ten_seconds_at_most(self):
        source = self.folder / "many.G"
        windows = "".join(
            f"(:type :base-window :name w{i} :owner nil :width 300 :height 200 :label \"W {i}\"\n"
            f":label-type :string :initial-state :open :show-footer nil :resizable t :actions ())\n"
            f"(:type :control-area :name a{i} :owner w{i} :x 0 :y 0 :width 300 :height 200\n"
            f":initial-state :visible :show-border nil :actions ())\n"
            f"(:type :button :name b{i} :owner a{i} :x 16 :y 10 :width 90 :height 20 :label \"B\"\n"
            f":label-type :string :initial-state :active :actions ())\n" for i in range(400))
        source.write_text(f";GIL-3\n(\n{windows})\n")
        begin = time.monotonic()
        done = run(self.server, "--compact", "--check", "--screenshot", self.folder / "shots", source)
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""))
        self.assertEqual(len(list((self.folder / "shots").iterdir())), 400)
        if "PANDREL_SANITIZED" not in os.environ:
            self.assertLess(time.monotonic() - begin, 10)


class Listing(WithServer):
    def test_tree_of_the_example(self):
        done = run(self.server, "--compact", "--list", EXAMPLES / "hello.G")
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
            self.assertNotIn("pandrel-view:", done.stderr, options)
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
        done = run(self.server, "--compact", "--list", alone)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        names = [widget.name for widget in parse_listing(done.stdout)]
        self.assertEqual(names[:3], ["helloControls_shell", "helloControls", "greeting"])
        self.assertEqual(done.stdout.count("_shell: "), 1)

    def test_folder_beside_the_file(self):
        # Its name stands in the GIL file, as that of a project's interface would.
        shutil.copy(EXAMPLES / "hello.G", self.folder)
        (self.folder / "greeting").mkdir()
        done = run(self.server, "--compact", "--list", self.folder / "hello.G")
        self.assertEqual((done.returncode, done.stderr), (0, ""))

    def test_toolkit_options(self):
        done = run(self.server, "-geometry", "420x210", "-xrm", "*greeting.labelString: Changed",
                   "--list", EXAMPLES / "hello.G")
        self.assertRegex(done.stdout, r"^helloWindow: TopLevelShell 420x210")
        other = run(self.server, "-display", self.server.display, "--compact", "--list",
                    EXAMPLES / "hello.G",
                    env=dict(self.server.environment(PROGRAMS), DISPLAY=":nowhere"))
        self.assertEqual((other.returncode, other.stderr), (0, ""))
        refused = run(self.server, "-display", ":nowhere", "--list", EXAMPLES / "hello.G")
        self.assertEqual((refused.returncode, refused.stderr),
                         (1, 'pandrel-view: cannot open display ":nowhere"\n'))

    def test_resource_file(self):
        resources = self.folder / "mine.ad"
        resources.write_text("*greeting.labelString: Changed\n*greetButton.marginHeight: 0\n"
                             "*greetButton.highlightThickness: 0\n*who.marginHeight: 0\n")
        done = run(self.server, "--resources", resources, "--list", EXAMPLES / "hello.G")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertNotIn("marginHeight", done.stdout)
        missing = run(self.server, "--resources", self.folder / "none", "--list",
                      EXAMPLES / "hello.G")
        self.assertEqual(missing.returncode, 1)
        self.assertIn("none: cannot be read", missing.stderr)


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

    def test_no_display_is_needed(self):
        environment = {name: value for name, value in
                       self.server.environment(PROGRAMS).items() if name != "DISPLAY"}
        done = run(self.server, "--compact", "--check", "--screenshot", self.folder / "shots",
                   EXAMPLES / "hello.G", env=environment)
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""))
        self.assertTrue((self.folder / "shots" / "helloWindow.png").is_file())

    def test_windows_of_other_clients_never_get_in(self):
        # On a display that others use, too: each viewer puts its windows in the same corner.
        alone = self.folder / "alone.png"
        self.assertEqual(run(self.server, "-o", alone, EXAMPLES / "hello.G").returncode, 0)
        wanted = Picture(alone).rows
        with Viewer(self.server, PROGRAMS, "-geometry", "700x600+0+0", "-xrm", "*background: red",
                    ACTIONS) as other:
            other.wait_for_window("Actions")
            several = [subprocess.Popen(
                [str(pathlib.Path(PROGRAMS[0], "pandrel-view")), "-display", self.server.display,
                 "-o", str(self.folder / f"shot{i}.png"), str(EXAMPLES / "hello.G")],
                env=self.server.environment(PROGRAMS)) for i in range(3)]
            for viewer in several:
                self.assertEqual(viewer.wait(timeout=SECONDS), 0)
        for i in range(3):
            # Not assertEqual, which would look for the differences of 33,000 pixels.
            self.assertTrue(Picture(self.folder / f"shot{i}.png").rows == wanted, i)

    def test_window_larger_than_the_screen_is_whole(self):
        target = self.folder / "large.png"
        done = run(self.server, "-geometry", "1400x1100", "-o", target, EXAMPLES / "hello.G")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        picture = Picture(target)
        self.assertEqual((picture.width, picture.height), (1400, 1100))
        self.assertGreater(picture.colors(1380, 1080, 20, 20), 0)

    def test_missing_icon_is_a_box_with_its_name(self):
        target = self.folder / "plain.png"
        module = self.write_module(self.folder, 'XmNlabelType = XmPIXMAP;\n\t\t'
                                                'XmNlabelPixmap = xbitmapfile("lost.xbm");')
        done = run(self.server, "--list", "-o", target, module)
        self.assertEqual((done.returncode, done.stderr),
                         (0, 'pandrel-view: widget theButton: icon "lost.xbm" cannot be shown\n'))
        box = next(w for w in parse_listing(done.stdout) if w.name == "theButton")
        # "lost" in the server's fixed letters, 6 pixels each, with a frame around it.
        self.assertGreaterEqual(box.width, 4 * 6)
        self.assertGreater(Picture(target).colors(box.x + 8, box.y + 8, box.width - 16,
                                                  box.height - 16), 1)

    def test_button_shows_its_icon(self):
        # The converter leaves such a button the name of the icon's file for a label.
        icon = (EXAMPLES / "icons" / "refresh.icon").read_text()
        bits = "".join(f"{int(word, 16):016b}" for word in re.findall(r"0x(\w+)", icon))
        width = int(re.search(r"Width=(\d+)", icon)[1])
        lines = [bits[i:i + width] for i in range(0, len(bits), width)]
        folder = self.folder / "buttons"
        done = run(self.server, "-Dicons", "--compact", "--list", "--screenshot", folder,
                   EXAMPLES / "weather.G")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        button = next(w for w in parse_listing(done.stdout) if w.name == "refreshButton")
        rows = Picture(folder / "logWindow.png").rows
        drawn = ["".join("01"[rows[y][3 * x:3 * x + 3] == bytes(3)]
                         for x in range(button.x, button.x + button.width))
                 for y in range(button.y, button.y + button.height)]
        # All of it but the lines that the button cuts off, which is lower than icon and frame.
        shown = [line for line in lines if any(line in row for row in drawn)]
        self.assertGreaterEqual(len(shown), len(lines) - 2, drawn)

    def test_button_without_its_icon_is_a_box_with_the_name(self):
        done = run(self.server, "--compact", "--list", EXAMPLES / "weather.G")
        self.assertEqual(done.returncode, 0)
        self.assertIn('pandrel-view: widget refreshButton: icon "refresh.icon" cannot be shown\n',
                      done.stderr)

    @staticmethod
    def write_module(folder, arguments, child="", child_class=""):
        """A module of one window with one button, which has these arguments and this child."""
        control = f"\t\t{child_class} {child};\n" if child else ""
        module = folder / "made.uil"
        text = ("module Pandrel\nnames = case_sensitive\n\n"
                "object\nboard:XmBulletinBoard{\n\tcontrols {\n\t\tXmPushButton theButton;\n\t\t};\n"
                "\targuments {\n\t\t};\n\tcallbacks {\n\t\t};\n\n\t};\n\n"
                f"object\ntheButton:XmPushButton{{\n\tcontrols {{\n{control}\t\t}};\n"
                f"\targuments {{\n\t\t{arguments}\n\t\t}};\n\tcallbacks {{\n\t\t}};\n\n\t}};\n\n")
        if child:
            text += (f"object\n{child}:{child_class}{{\n\tcontrols {{\n\t\t}};\n\targuments {{\n\t\t}};\n"
                     "\tcallbacks {\n\t\t};\n\n\t};\n\n")
        module.write_text(text + "end module;\n")
        return module

    def test_child_where_none_can_be_is_left_out(self):
        module = self.write_module(self.folder, "XmNx = 1;", "inner", "XmTextField")
        done = run(self.server, "--list", module)
        self.assertEqual((done.returncode, done.stderr),
                         (1, "pandrel-view: widget inner is left out: it stands in theButton, and "
                             "XmPushButton cannot have it\n"))
        self.assertIn("theButton: XmPushButton", done.stdout)
        self.assertNotIn("inner", done.stdout)

    def test_colours(self):
        module = self.write_module(self.folder, 'XmNbackground = color("BG3");')
        target = self.folder / "colour.png"
        done = run(self.server, "--list", "-o", target, module)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        box = next(w for w in parse_listing(done.stdout) if w.name == "theButton")
        corner = Picture(target).rows[box.y + 5][(box.x + 5) * 3:(box.x + 5) * 3 + 3]
        self.assertEqual(corner, bytes([0x62, 0x62, 0x62]))
        unknown = run(self.server, "--list", self.write_module(
            self.folder, 'XmNbackground = color("mauve-ish");'))
        self.assertEqual((unknown.returncode, unknown.stderr),
                         (0, 'pandrel-view: widget theButton: colour "mauve-ish" is not known\n'))

    def test_glyphs_leave_no_files_behind(self):
        before = sorted(EXAMPLES.rglob("*"))
        done = run(self.server, "-Dicons", "-o", self.folder / "w.png", EXAMPLES / "weather.G")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertEqual(sorted(EXAMPLES.rglob("*")), before)

    def test_folder_of_icons_is_where_the_user_is(self):
        # As it is for the converter; the file lies elsewhere.
        elsewhere = self.folder / "here" / "sub"
        elsewhere.mkdir(parents=True)
        shutil.copytree(EXAMPLES / "icons", elsewhere / "glyphs")
        alone = self.folder / "there"
        alone.mkdir()
        shutil.copy(EXAMPLES / "weather.G", alone)
        before = sorted(self.folder.rglob("*"))
        for option, folder in (("-Dglyphs", elsewhere), ("-Dsub/glyphs", elsewhere.parent),
                               ("-D../glyphs", elsewhere / "glyphs"), ("-D.", elsewhere / "glyphs"),
                               (f"-D{elsewhere / 'glyphs'}", alone)):
            done = run(self.server, option, "--compact", "--check", alone / "weather.G", cwd=folder)
            self.assertEqual((done.returncode, done.stdout, done.stderr),
                             (0, "", ""), option)
        self.assertEqual(sorted(self.folder.rglob("*")), before)


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

    def test_damaged_compiled_module(self):
        # Every kind of damage, in places chosen by a generator of our own that never changes.
        module = self.convert(ACTIONS)
        mended = self.folder / "mended.uil"
        subprocess.run(["pandrel-uilfix", "-q", str(module), "-o", str(mended)], check=True,
                       timeout=SECONDS, env=self.server.environment(PROGRAMS))
        whole = self.folder / "whole.uid"
        subprocess.run(["uil", str(mended), "-o", str(whole)], check=True, timeout=SECONDS,
                       capture_output=True)
        data = whole.read_bytes()
        state = 1
        for round_number in range(30):
            damaged = bytearray(data)
            for _ in range((1, 4, 20, 100)[round_number % 4]):
                state = (state * 1103515245 + 12345) % 2**31
                damaged[state // 8 % len(damaged)] = state // 65536 % 256
            file = self.folder / "damaged.uid"
            file.write_bytes(damaged[:len(data) // 2] if round_number % 5 == 4 else damaged)
            # What the resource manager does not give back of a damaged file is its own affair.
            done = run(self.server, "--check=tab", file,
                       env=dict(self.server.environment(PROGRAMS), ASAN_OPTIONS="detect_leaks=0"))
            self.assertIn(done.returncode, (0, 1), f"{round_number}: {done.stderr}")
            ours = [line for line in done.stderr.splitlines() if line.startswith("pandrel-view: ")]
            self.assertEqual(ours, done.stderr.splitlines(), round_number)
            self.assertLessEqual(len(ours), 1, f"{round_number}: {done.stderr}")

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
        self.assertEqual(
            run(self.server, "--compact", "--list", self.folder / "escape.G").returncode, 0)

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
        button = viewer.listing()["disableButton"]
        viewer.click("Actions", button)
        viewer.click("Actions", button)
        time.sleep(0.5)
        viewer.process.terminate()
        self.assertEqual(viewer.process.stderr.read(),
                         "pandrel-view: ZoSetInsensitiveCB: no widget named Nobody\n")


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
