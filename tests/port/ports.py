# SPDX-License-Identifier: MIT
"""Ports of GIL files for the tests: made, built, run and clicked."""
import ctypes
import pathlib
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "tests" / "view"))

from harness import SECONDS, Viewer, parse_listing  # pylint: disable=wrong-import-position

EXAMPLES = ROOT / "examples"
CORPUS = ROOT.parent / "shared" / "corpus"


def find(programs, name):
    """The program `name` in the list of folders; None when it was not built."""
    for folder in programs:
        file = pathlib.Path(folder, name)
        if file.exists():
            return file
    return None


def run_port(programs, *arguments, environment=None, cwd=None):
    return subprocess.run([str(find(programs, "pandrel-port")), *map(str, arguments)],
                          capture_output=True, text=True, errors="replace", timeout=SECONDS * 4,
                          env=environment, cwd=cwd, check=False)


def build(folder, *arguments):
    """Runs make; returns what it and the compilers said."""
    done = subprocess.run(["make", "-s", "-C", str(folder), *arguments], stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True, errors="replace",
                          timeout=SECONDS * 4, check=False)
    if done.returncode != 0:
        raise AssertionError(f"make failed in {folder}:\n{done.stdout}")
    return done.stdout


class ClientMessage(ctypes.Structure):
    """XClientMessageEvent, in the room of an XEvent."""
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong),
                ("message_type", ctypes.c_ulong), ("format", ctypes.c_int),
                ("data", ctypes.c_long * 5), ("rest", ctypes.c_long * 12)]


# Xlib ends the program at an error unless a function takes it.
ignore_error = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(lambda *_: 0)


def close_window(display_name, window):
    """Sends the window what a window manager sends for "close". The window may be gone by then."""
    xlib = ctypes.CDLL("libX11.so.6")
    xlib.XSetErrorHandler(ignore_error)
    xlib.XOpenDisplay.restype = ctypes.c_void_p
    xlib.XInternAtom.restype = ctypes.c_ulong
    display = ctypes.c_void_p(xlib.XOpenDisplay(display_name.encode()))
    event = ClientMessage(type=33, window=int(window), format=32,
                          message_type=xlib.XInternAtom(display, b"WM_PROTOCOLS", 0))
    event.data[0] = xlib.XInternAtom(display, b"WM_DELETE_WINDOW", 0)
    xlib.XSendEvent(display, ctypes.c_ulong(int(window)), 0, ctypes.c_long(0),
                    ctypes.byref(event))
    xlib.XCloseDisplay(display)


def visible_windows(server):
    """Menus, which have no name, too."""
    return server.xdotool("search", "--onlyvisible", "--maxdepth", 1, "--name", "")


def choose_first_item(server, program, title, button, pause=0.3):
    """Posts a button's menu by a click and clicks on its first item. A busy program needs a longer
    pause until the menu, which is there, takes the click."""
    before = visible_windows(server)
    program.click(title, button)
    end = time.monotonic() + SECONDS
    while visible_windows(server) == before and time.monotonic() < end:
        time.sleep(0.1)
    time.sleep(pause)
    server.xdotool("mousemove_relative", 0, 20, "click", 1)


class Port:
    """A built port whose program runs inside the `with` block."""

    def __init__(self, server, programs, folder, *options, source):
        self.server, self.programs, self.folder = server, programs, pathlib.Path(folder)
        done = run_port(programs, "--no-pictures", "-o", folder, *options, source)
        if done.returncode != 0:
            raise AssertionError(done.stderr)
        self.build()

    def build(self):
        build(self.folder, "CFLAGS=-O0 -g -Wall -Wextra -Werror")

    @property
    def name(self):
        return next(self.folder.glob("*.uil")).stem

    def widgets(self):
        """The widgets with their places, by name. That one reaches out of its window, which the
        viewer's status tells, is no matter here."""
        resources = next(self.folder.glob("*.ad"))
        listing = subprocess.run(
            [str(find(self.programs, "pandrel-view")), "--list", "--all", "--no-fix",
             "--resources", str(resources), str(self.folder / f"{self.name}.uil")],
            check=False, capture_output=True, text=True, timeout=SECONDS,
            env=self.server.environment(self.programs)).stdout
        return {widget.name: widget for widget in parse_listing(listing)}

    def start(self, *arguments, tool=()):
        """Runs the program, by `tool` (a program and its arguments) when one is given."""
        program, *rest = [*tool, self.folder / self.name, *arguments]
        return Viewer(self.server, self.programs, *rest, program=program, folder=self.folder)
