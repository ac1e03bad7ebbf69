#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks every row of docs/mapping.md against the converter.

Each row is made into a small interface file, which is converted; what the row's last column says is
looked for in the module. The head of docs/mapping.md tells how a row is read. Every object type and
attribute that the reader knows must stand in some row; so must every event and action of the
converter's own tables, each of whose rows some row of the page must reach.

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
# Sources of events that have a widget; a row for "any other" is tried with those that no other row of its
# event names.
SOURCES = [":base-window", ":popup-window", ":control-area", ":canvas-pane", ":text-pane", ":button", ":message",
           ":text-field", ":slider", ":gauge", ":scrolling-list", ":setting", ":menu"]


class Module:
    """The widgets of a UIL module; commented ones count."""

    def __init__(self, text, said):
        self.text, self.said = text, said
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
            settings = re.sub(r"= procedures \{\n(.*?)\};", lambda calls: "= procedures { "
                              + calls[1].replace("\n", " ") + "};", settings, flags=re.S)
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
    return (f"(:from ({source} ) :when ({event} ) :to ({target} ) "
            f":function_type {kind} :arg_type () :action ({name} ))")


def actions(*each):
    return f":actions ({' '.join(each)})"


class Converter:
    def __init__(self, pandrel, folder):
        self.pandrel, self.folder, self.runs = pandrel, folder, 0
        self.sources = {}  # event: the types that rows of it name
        self.met = set()   # (event, class) that a row has tried

    def module(self, options, gil_type, attributes="", connections=":actions ()", popup=False):
        """The module of the row's object among its companions; no object if the type is none.

        A menu is that of a button, or a popup menu."""
        button = ":label-type :string"
        objects = [
            f"(:type :menu :name s {needed(':menu')})",
            "(:type :base-window :name w :width 400 :height 300)",
            "(:type :popup-window :name d :width 100 :height 100)",
            "(:type :control-area :name dc :owner d :width 100 :height 100)",
            "(:type :control-area :name c :owner w)",
            f"(:type :button :name p1 :owner c :x 0 :y 0 {button})",
            f"(:type :button :name p2 :owner c {button})",
            "(:type :drop-target :name x :owner c)",
        ]
        if gil_type == ":menu":
            # Something must use the menu, or it would not stay.
            user = ":canvas-pane :name user :owner w" if popup else f":button :name user :owner c {button}"
            objects.append(f"(:type {user} :menu o)")
        else:
            objects.insert(0, f"(:type :menu :name m {needed(':menu')})")
        if gil_type:
            owner = "" if gil_type in TOP_LEVEL else ":owner c"
            objects.append(f"(:type {gil_type} :name o {owner} {needed(gil_type, attributes)} {attributes} {connections})")
        gil = ";GIL-3\n(\n" + "\n".join(objects) + "\n)\n"
        # Of two contradicting options the first counts: the row's come in front.
        run = subprocess.run([self.pandrel, *options, "-noreposition", "m.uil"], input=gil.encode(),
                             cwd=self.folder, capture_output=True, timeout=60)
        self.runs += 1
        if run.returncode:
            raise RuntimeError(f"status {run.returncode}: {run.stderr.decode()}\n{gil}")
        return Module((pathlib.Path(self.folder) / "m.uil").read_text(), (run.stdout + run.stderr).decode())


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

    if "function type" in row:
        def make(on):
            connection = action("o", "Notify", spans(row["function type"])[0], spans(row["action"])[0],
                                spans(row["target"])[0])
            return converter.module(options, ":button", "", actions(connection) if on else actions())
    elif "of a button" in row:
        words = spans(row["of a button"])

        def make(on):
            connections = [action("o", event, "CallFunction", name, "o") for event, name in zip(words[::2], words[1::2])]
            return converter.module(options, ":button", "", actions(*connections) if on else actions())
    elif "event" in row:
        event = spans(row["event"])[0]
        sources = [spans(row["source"])] if spans(row["source"]) else [
            [gil_type] for gil_type in SOURCES if gil_type not in converter.sources[event]]
        wrong = []
        for gil_type, *item in sources:
            def make(on, gil_type=gil_type, item=item):
                connection = action(f"o {item[0]}" if item else "o", event, "CallFunction", "f", "o")
                module = converter.module(options, gil_type, " ".join(spans(row["with"])),
                                          actions(connection) if on else actions(), "popup" in row["source"])
                if on:
                    converter.met |= {(event, widget_class) for widget_class in source_classes(module, item)}
                return module
            wrong += [f"{gil_type}: {claim}" for claim in untrue(make, last)]
        return wrong
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


def source_classes(module, item):
    """The classes of what an event may come from: the object, or its items."""
    names = module.children.get("o", ()) if item else ("o", "o1")
    return {module.classes[name] for name in names if name in module.classes}


def untrue(make, last):
    if last.startswith("nothing"):
        given, without = make(True), make(False)
        if given.text != without.text:
            return ["nothing"]
        if (given.said != without.said) != last.startswith("nothing, but a note"):
            return ["no note"] if given.said == without.said else [f"said: {given.said.strip()}"]
        return []
    if last in ("the widget's name", "the widget's place"):
        return []
    module = make(True)
    verdicts = [(claim, holds(module, claim)) for claim in spans(last)]
    if not any(verdict is not None for _, verdict in verdicts):
        return ["the row claims nothing"]
    return [claim for claim, verdict in verdicts if verdict is False]


def unmet_events(met, named):
    """Rows of the converter's table of events that no row of the page reaches, and events of gil(5) without row."""
    source = (ROOT / "src/convert/events.cc").read_text().split("kEvents[] = {")[1].split("\n};")[0]
    table = re.findall(r'\{"(\w+)", "(\w*)",', source)
    reached = set()
    for event, widget_class in met:
        reached.add(next(((e, c) for e, c in table if e == event and c in ("", widget_class)), None))
    manual = (ROOT / "man/gil.5").read_text()
    described = set(re.findall(r"\w+", re.search(r"is an event:\n((?:\.Li [A-Z].*\n)+)", manual).group(1))) - {"Li"}
    return [" ".join(row) for row in table if row not in reached] + sorted(described ^ named)


def unnamed_actions(page):
    """Actions that the converter knows and the page has no row for."""
    known = set(re.findall(r'OsiStrcmp\([^"]*"(\w+)"\)', (ROOT / "src/convert/actions.cc").read_text()))
    known = {word for word in known if not word.startswith("Xm")}
    if not {"Show", "CallFunction"} <= known:
        return ["cannot read src/convert/actions.cc"]
    section = page.split("### Actions")[1].split("###")[0]
    return sorted(known - {word for line in section.splitlines() for word in spans(line)})


def known_words():
    """The object types and attributes in the reader's table of words, with their colons."""
    rows = re.findall(r'^WORD\(\w+, +"([\w-]+)", +(.+?), +([^,]+)\)$', (ROOT / "src/gil/words.def").read_text(), re.M)
    return {":" + text for text, value, word_of in rows if value != "kNoValue" or "kElementType" in word_of}


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
        for _, section, header, cells in rows(page):
            if section == "Events":
                row = dict(zip(header, cells))
                converter.sources.setdefault(spans(row["event"])[0], set()).update(spans(row["source"]))
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
        missing = (sorted(known_words() - mentioned) + unmet_events(converter.met, set(converter.sources))
                   + unnamed_actions(page))
        if missing:
            failures += 1
            print("docs/mapping.md: no row has", ", ".join(missing))
        print(f"{checked} rows checked with {converter.runs} conversions, {failures} failures")
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
