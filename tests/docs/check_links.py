#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Every relative link in the documents leads to a file, and to a heading where it names one.

usage: check_links.py [folder of the installed documents]

Without a folder the documents of the sources are read. In an installed folder a link must stay inside.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]


def anchors(page):
    text = re.sub(r"```.*?```", "", page.read_text(), flags=re.S)
    return {re.sub(r"[^\w -]", "", title.lower()).strip().replace(" ", "-")
            for title in re.findall(r"^#+ (.*)$", text, re.M)}


def main():
    broken = links = 0
    installed = len(sys.argv) > 1
    top = pathlib.Path(sys.argv[1]).resolve() if installed else ROOT
    if installed:
        pages = [*top.rglob("*.md")]
    else:
        pages = [*top.glob("*.md"), *(top / "docs").rglob("*.md"), *(top / "integration").rglob("*.md")]
    if not pages:
        sys.exit(f"no documents in {top}")
    for page in sorted(pages):
        for target in re.findall(r"\]\(([^)\s]+)\)", page.read_text()):
            if re.match(r"[a-z]+:", target):
                continue
            links += 1
            path, _, anchor = target.partition("#")
            file = (page.parent / path).resolve() if path else page
            if not file.exists() or not file.is_relative_to(top) or (anchor and anchor not in anchors(file)):
                broken += 1
                print(f"{page.relative_to(top)}: {target}")
    print(f"{links} links in {len(pages)} pages, {broken} broken")
    sys.exit(1 if broken else 0)


if __name__ == "__main__":
    main()
