# SPDX-License-Identifier: MIT
"""What every stress case uses: starting the converter within limits, and judging how it ended."""
import os
import pathlib
import re
import resource
import signal
import subprocess
import tempfile
import threading
import time

GILGEN = str(pathlib.Path(__file__).resolve().parents[2] / "bench/gilgen")
MODULE_END = b"end module;\n\n"
SANITIZER_REPORT = re.compile(
    rb"AddressSanitizer|LeakSanitizer|UndefinedBehaviorSanitizer|runtime error:")
# What a process may hold whatever its input: libraries, buffers, and what it inherits from Python
# before it becomes another program.
BASE_MEMORY = 64 << 20
# With a stack this small, anything that recurses once per object fails at small sizes already.
SMALL_STACK = 256 << 10


class Failure(Exception):
    """The converter did not do what the case asks for."""


class Skip(Exception):
    """The case cannot be tried here; the text says why."""


def check(condition, message):
    if not condition:
        raise Failure(message)


class Outcome:
    """How one run ended."""

    def __init__(self, status, seconds, peak, stdout, stderr, module, input_bytes):
        self.status = status            # the exit status, or minus the signal
        self.seconds = seconds
        self.peak = peak                # bytes resident at most
        self.stdout = stdout            # bytes
        self.stderr = stderr            # bytes
        self.module = module            # path of the output file; it may not exist
        self.input_bytes = input_bytes  # what the generator wrote; None when it was stopped early

    def module_bytes(self):
        return self.module.read_bytes() if self.module.is_file() else b""

    def expect_status(self, *allowed):
        check(self.status in allowed,
              f"status {self.status}, expected {' or '.join(map(str, allowed))}; "
              f"standard error ends {self.stderr[-300:]!r}")

    def expect_module(self):
        """The run converted: status 0 and a module that is written to its end."""
        self.expect_status(0)
        with open(self.module, "rb") as module:
            module.seek(max(os.fstat(module.fileno()).st_size - len(MODULE_END), 0))
            check(module.read() == MODULE_END, "the module does not end with \"end module;\"")

    def expect_refusal(self, status, message):
        """The run ended with this status and this message on either stream, and no module."""
        self.expect_status(status)
        check(message in self.stdout or message in self.stderr,
              f"no {message!r} in {self.stdout[-300:]!r} or {self.stderr[-300:]!r}")
        check(not self.module_bytes().endswith(MODULE_END), "a module was written all the same")

    def expect_count(self, what, count):
        """The module holds `what` exactly `count` times."""
        with open(self.module, "rb") as module:
            found, rest = 0, b""
            while block := module.read(1 << 20):
                block = rest + block
                found += block.count(what)
                rest = block[-(len(what) - 1):] if len(what) > 1 else b""
        check(found == count, f"{found} times {what!r} in the module, expected {count}")


class Converter:
    """The programs and the limits under which the cases run them, and a folder of the case's own."""

    def __init__(self, options, folder):
        self.pandrel = os.path.abspath(options.pandrel)
        self.sanitized = options.sanitized
        self.small = options.size == "small"
        self.limit = (20 if self.small else 120) * (5 if options.sanitized else 1)  # seconds
        self.folder = pathlib.Path(folder)
        self.spent = []  # (seconds, peak, input bytes) of the runs, for the report

    def size(self, small, full):
        """The case's size for this run."""
        return small if self.small else full

    def generate(self, *arguments):
        """The output of gilgen, for inputs small enough to hold."""
        return subprocess.run([GILGEN, *map(str, arguments)], check=True,
                              capture_output=True).stdout

    def convert(self, source, arguments=(), module="module.uil", stdout=None, stderr=None,
                preparation=None, limits=None, small_stack=True, environment=None):
        """Runs the converter in the case's folder and returns its Outcome.

        `source` is what arrives on standard input: bytes, an open file, an iterator of bytes, or a
        list of gilgen's arguments, in which case nothing is stored on the way. `module` is the output
        operand, or None for standard output. `preparation` is called in the child just before the
        program starts."""
        environment = {**os.environ, "ASAN_OPTIONS": "detect_leaks=0:exitcode=99",
                       **(environment or {})}
        command = [self.pandrel, *arguments] + ([str(module)] if module is not None else [])
        limits = dict(limits or {})
        if self.small and small_stack and not self.sanitized:
            limits.setdefault(resource.RLIMIT_STACK, SMALL_STACK)

        def prepare():
            for limit, value in limits.items():
                resource.setrlimit(limit, (value, value))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
            if preparation:
                preparation()

        generator, feeder, stdin = None, None, subprocess.PIPE
        with tempfile.TemporaryFile() as out, tempfile.TemporaryFile() as err:
            if isinstance(source, list):
                generator = subprocess.Popen([GILGEN, "--summary", *map(str, source)],
                                             stdout=subprocess.PIPE, stderr=subprocess.PIPE)
                stdin = generator.stdout
            elif hasattr(source, "fileno"):
                stdin = source
            start = time.monotonic()
            process = subprocess.Popen(command, stdin=stdin, stdout=stdout or out,
                                       stderr=stderr or err, cwd=self.folder, preexec_fn=prepare,
                                       env=environment)
            if generator:
                generator.stdout.close()
            elif stdin is subprocess.PIPE:
                blocks = [source] if isinstance(source, bytes) else source
                feeder = threading.Thread(target=feed, args=(process.stdin, blocks))
                feeder.start()
            late = threading.Event()
            timer = threading.Timer(self.limit, lambda: (late.set(), process.kill()))
            timer.start()
            _, status, usage = os.wait4(process.pid, 0)
            timer.cancel()
            seconds = time.monotonic() - start
            process.returncode = os.waitstatus_to_exitcode(status)
            input_bytes = len(source) if isinstance(source, bytes) else None
            if generator:
                summary = generator.communicate()[1].split()
                if generator.returncode == 0:
                    input_bytes = int(summary[summary.index(b"bytes") + 1])
            if feeder:
                feeder.join()
            out.seek(0)
            err.seek(0)
            outcome = Outcome(process.returncode, seconds, usage.ru_maxrss * 1024, out.read(),
                              err.read(), self.folder / (module or "no module"), input_bytes)
        self.spent.append((seconds, outcome.peak, input_bytes))
        check(not late.is_set(), f"still running after {self.limit} s")
        check(not SANITIZER_REPORT.search(outcome.stderr),
              f"sanitizer report: {outcome.stderr[-2000:].decode(errors='replace')}")
        if outcome.status < 0 or outcome.status >= 128 and outcome.status != 255:
            name = signal.Signals(-outcome.status).name if outcome.status < 0 else outcome.status
            check(outcome.status == -signal.SIGPIPE, f"crashed: {name}")
        return outcome

    def expect_memory(self, outcome, per_input_byte):
        """The run's peak stayed within a base and so many bytes per byte of input."""
        if self.sanitized:
            return
        bound = BASE_MEMORY + per_input_byte * (outcome.input_bytes or 0)
        check(outcome.peak <= bound,
              f"{outcome.peak >> 20} MiB resident for {(outcome.input_bytes or 0) >> 20} MiB of "
              f"input, more than {int(bound) >> 20} MiB")


def feed(pipe, blocks):
    """Writes to the converter until it has had enough."""
    try:
        for block in blocks:
            pipe.write(block)
        pipe.close()
    except BrokenPipeError:
        pass
