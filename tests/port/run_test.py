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

from ports import CORPUS, EXAMPLES, Port, choose_first_item, close_window, find, run_port

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

    def click_first_item(self, program, title, widget):
        x, y = program.place(title, widget)
        self.server.xdotool("mousemove", x, y + 10 - widget.height // 2, "click", 1)

    def choose(self, program, title, widget, offset, from_left=20):
        """Chooses from an option menu, which posts with the chosen item under the pointer, the item
        `offset` pixels below. The button stands behind the menu's label."""
        x, y = program.place(title, widget, from_left)
        self.server.xdotool("mousemove", x, y, "mousedown", 1)
        time.sleep(0.3)
        self.server.xdotool("mousemove_relative", "--", 0, offset, "sleep", "0.2", "mouseup", 1)
        time.sleep(0.3)

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
        self.click_first_item(program, "Controls", self.places["fruits"])

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
        self.choose(program, "Controls", self.places["mode_option_menu"], 20)
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


class Panels(RunTest):
    """Two panels in one place; what shows the second does not hide the first."""
    TEXT = """;GIL-3
(
( :type :base-window :name win :owner nil :label "Panels" :width 200 :height 200 )
( :type :control-area :name bar :owner win :x 0 :y 0 :width 200 :height 40 )
( :type :button :name turn :owner bar :x 10 :y 10 :width 80 :height 20 :label "Turn"
  :label-type :string :actions (( :from (win turn) :when (Notify) :to (win back)
  :function_type :user_defined :arg_type () :action (Show) )) )
( :type :control-area :name front :owner win :x 0 :y 40 :width 200 :height 160 )
( :type :button :name one :owner front :x 10 :y 10 :width 80 :height 20 :label "One"
  :label-type :string :actions (( :from (win one) :when (Notify) :to (win one)
  :function_type CallFunction :arg_type () :action (first) )) )
( :type :control-area :name back :owner win :x 0 :y 40 :width 200 :height 160
  :initial-state :invisible )
( :type :button :name two :owner back :x 10 :y 10 :width 80 :height 20 :label "Two"
  :label-type :string :actions (( :from (win two) :when (Notify) :to (win two)
  :function_type CallFunction :arg_type () :action (second) )) )
)
"""

    def test_the_shown_one_comes_to_the_front(self):
        source = self.scratch / "panels.G"
        source.write_text(self.TEXT)
        panels = self.port("panels", source=source)
        places = panels.widgets()
        program = self.enterContext(panels.start())
        for widget, called in (("one", "first: called by one"), ("turn", None),
                               ("two", "second: called by two")):
            program.click("Panels", places[widget])
            if called:
                self.assertEqual(program.line(), called)


class Drops(RunTest):
    """A message that can be dragged, and what takes drops: a list, and a target that the conversion
    leaves out."""
    TEXT = """;GIL-3
(
( :type :base-window :name win :owner nil :label "Drops" :width 300 :height 200 )
( :type :control-area :name area :owner win :x 0 :y 0 :width 300 :height 200 )
( :type :message :name note :owner area :x 10 :y 10 :width 80 :height 13 :label "drag me"
  :label-type :string )
( :type :drop-target :name target :owner area :x 200 :y 20 :width 40 :height 40 :label ""
  :label-type :string :actions (( :from (win target) :when (DroppedUpon) :to (win target)
  :function_type CallFunction :arg_type () :action (onTarget) )) )
( :type :scrolling-list :name choices :owner area :x 10 :y 60 :width 120 :height 80 :rows 4
  :label "" :label-type :string :initial-list-values ("a" "b" "c")
  :initial-selections (nil t nil) :multiple-selections nil
  :actions (( :from (win choices) :when (DroppedUpon) :to (win choices)
  :function_type CallFunction :arg_type () :action (onList) )) )
)
"""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        source = cls.scratch / "drops.G"
        source.write_text(cls.TEXT)
        cls.drops = Port(cls.server, PROGRAMS, cls.scratch / "drops", source=source)
        callbacks = cls.drops.folder / "callbacks.c"
        text = callbacks.read_text().replace("(void)call_data;", "")
        for function in ("onTarget", "onList"):
            text = text.replace(
                f'PortStub("{function}", widget);',
                f'printf("{function}: %s\\n", '
                "(char *)((XmSelectionCallbackStruct *)call_data)->value); fflush(stdout);")
        callbacks.write_text(text.replace("#include <Xm/Xm.h>",
                                          "#include <Xm/Xm.h>\n#include <Xm/Transfer.h>", 1))
        cls.drops.build()
        cls.places = cls.drops.widgets()

    def drag(self, program, widget):
        from_x, from_y = program.place("Drops", self.places["note"])
        to_x, to_y = program.place("Drops", self.places[widget])
        self.server.xdotool("mousemove", from_x, from_y, "mousedown", 2)
        for step in range(1, 11):
            self.server.xdotool("mousemove", from_x + (to_x - from_x) * step // 10,
                                from_y + (to_y - from_y) * step // 10, "sleep", "0.05")
        self.server.xdotool("sleep", "0.3", "mouseup", 2)

    def test_functions_get_what_is_dropped(self):
        program = self.enterContext(self.drops.start())
        program.wait_for_window("Drops")
        for widget, function in (("choices", "onList"), ("target", "onTarget")):
            self.drag(program, widget)
            self.assertEqual(program.line(), f"{function}: drag me")

    def test_a_list_starts_with_its_selection(self):
        module = (self.drops.folder / "drops.uil").read_text()
        self.assertIn('XmNselectedItems = string_table("b");', module)
        self.assertIn("XmNselectedItemCount = 1;", module)


class Project(RunTest):
    def test_a_connection_of_the_project_opens_a_dialog_of_another_file(self):
        library = self.port("library", source=EXAMPLES / "library" / "library.P")
        places = library.widgets()
        program = self.enterContext(library.start())
        title = "Library: Catalog"
        # Without a window manager an iconic window is shown, too, and may come last.
        program.wait_for_window("Library: Members")
        self.server.xdotool("windowraise", program.wait_for_window(title))
        choose_first_item(self.server, program, title, places["catalogButton"])
        program.wait_for_window("Library: Lend")


@unittest.skipUnless(CORPUS.is_dir(), "the folder of real interfaces is not there")
class SearchOfDocuments(RunTest):
    MAIN = "Open Look Wais Version 2"
    RESULTS = 'Results of Search for "%s"'
    SOURCES = 'Sources for "%s"'

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.wais = Port(cls.server, PROGRAMS, cls.scratch / "wais", source=CORPUS / "olwais.G")
        cls.places = cls.wais.widgets()

    def start(self, *arguments):
        program = self.enterContext(self.wais.start(*arguments))
        program.wait_for_window(self.MAIN)
        return program

    def test_a_button_calls_its_stub_and_opens_a_dialog(self):
        program = self.start()
        program.click(self.MAIN, self.places["searchButton"])
        self.assertEqual(program.line(), "DoSearch: called by searchButton")
        program.wait_for_window(self.RESULTS)
        self.close(program, self.RESULTS)
        program.wait_for_window(self.RESULTS, shown=False)
        self.assertIsNone(program.process.poll())

    def test_a_list_of_a_dialog_calls_its_function(self):
        # The application fills the list at run time.
        program = self.start("-xrm", "*sourcesList.items: first,second",
                             "-xrm", "*sourcesList.itemCount: 2")
        program.click(self.MAIN, self.places["selectSourcesButton"])
        self.assertEqual(program.line(), "PrepareSources: called by selectSourcesButton")
        self.server.xdotool("windowraise", program.wait_for_window(self.SOURCES))
        self.click_first_item(program, self.SOURCES, self.places["sourcesList"])
        self.assertEqual(program.line(), "DeSelectChosen: called by sourcesList")


@unittest.skipUnless(CORPUS.is_dir(), "the folder of real interfaces is not there")
class Fax(RunTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.fax = Port(cls.server, PROGRAMS, cls.scratch / "fax", source=CORPUS / "faxtool.G")
        cls.places = cls.fax.widgets()

    def start(self):
        program = self.enterContext(self.fax.start())
        program.wait_for_window("Fax Tool")
        return program

    def test_a_stack_settings_choices_enable_and_disable_a_button(self):
        program = self.start()
        button = self.places["add_dir_button"]
        program.click("Fax Tool", button)
        self.assertEqual(program.line(), "add_dir_notify: called by add_dir_button")
        self.choose(program, "Fax Tool", self.places["cover_option_menu"], -17,
                    from_left=104)
        program.click("Fax Tool", button)
        self.assertIsNone(program.line(seconds=1), "the button is insensitive")
        self.choose(program, "Fax Tool", self.places["cover_option_menu"], 17,
                    from_left=104)
        program.click("Fax Tool", button)
        self.assertEqual(program.line(), "add_dir_notify: called by add_dir_button")

    def test_a_dialog_opens_and_its_button_calls(self):
        program = self.start()
        program.click("Fax Tool", self.places["props_button"])
        title = "Fax Tool - Properties"
        self.server.xdotool("windowraise", program.wait_for_window(title))
        program.click(title, self.places["prop_apply_button"])
        self.assertEqual(program.line(), "prop_apply_notify: called by prop_apply_button")
        self.close(program, title)
        program.wait_for_window(title, shown=False)
        self.assertIsNone(program.process.poll())

    def test_a_choice_shows_the_other_half(self):
        program = self.start()
        program.click("Fax Tool", self.places["mode_toggle_b"])
        program.click("Fax Tool", self.places["query_mode_toggle_b1"])
        self.assertEqual(program.line(), "all_jobs_notify: called by query_mode_toggle_b1")


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
