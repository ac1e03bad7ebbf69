#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Names, texts and code of a hostile file in C, make, resources and HTML.

usage: hostile_test.py BUILD-FOLDERS [unittest arguments]
"""
import html.parser
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

from ports import ROOT, build, run_port

PROGRAMS = []

TEXTS = ["*/ int evil;", 'a"b', "$(touch PWNED)", "`touch PWNED`", "back\\\\slash\\\\",
         "two\nlines", "</script><script>alert(1)</script>", "tri??/graph", "%s%n", "/* open",
         "'; touch PWNED; '", "caf\xe9 \x9b", "#define x", "ends \\\\"]
NAMES = ["exit", "main", "XtManageChild", "int", "class", "printf", "register", "memcpy", "open",
         "connect", "Widget", "NULL", "bool", "y1", "errno", "true", "a.b"]
CODES = ["exit(0);", "#endif\nint x = ;", "/* open", "it's", "a(); \\\\", "??/", "// x \\\\\n}",
         "*/ } evil", "{ unknown(NULL); }", "exit(0); /* a /* b */", "%:endif", "#if 1\n"]


def quoted(text):
    return '"' + text.replace('"', '\\"') + '"'


def control(index, label, action, function_type):
    place = f"win b{index}"
    return f"""(
 :type :button :name b{index} :owner area :x 10 :y {10 + 22 * index} :width 90 :height 20
 :label {label} :label-type :string :menu nil
 :actions (
  ( :from ({place}) :when (Notify) :to ({place}) :function_type {function_type}
    :arg_type () :action ({action}) )
  ( :from ({place}) :when (Enter) :to ({place}) :function_type {function_type}
    :arg_type () :action ({action}) )
  ( :from ({place}) :when (Notify) :to ({place}) :function_type :user_defined
    :arg_type (:string) :action (SetLabel {label}) )
 )
)
"""


def interface(title, controls):
    return f""";GIL-3
(
( :type :base-window :name win :owner nil :label {title} :width 300 :height 900 )
( :type :control-area :name area :owner win :x 0 :y 0 :width 300 :height 900 )
{"".join(controls)})
"""


class Page(html.parser.HTMLParser):
    """The elements of a page that could run something or fetch something."""

    def __init__(self):
        super().__init__()
        self.risky = []

    def handle_starttag(self, tag, attrs):
        if tag in ("script", "iframe", "object", "embed", "link"):
            self.risky.append(tag)
        for name, value in attrs:
            if name.startswith("on") or (name in ("src", "href") and not re.match(
                    r"data:image/png;base64,|#", value or "")):
                self.risky.append(f"{tag} {name}={value}")


class Hostile(unittest.TestCase):
    def setUp(self):
        self.scratch = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.app = self.scratch / "app"

    def port(self, text):
        source = self.scratch / "evil.G"
        source.write_bytes(text.encode("latin-1"))
        done = run_port(PROGRAMS, "-q", "--no-pictures", "-o", self.app, source)
        self.assertEqual(done.returncode, 0, done.stderr)

    def check(self):
        for compiler in ("gcc", "clang"):
            if shutil.which(compiler):
                said = build(self.app, "-B", f"CC={compiler}",
                             "CFLAGS=-O1 -Wall -Wextra -Werror", "UIL=uil 2>&1 || :")
                self.assertNotIn("warning", said.lower())
        page = Page()
        page.feed((self.app / "report.html").read_text(encoding="utf-8"))
        self.assertEqual(page.risky, [])
        self.assertEqual(list(self.scratch.rglob("PWNED*")), [])

    def test_texts(self):
        self.port(interface(quoted(TEXTS[0]), [
            control(i, quoted(text), f"quit{i}", "CallFunction") for i, text in enumerate(TEXTS)]))
        self.check()

    def test_names_of_functions(self):
        names = NAMES + [quoted(text) for text in TEXTS]
        self.port(interface('"Names"', [
            control(i, '"x"', name, "CallFunction") for i, name in enumerate(names)]))
        self.check()

    def test_names_that_libraries_call(self):
        self.port(interface('"Names"', [
            control(i, '"x"', name, "CallFunction")
            for i, name in enumerate(["dlopen", "uselocale", "XftFontOpen"])]))
        self.check()
        # What the program exports would be called in place of the library's own.
        found = subprocess.run(["nm", "-D", "--defined-only", self.app / "evil"], text=True,
                               capture_output=True, check=True).stdout
        self.assertEqual(re.findall(r" T (\w+)", found), [])

    def test_code(self):
        self.port(interface('"Code"', [
            control(i, '"x"', quoted(code), "ExecuteCode") for i, code in enumerate(CODES)]))
        self.check()

    def test_every_word_of_the_templates_as_a_function(self):
        words = set()
        for file in (ROOT / "port" / "templates").glob("*.[ch].mustache"):
            words.update(re.findall(r"[A-Za-z]\w*", re.sub(r"/\*.*?\*/", "", file.read_text(),
                                                           flags=re.S)))
        words -= {"t", "nil"}
        self.port(interface('"Words"', [
            control(i, '"x"', word, "CallFunction") for i, word in enumerate(sorted(words))]))
        self.check()

    def test_a_name_of_a_file(self):
        source = self.scratch / "$(touch PWNED) '*.G"
        source.write_text(interface('"Name"', []))
        done = run_port(PROGRAMS, "-q", "--no-pictures", "-o", self.app, source)
        self.assertEqual(done.returncode, 0, done.stderr)
        self.check()


if __name__ == "__main__":
    PROGRAMS = sys.argv.pop(1).split(":")
    for tool in ("uil", "make", "gcc"):
        if not shutil.which(tool):
            print(f"skipped: {tool} is not installed")
            sys.exit(77)
    if subprocess.run(["gcc", "-E", "-x", "c", "-"], input="#include <Mrm/MrmAppl.h>\n", text=True,
                      capture_output=True, check=False).returncode != 0:
        print("skipped: the headers of Motif are not installed")
        sys.exit(77)
    unittest.main(verbosity=2)
