#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""How pandrel-port treats what the user has: folders, files, arguments. Needs no display and no
compiler.

usage: port_test.py BUILD-FOLDERS [unittest arguments]
"""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

from ports import EXAMPLES, ROOT, find, run_port

HERE = pathlib.Path(__file__).resolve().parent
PROGRAMS = []
CONTROLS = HERE / "controls.G"


def snapshot(folder):
    """Every file below the folder with its bytes and time."""
    return {file: (file.read_bytes(), file.stat().st_mtime_ns)
            for file in sorted(pathlib.Path(folder).rglob("*")) if file.is_file()}


class PortTest(unittest.TestCase):
    def setUp(self):
        self.scratch = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.app = self.scratch / "app"

    def run_port(self, *arguments, **options):
        return run_port(PROGRAMS, "--no-pictures", *arguments, **options)

    def port(self, *arguments, status=0):
        done = self.run_port("-o", self.app, *arguments)
        self.assertEqual(done.returncode, status, done.stderr)
        return done

    def assert_nothing_beside(self):
        self.assertEqual([file for file in self.scratch.iterdir() if file.name[0] == "."], [])


class Arguments(PortTest):
    def test_informs(self):
        self.assertIn("Usage: pandrel-port", self.run_port("--help").stdout)
        version = (ROOT / "VERSION").read_text().strip()
        self.assertEqual(self.run_port("--version").stdout, f"pandrel-port {version}\n")

    def test_what_cannot_be_said_is_status_1(self):
        for argument in "--help", "--version":
            with open("/dev/full", "w") as full:
                done = subprocess.run([find(PROGRAMS, "pandrel-port"), argument], stdout=full, check=False)
                self.assertEqual(done.returncode, 1, argument)

    def test_wrong_usage_is_status_2(self):
        for arguments in ([], ["--unknown", "x.G"], ["a.G", "b.G"], ["-r", "."], ["-o"]):
            done = self.run_port(*arguments)
            self.assertEqual(done.returncode, 2, arguments)
            self.assertTrue(done.stderr.startswith("pandrel-port: "), done.stderr)

    def test_names_the_folder_after_the_file(self):
        shutil.copy(CONTROLS, self.scratch)
        done = self.run_port("controls.G", cwd=self.scratch)
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertTrue((self.scratch / "controls" / "controls.uil").exists())

    def test_a_file_that_cannot_be_converted_is_status_1_and_leaves_nothing(self):
        bad = self.scratch / "bad.G"
        bad.write_text(";GIL-3\n( ( :type :button ) )\n")
        self.port(bad, status=1)
        self.assertFalse(self.app.exists())
        self.port(self.scratch / "missing.G", status=1)
        self.assertIn(": a folder needs -r", self.port(EXAMPLES, status=1).stderr)
        self.assert_nothing_beside()

    def test_ends_with_the_totals(self):
        last = self.port(CONTROLS).stdout.splitlines()[-1]
        self.assertTrue(last.startswith("10 actions: "), last)

    def test_passes_options_to_the_converter(self):
        self.port("-nozo", "-nocomments", CONTROLS)
        self.assertNotIn("TopLevelShell", (self.app / "controls.uil").read_text())
        self.assertIn('"win"', (self.app / "main.c").read_text())


class Folders(PortTest):
    FILES = {"main.c", "callbacks.c", "callbacks.h", "connections.c", "connections.h", "zo.c",
             "zo.h", "letters.c", "letters.h", "Makefile", "README", "report.html",
             "controls.uil", "Controls.ad", ".pandrel-port"}

    def test_has_every_file(self):
        self.port(CONTROLS)
        self.assertEqual({file.name for file in self.app.iterdir()}, self.FILES)
        self.assert_nothing_beside()

    def test_refuses_a_folder_that_is_not_ours(self):
        self.app.mkdir()
        (self.app / "thesis.txt").write_text("mine")
        before = snapshot(self.app)
        done = self.port(CONTROLS, status=2)
        self.assertIn("not made by pandrel-port", done.stderr)
        self.assertEqual(snapshot(self.app), before)

    def test_refuses_the_folder_of_the_input(self):
        shutil.copytree(EXAMPLES, self.scratch / "examples")
        before = snapshot(self.scratch)
        done = self.run_port("-o", self.scratch / "examples", self.scratch / "examples/hello.G")
        self.assertEqual(done.returncode, 2)
        self.assertEqual(snapshot(self.scratch), before)

    def test_never_writes_to_the_input(self):
        source = self.scratch / "source"
        shutil.copytree(EXAMPLES, source)
        # What the converter would take for its own files.
        (source / "icons" / "sun.xbm.tmp").write_text("mine")
        os.symlink("../hello.G", source / "icons" / "link.G")
        before = snapshot(source)
        for options in ([], ["-Dicons"], [f"-D{source}/icons"], ["-D../source/icons"]):
            self.port(*options, source / "weather.G")
            self.assertEqual(snapshot(source), before, options)

    def test_the_readme_tells_what_is_left_to_do(self):
        lost = self.scratch / "lost.G"
        lost.write_text(";GIL-3\n((:type :base-window :name w :owner nil)"
                        "(:type :stack :name pages :owner w"
                        " :actions ((:from (nil) :when (Notify) :to (nobody)"
                        " :function_type Show :arg_type () :action ()))))\n")
        self.port(lost)
        left = (self.app / "README").read_text().split("What is left to do:\n")[1].splitlines()
        self.assertIn("    Not shown: stack pages: Motif has no counterpart", left)
        self.assertTrue([line for line in left if line.startswith("    Not connected: ")], left)

    def test_draws_labels_as_bold_as_the_editor_did(self):
        self.port(EXAMPLES / "weather.G")
        lines = (self.app / "Weather.ad").read_text().splitlines()
        for label in ("stationList_title", "intervalSlider_label", "batteryGauge_label"):
            self.assertIn(f"*{label}.renderTable: bold", lines)

    def test_takes_bitmaps_along(self):
        self.port("-Dicons", EXAMPLES / "weather.G")
        named = [line.split('"')[1] for line in (self.app / "weather.uil").read_text().splitlines()
                 if "xbitmapfile(" in line]
        self.assertTrue(named)
        for path in named:
            self.assertTrue((self.app / path).read_text().startswith("#define"), path)

    def test_leads_no_bitmap_out_of_the_folder(self):
        secret = self.scratch / "secret.xbm"
        secret.write_text("#define x_width 1\n")
        text = CONTROLS.read_text().replace('"waiting"\n\t:label-type\t:string',
                                            f'"{secret}"\n\t:label-type\t:glyph')
        source = self.scratch / "controls.G"
        source.write_text(text)
        self.port(source)
        self.assertIn('xbitmapfile("bitmaps/secret.xbm")',
                      (self.app / "controls.uil").read_text())
        self.assertTrue((self.app / "bitmaps" / "secret.xbm").exists())

    def test_a_second_run_changes_nothing(self):
        self.port(CONTROLS)
        before = {file: entry[0] for file, entry in snapshot(self.app).items()}
        self.port(CONTROLS)
        self.assertEqual({file: entry[0] for file, entry in snapshot(self.app).items()}, before)

    def test_keeps_what_the_user_changed(self):
        self.port(CONTROLS)
        for name in ("main.c", "Makefile", "controls.uil"):
            with open(self.app / name, "a", encoding="ascii") as file:
                file.write("mine\n")
        done = self.port("-motif12", CONTROLS)
        for name in ("main.c", "Makefile", "controls.uil"):
            self.assertTrue((self.app / name).read_text().endswith("mine\n"))
            self.assertTrue((self.app / f"{name}.new").exists())
            self.assertIn(f"{name} was changed and is kept; the new one is {name}.new",
                          done.stderr)

    def test_a_run_that_fails_leaves_the_folder_whole(self):
        self.port(CONTROLS)
        before = snapshot(self.app)
        templates = self.scratch / "templates"
        templates.mkdir()
        (templates / "report.html.mustache").write_text("{{#broken}}")
        done = self.port("--templates", templates, CONTROLS, status=1)
        self.assertIn("pandrel-port: ", done.stderr)
        self.assertEqual(snapshot(self.app), before)
        self.assert_nothing_beside()

    def test_refuses_templates_that_are_not_there(self):
        self.port("--templates", self.scratch / "none", CONTROLS, status=2)
        self.assertFalse(self.app.exists())

    def test_takes_the_users_templates(self):
        templates = self.scratch / "templates"
        templates.mkdir()
        (templates / "README.mustache").write_text("{{{name}}} by us\n")
        self.port("--templates", templates, CONTROLS)
        self.assertEqual((self.app / "README").read_text(), "controls by us\n")
        self.assertIn("int main(", (self.app / "main.c").read_text())


class Callbacks(PortTest):
    def functions(self):
        text = (self.app / "callbacks.c").read_text()
        return [line.split("(")[0].split()[1] for line in text.splitlines()
                if line.startswith("void ") and "PortStub" not in line]

    def test_are_only_appended_to(self):
        self.port(CONTROLS)
        self.assertEqual(self.functions(),
                         ["pickLeaf", "exit_callback", "chooseFruit", "endButton_code",
                          "dialogDone"])
        callbacks = self.app / "callbacks.c"
        callbacks.write_text(callbacks.read_text().replace(
            'PortStub("chooseFruit", widget);', "/* mine */"))
        mine = callbacks.read_text()
        changed = self.scratch / "controls.G"
        changed.write_text(CONTROLS.read_text().replace("(pickLeaf)", "(takeLeaf)"))
        done = self.port(changed)
        self.assertTrue(callbacks.read_text().startswith(mine))
        self.assertEqual(self.functions()[-1], "takeLeaf")
        self.assertIn("callbacks.c: added takeLeaf", done.stderr)
        self.assertIn("callbacks.c: nothing calls pickLeaf any more", done.stderr)
        header = (self.app / "callbacks.h").read_text()
        self.assertIn("void pickLeaf(", header)
        self.assertIn("void takeLeaf(", header)

    def test_tell_who_calls_them(self):
        self.port(CONTROLS)
        text = (self.app / "callbacks.c").read_text()
        self.assertIn("scrolling-list fruits, Notify: XmNbrowseSelectionCallback of fruits", text)

    def test_hold_the_code_of_the_file(self):
        self.port(CONTROLS)
        self.assertIn("\nexit(7);\n", (self.app / "callbacks.c").read_text())


class Trees(PortTest):
    def test_ports_every_program_and_goes_on_after_a_failure(self):
        tree = self.scratch / "tree"
        shutil.copytree(EXAMPLES, tree)
        (tree / "bad.G").write_text("no GIL")
        before = snapshot(tree)
        done = self.run_port("-r", "-j", "2", "-o", self.app, tree)
        self.assertEqual(done.returncode, 1)
        self.assertIn("bad.G", done.stderr)
        self.assertTrue(done.stdout.startswith("4 programs, 1 failed; 36 actions: "), done.stdout)
        programs = {str(file.parent.relative_to(self.app)) for file in self.app.rglob("main.c")}
        # The files of the project are not converted a second time alone.
        self.assertEqual(programs, {"hello", "weather", "library/library"})
        index = (self.app / "index.html").read_text()
        self.assertIn('href="library/library/report.html"', index)
        self.assertEqual(snapshot(tree), before)

    def test_a_program_beside_a_folder_of_its_name(self):
        tree = self.scratch / "tree"
        for copy in ("tools.G", "tools/hello.G", "tools/hello/deep/hello.G"):
            (tree / copy).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(EXAMPLES / "hello.G", tree / copy)
        for _ in range(2):
            done = self.run_port("-r", "-o", self.app, tree)
            self.assertEqual(done.returncode, 0, done.stderr)
        programs = {str(file.parent.relative_to(self.app)) for file in self.app.rglob("main.c")}
        self.assertEqual(programs, {"tools-2", "tools/hello-2", "tools/hello/deep/hello"})

    def test_can_be_repeated(self):
        for _ in range(2):
            done = self.run_port("-r", "-o", self.app, EXAMPLES)
            self.assertEqual(done.returncode, 0, done.stderr)

    def test_refuses_a_folder_that_is_not_ours(self):
        self.app.mkdir()
        (self.app / "thesis.txt").write_text("mine")
        self.assertEqual(self.run_port("-r", "-o", self.app, EXAMPLES).returncode, 2)
        self.assertEqual([file.name for file in self.app.iterdir()], ["thesis.txt"])


class WithoutTools(PortTest):
    def test_everything_is_written_without_viewer_server_and_compilers(self):
        (self.scratch / "bin").mkdir()
        environment = dict(os.environ, PATH=str(self.scratch / "bin"))
        environment.pop("DISPLAY", None)
        # A copy, since programs are also looked for beside the running one.
        shutil.copytree(pathlib.Path(PROGRAMS[0]).parent / "share", self.scratch / "share")
        program = shutil.copy(pathlib.Path(PROGRAMS[0]) / "pandrel-port", self.scratch / "bin")
        done = run_port([pathlib.Path(program).parent], "-o", self.app, CONTROLS,
                        environment=environment)
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertIn("report.html has no pictures: pandrel-view is not installed", done.stderr)
        self.assertEqual({file.name for file in self.app.iterdir()}, Folders.FILES)


if __name__ == "__main__":
    PROGRAMS = sys.argv.pop(1).split(":")
    unittest.main(verbosity=2)
