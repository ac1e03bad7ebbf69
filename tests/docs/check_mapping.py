#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks every row of docs/mapping.md against the converter.

Each row is made into a small interface file, which is converted; what the row's last column says is
looked for in the module. The head of docs/mapping.md tells how a row is read. Every object type and
attribute that the reader knows must stand in some row.

usage: check_mapping.py [-v] path/to/pandrel
"""
import argparse
import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
PAGE = ROOT / "docs" / "mapping.md"

# What an object of a type needs besides a name, so that it converts at all.
NEEDS = {
    ":message": {":label": '"L"', ":label-type": ":string"},
    ":menu": {":menu-type": ":command", ":menu-item-labels": '("A" "B" )',
              ":menu-item-label-types": "(:string :string )", ":menu-item-states": "(:active :active )"},
    ":setting": {":choices": '("A" "B" )', ":choice-label-types": "(:string :string )"},
}
TOP_LEVEL = {":base-window", ":popup-window", ":menu", ":group"}
# A row of the section for all types is tried with each of these.
ANY_TYPE = [":control-area", ":button", ":message"]


class Module:
    """The widgets of a UIL module; commented ones count."""

    def __init__(self, text):
        self.text = text
        self.classes, self.children, self.settings = {}, {}, {}
        text = "\n".join(re.sub(r"^!(\(ZO\))?", "", line).strip() for line in text.split("\n"))
        text = re.sub(r"^!(\(ZO\))?", "", text, flags=re.M)
        for block in re.finditer(r"^object\n(\w+):(\w+)\{\n(.*?)(?=^object$|^end module;)", text, re.S | re.M):
            name, widget_class, body = block.groups()
            parts = re.search(r"controls \{(.*?)^\};\narguments \{(.*?)^\};\ncallbacks \{(.*)", body, re.S | re.M)
            self.classes[name] = widget_class
            self.children[name] = {line.rstrip(";").split()[-1] for line in parts.group(1).splitlines() if line}
            # A list of several items stands on several lines.
            settings = re.sub(r",\n", ", ", parts.group(2) + parts.group(3))
            self.settings[name] = dict(re.findall(r"^(XmN\w+) = (.*);$", settings, re.M))


def holds(module, claim):
    """Whether a claim of the last column, one span of code, is true of the module."""
    if match := re.fullmatch(r"(\w+) > (\w+)", claim):
        return match[2] in module.children.get(match[1], ())
    if match := re.fullmatch(r"(?:(\w+):)?((?:Xm|Top)\w+)", claim):
        return module.classes.get(match[1] or "o") == match[2]
    if match := re.fullmatch(r"no (XmN\w+)", claim):
        return "o" in module.classes and match[1] not in module.settings["o"]
    if match := re.fullmatch(r"(?:(\w+)\.)?(XmN\w+) = (.*)", claim):
        return module.settings.get(match[1] or "o", {}).get(match[2]) == match[3]
    return None


def spans(cell):
    return re.findall(r"`([^`]+)`", cell)


def needed(gil_type, given=""):
    """The attributes that the type needs and the row does not give itself."""
    own = set(re.findall(r"(?<!\S):[\w-]+", given))
    return " ".join(f"{name} {value}" for name, value in NEEDS.get(gil_type, {}).items() if name not in own)


def action(source, event, kind, name, target):
    return (f":actions ((:from ({source} ) :when ({event} ) :to ({target} ) "
            f":function_type {kind} :arg_type () :action ({name} )))")


class Converter:
    def __init__(self, pandrel, folder):
        self.pandrel, self.folder, self.runs = pandrel, folder, 0

    def module(self, options, gil_type, attributes="", actions=":actions ()"):
        """The module of the row's object among its companions; no object if the type is none."""
        button = ":label-type :string"
        objects = [
            f"(:type :menu :name s {needed(':menu')})",
            "(:type :base-window :name w :width 400 :height 300)",
            "(:type :popup-window :name d :width 100 :height 100)",
            "(:type :control-area :name dc :owner d :width 100 :height 100)",
            "(:type :control-area :name c :owner w)",
            f"(:type :button :name p1 :owner c :x 0 :y 0 {button})",
            f"(:type :button :name p2 :owner c {button})",
        ]
        if gil_type == ":menu":
            # Something must use the menu, or it would not stay.
            objects.append(f"(:type :button :name user :owner c :menu o {button})")
        else:
            objects.insert(0, f"(:type :menu :name m {needed(':menu')})")
        if gil_type:
            owner = "" if gil_type in TOP_LEVEL else ":owner c"
            objects.append(f"(:type {gil_type} :name o {owner} {needed(gil_type, attributes)} {attributes} {actions})")
        gil = ";GIL-3\n(\n" + "\n".join(objects) + "\n)\n"
        # Of two contradicting options the first counts: the row's come in front.
        run = subprocess.run([self.pandrel, *options, "-noreposition", "-quiet", "m.uil"], input=gil.encode(),
                             cwd=self.folder, capture_output=True, timeout=60)
        self.runs += 1
        if run.returncode:
            raise RuntimeError(f"status {run.returncode}: {run.stderr.decode()}\n{gil}")
        return Module((pathlib.Path(self.folder) / "m.uil").read_text())


def rows(page):
    """(section, header, cells) of each table row; | inside code does not divide cells."""
    section, header = None, None
    for number, line in enumerate(page.splitlines(), 1):
        if line.startswith("#"):
            section, header = line.lstrip("# ").strip("`"), None
        elif line.startswith("|"):
            cells = [cell.strip() for cell in line.strip("|").split("|")]
            if header is None:
                header = cells
            elif not set(line) <= set("|- "):
                yield number, section, header, cells


def check(converter, section, header, cells):
    """The claims of a row that are not true."""
    row = dict(zip(header, cells))
    options = " ".join(spans(row.get("options", ""))).split()
    last = row["becomes"]

    if "action" in row:
        def make(on):
            connection = action("o", "Notify", ":user_defined", spans(row["action"])[0], spans(row["target"])[0])
            return converter.module(options, ":button", "", connection if on else ":actions ()")
    elif "event" in row:
        def make(on):
            connection = action("o", spans(row["event"])[0], "CallFunction", "f", "o")
            return converter.module(options, spans(row["source"])[0], " ".join(spans(row["with"])),
                                    connection if on else ":actions ()")
    elif "GIL type" in row:
        def make(on):
            return converter.module(options, spans(row["GIL type"])[0] if on else None, " ".join(spans(row["with"])))
    elif section == "All types":
        wrong = []
        given = spans(row["attribute"])
        for gil_type in ANY_TYPE[:1] if ":menu m" in given else ANY_TYPE:
            def make(on, gil_type=gil_type):
                return converter.module(options, gil_type, " ".join(given) if on else "")
            wrong += [f"{gil_type}: {claim}" for claim in untrue(make, last)]
        return wrong
    else:
        def make(on):
            return converter.module(options, section, " ".join(spans(row["attribute"])) if on else "")
    return untrue(make, last)


def untrue(make, last):
    if last.startswith("nothing"):
        return [] if make(True).text == make(False).text else ["nothing"]
    if last in ("the widget's name", "the widget's place"):
        return []
    module = make(True)
    verdicts = [(claim, holds(module, claim)) for claim in spans(last)]
    if not any(verdict is not None for _, verdict in verdicts):
        return ["the row claims nothing"]
    return [claim for claim, verdict in verdicts if verdict is False]


def known_words():
    """The object types and attributes that the reader's tables hold, with their colons."""
    keywords = dict((token, text) for text, token in
                    re.findall(r'\{"([\w-]+)", (\w+)\}', (ROOT / "src/gil/keywords.cc").read_text()))
    forms = (ROOT / "src/gil/attribute_forms.cc").read_text().split("kAttributes[] = {")[1].split("\n};")[0]
    words = re.findall(r"\{k\w+, (\w+)\}", forms)
    manual = (ROOT / "man/gil.5").read_text()
    types = re.search(r"\.Ss Types\n(.*?)\.Ss", manual, re.S).group(1)
    return {":" + keywords[word] for word in words} | set(re.findall(r":[a-z-]+", types))


def main():
    arguments = argparse.ArgumentParser()
    arguments.add_argument("-v", action="store_true")
    arguments.add_argument("pandrel", type=pathlib.Path)
    given = arguments.parse_args()

    page = PAGE.read_text()
    failures = checked = 0
    mentioned = set()
    with tempfile.TemporaryDirectory() as folder:
        converter = Converter(given.pandrel.resolve(), folder)
        for number, section, header, cells in rows(page):
            mentioned |= set(re.findall(r":[\w-]+", " ".join(cells[:-1]) + " :" + section.strip(":")))
            if section == "Projects":
                continue
            try:
                wrong = check(converter, section, header, cells)
            except RuntimeError as error:
                wrong = [str(error)]
            checked += 1
            if wrong:
                failures += 1
                print(f"docs/mapping.md:{number}: not so: {'; '.join(wrong)}")
            elif given.v:
                print(f"docs/mapping.md:{number}: ok")
        missing = known_words() - mentioned
        if missing:
            failures += 1
            print("docs/mapping.md: no row has", " ".join(sorted(missing)))
        print(f"{checked} rows checked with {converter.runs} conversions, {failures} failures")
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
