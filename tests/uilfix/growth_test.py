#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Four times the module takes about four times the work.

The measure is the processor time of the fastest of some runs, so that a busy machine changes little;
what it still changes stays far below the time of something that grows with the square.

usage: growth_test.py PANDREL-UILFIX
"""
import math
import resource
import subprocess
import sys
import tempfile

SIZES = (500_000, 2_000_000)
RUNS = 3
MOST = 1.5  # exponent; 1 is linear, 2 the square
HEAD = "module m\n\nprocedure ZoHelpCB();\nprocedure p();\n\n"
OBJECT = """object
{name}:XmPushButton{{
\tcontrols {{
\t\t}};
\targuments {{
\t\tXmNlabelString = {label};
\t\t}};
\tcallbacks {{
\t\tXmNactivateCallback = procedures {{
\t\t\tZoHelpCB("text");
\t\t\tp();
\t\t\t}};
\t\t}};

\t}};

"""


def of_objects(size, name, label='"text"'):
    piece = len(OBJECT.format(name=name(0), label=label))
    return "".join(OBJECT.format(name=name(i), label=label) for i in range(size // piece))


def label_of(size, piece):
    return OBJECT.format(name="a", label='"' + piece * (size // len(piece)) + '"')


CASES = {
    "buttons": lambda size: of_objects(size, lambda i: f"b{i}"),
    "buttons of one name": lambda size: of_objects(size, lambda i: "b"),
    "buttons of bad names": lambda size: of_objects(size, lambda i: f"b.{i}"),
    "line ends in one label": lambda size: label_of(size, "\n"),
    "words in one label": lambda size: label_of(size, "word "),
    "strings that do not end": lambda size: 'object\na:XmLabel{\n\targuments {\n' + '\tx = "\n' * (size // 7),
    "comments that do not end": lambda size: "/* c\n" * (size // 5),
}


def processor_time():
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    return used.ru_utime + used.ru_stime


def seconds(program, text):
    with tempfile.NamedTemporaryFile("w", suffix=".uil") as module:
        module.write(HEAD + text + "end module;\n")
        module.flush()
        times = []
        for _ in range(RUNS):
            before = processor_time()
            subprocess.run([program, "-q", module.name], stdout=subprocess.DEVNULL,
                           stderr=subprocess.DEVNULL, check=False)
            times.append(processor_time() - before)
        return min(times)


def main():
    failed = 0
    for name, make in CASES.items():
        small, large = (seconds(sys.argv[1], make(size)) for size in SIZES)
        exponent = math.log(large / small) / math.log(SIZES[1] / SIZES[0])
        verdict = "FAILED" if exponent > MOST else "ok"
        failed += exponent > MOST
        print(f"{verdict}: {name}: {small:.3f} s, {large:.3f} s, exponent {exponent:.2f}")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
