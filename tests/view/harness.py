# SPDX-License-Identifier: MIT
"""An X server of our own, and a running pandrel-view that can be clicked and asked."""
import os
import pathlib
import queue
import re
import signal
import struct
import subprocess
import threading
import time
import zlib

SECONDS = 30
SCREEN = "1024x768x24"


class Server:
    """An Xvfb on a free display, with mwm when asked for. Ends with its `with` block."""

    def __init__(self, *options, window_manager=False):
        self.options = options
        self.window_manager = window_manager
        self.processes = []

    def __enter__(self):
        read, write = os.pipe()
        quiet = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
        # Without -noreset the server starts over whenever its last client leaves (here: each search
        # for a window) and turns away a program that connects in that moment.
        self.processes.append(subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", SCREEN, "-nolisten", "tcp",
             "-noreset", *self.options], pass_fds=[write], **quiet))
        os.close(write)
        with os.fdopen(read) as stream:
            self.display = ":" + stream.readline().strip()
        if self.window_manager:
            self.processes.append(subprocess.Popen(
                ["mwm", "-display", self.display], stdin=subprocess.DEVNULL, **quiet))
            time.sleep(1)
        return self

    def __exit__(self, *_):
        for process in reversed(self.processes):
            process.kill()
            process.wait()

    def environment(self, programs):
        """For a program under this server that finds `programs` (a list of folders) first."""
        path = ":".join([*map(str, programs), os.environ["PATH"]])
        return dict(os.environ, DISPLAY=self.display, PATH=path)

    def xdotool(self, *words):
        done = subprocess.run(["xdotool", *map(str, words)], capture_output=True, text=True,
                              timeout=SECONDS, check=False,
                              env=dict(os.environ, DISPLAY=self.display))
        return done.stdout.split()


class Widget:
    """One line of a listing."""

    LINE = re.compile(r"( *)(\S+): (\S+) (\d+)x(\d+)([+-]\d+)([+-]\d+)(.*)")

    def __init__(self, line):
        match = self.LINE.fullmatch(line)
        if not match:
            raise ValueError(f"not a line of a listing: {line!r}")
        indent, self.name, self.class_name, width, height, x, y, self.rest = match.groups()
        self.depth = len(indent) // 2
        self.width, self.height, self.x, self.y = int(width), int(height), int(x), int(y)
        label = re.search(r'label="((?:[^"\\]|\\.)*)"', self.rest)
        self.label = label.group(1) if label else None

    def has(self, state):
        return state in re.sub(r'"(?:[^"\\]|\\.)*"', '""', self.rest).split()


def parse_listing(text):
    return [Widget(line) for line in text.splitlines()]


class Viewer:
    """A running pandrel-view, or another program with windows. Ends with its `with` block."""

    def __init__(self, server, programs, *arguments, program=None, folder=None):
        self.server = server
        program = program or pathlib.Path(programs[0], "pandrel-view")
        self.process = subprocess.Popen(
            [str(program), *map(str, arguments)], stdout=subprocess.PIPE, stderr=subprocess.PIPE,
            text=True, env=server.environment(programs), cwd=folder)
        self.lines = queue.Queue()
        threading.Thread(target=self._read, daemon=True).start()

    def _read(self):
        for line in self.process.stdout:
            self.lines.put(line.rstrip("\n"))

    def __enter__(self):
        return self

    def __exit__(self, *_):
        # Not killed, so that it can clean up.
        self.process.terminate()
        try:
            self.process.communicate(timeout=SECONDS)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.communicate()

    def wait_for_window(self, title, shown=True):
        """The X window of this title, once it is (or no longer is) on the screen."""
        end = time.monotonic() + SECONDS
        while time.monotonic() < end:
            found = self.server.xdotool("search", "--onlyvisible", "--name", f"^{title}$")
            if bool(found) == shown:
                return found[0] if found else None
            if shown and self.process.poll() is not None:
                raise AssertionError(f"window {title}: the program ended with status "
                                     f"{self.process.returncode}: {self.process.stderr.read()}")
            time.sleep(0.05)
        raise AssertionError(f"window {title}: {'not shown' if shown else 'still shown'}")

    def line(self, seconds=SECONDS):
        """The next line of standard output; None when none comes in time."""
        try:
            return self.lines.get(timeout=seconds)
        except queue.Empty:
            return None

    def listing(self):
        """The widgets on the screen, by name."""
        time.sleep(0.2)  # what was clicked is done by then
        while not self.lines.empty():
            self.lines.get()
        self.process.send_signal(signal.SIGUSR1)
        lines = [self.line()]
        while (more := self.line(0.5)) is not None:
            lines.append(more)
        return {widget.name: widget for widget in parse_listing("\n".join(lines))}

    def place(self, title, widget, from_left=None):
        """The middle of a widget on the screen."""
        window = self.wait_for_window(title)
        text = "\n".join(self.server.xdotool("getwindowgeometry", "--shell", window))
        left, top = (int(re.search(rf"^{axis}=(-?\d+)", text, re.M).group(1)) for axis in "XY")
        across = widget.width // 2 if from_left is None else from_left
        return left + widget.x + across, top + widget.y + widget.height // 2

    def click(self, title, widget, button=1, from_left=None):
        x, y = self.place(title, widget, from_left)
        self.server.xdotool("mousemove", x, y, "click", button)
        time.sleep(0.1)


class Picture:
    """A PNG file as pandrel-view writes it: 8 bits each of red, green and blue."""

    def __init__(self, file):
        data = pathlib.Path(file).read_bytes()
        if data[:8] != b"\x89PNG\r\n\x1a\n":
            raise ValueError("not a PNG file")
        self.width, self.height, depth, color = struct.unpack(">IIBB", data[16:26])
        if (depth, color) != (8, 2):
            raise ValueError("not 8-bit RGB")
        packed = b""
        at = 8
        while at < len(data):
            size, kind = struct.unpack(">I4s", data[at:at + 8])
            if kind == b"IDAT":
                packed += data[at + 8:at + 8 + size]
            at += size + 12
        self.rows = self._unfilter(zlib.decompress(packed))

    def _unfilter(self, raw):
        stride = self.width * 3
        rows = []
        previous = bytes(stride)
        for y in range(self.height):
            kind = raw[y * (stride + 1)]
            row = bytearray(raw[y * (stride + 1) + 1:(y + 1) * (stride + 1)])
            for i in range(stride):
                left = row[i - 3] if i >= 3 else 0
                up = previous[i]
                corner = previous[i - 3] if i >= 3 else 0
                row[i] = (row[i] + self._predict(kind, left, up, corner)) & 255
            rows.append(bytes(row))
            previous = rows[-1]
        return rows

    @staticmethod
    def _predict(kind, left, up, corner):
        if kind == 4:
            guess = left + up - corner
            return min((left, up, corner), key=lambda byte: abs(guess - byte))
        return (0, left, up, (left + up) // 2)[kind]

    def colors(self, x, y, width, height):
        """How many different colours the area has, as far as it lies in the picture."""
        found = set()
        for row in self.rows[max(y, 0):max(y + height, 0)]:
            for column in range(max(x, 0), min(x + width, self.width)):
                found.add(row[column * 3:column * 3 + 3])
        return len(found)
