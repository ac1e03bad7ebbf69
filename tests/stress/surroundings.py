# SPDX-License-Identifier: MIT
"""Failing surroundings: whatever the system refuses, the converter says so and ends with a status
other than 0; it never crashes, and never reports a module as good that is not."""
import os
import resource
import signal
import socket
import subprocess
import threading

from harness import Skip, check

HELLO = b"((:type :button :name hello :label \"Hello\"))"
# Has something to say on both streams: a menu that is missing, a character that is illegal.
CHATTY = b"((:type :button :name hello :menu none) % (:type :button :name other :owner nobody))"
CANNOT_WRITE = 255
PARSE_ERROR = b"Error: Parse error\n"


def close(*descriptors):
    """A preparation that closes descriptors in the child."""
    def preparation():
        for descriptor in descriptors:
            os.close(descriptor)
    return preparation


def expect_complaint(outcome):
    """The run failed and said so."""
    check(outcome.status not in (0,), "status 0 although something failed")
    check(outcome.stderr or outcome.stdout, "not a word about what failed")


def plain_module(converter, source):
    """The module of an undisturbed run."""
    outcome = converter.convert(source, module="plain.uil")
    outcome.expect_module()
    return outcome.module_bytes()


def expect_good_or_refused(outcome, wanted):
    """With status 0 the module is the right one to the last byte."""
    if outcome.status == 0:
        check(outcome.module_bytes() == wanted, "status 0, but the module is not the right one")


def full_disk(converter):
    """The module goes to a full disk."""
    if not os.path.exists("/dev/full"):
        raise Skip("no /dev/full")
    for source in (HELLO, converter.generate("--objects", 2000)):
        outcome = converter.convert(source, module="/dev/full")
        outcome.expect_status(CANNOT_WRITE)
        check(outcome.stderr, "nothing on standard error")


def full_disk_standard_output(converter):
    """The same through standard output."""
    if not os.path.exists("/dev/full"):
        raise Skip("no /dev/full")
    for source in (HELLO, CHATTY, converter.generate("--objects", 2000)):
        with open("/dev/full", "wb") as full:
            outcome = converter.convert(source, module=None, stdout=full)
        outcome.expect_status(CANNOT_WRITE)
        check(outcome.stderr, "nothing on standard error")


def disk_fills_up(converter):
    """There is room for a part of the module only."""
    source = converter.generate("--objects", 2000)
    outcome = converter.convert(
        source, limits={resource.RLIMIT_FSIZE: 20_000},
        preparation=lambda: signal.signal(signal.SIGXFSZ, signal.SIG_IGN))
    outcome.expect_status(CANNOT_WRITE)
    check(outcome.stderr, "nothing on standard error")


def standard_output_closed(converter):
    """No standard output and no output file: the module can go nowhere."""
    for source in (HELLO, CHATTY):
        outcome = converter.convert(source, module=None, preparation=close(1))
        outcome.expect_status(CANNOT_WRITE)
        check(outcome.stderr, "nothing on standard error")


def standard_output_closed_with_file(converter):
    """With an output file the module is whole, and no message strays into it."""
    wanted = plain_module(converter, CHATTY)
    expect_good_or_refused(converter.convert(CHATTY, preparation=close(1)), wanted)


def standard_error_closed(converter):
    """No standard error: again no message strays into the module."""
    wanted = plain_module(converter, CHATTY)
    expect_good_or_refused(converter.convert(CHATTY, preparation=close(2)), wanted)


def both_outputs_closed(converter):
    """Neither stream for messages."""
    wanted = plain_module(converter, CHATTY)
    expect_good_or_refused(converter.convert(CHATTY, preparation=close(1, 2)), wanted)


def standard_input_closed(converter):
    """Reads as an empty input, and not what is just being written."""
    outcome = converter.convert(b"", preparation=close(0))
    outcome.expect_refusal(255, PARSE_ERROR)


def all_streams_closed(converter):
    """Nothing to read from, nothing to write to."""
    outcome = converter.convert(b"", preparation=close(0, 1, 2))
    outcome.expect_status(255)


def standard_input_unreadable(converter):
    """Open for writing only."""
    with open("/dev/null", "wb") as source:
        outcome = converter.convert(source)
    outcome.expect_refusal(255, PARSE_ERROR)


def directory_as_input(converter):
    """A directory opens, but cannot be read."""
    descriptor = os.open(converter.folder, os.O_RDONLY)
    try:
        outcome = converter.convert(b"", preparation=lambda: os.dup2(descriptor, 0))
    finally:
        os.close(descriptor)
    outcome.expect_refusal(255, PARSE_ERROR)


def unopenable_output(converter):
    """A directory, a socket, no such folder, a name too long, a name of no length."""
    with socket.socket(socket.AF_UNIX) as listener:
        listener.bind(str(converter.folder / "socket"))
        for name in (".", "/", "socket", "missing/module.uil", "x" * 300, "module.uil/", ""):
            outcome = converter.convert(HELLO, module=name)
            outcome.expect_status(255)
            check(outcome.stdout == f"Warning: Cannot open file {name} for writing".encode(),
                  f"{outcome.stdout!r} for the output {name!r}")


def read_only_file_system(converter):
    """A place where nobody may create files, not even the superuser."""
    outcome = converter.convert(HELLO, module="/proc/module.uil")
    outcome.expect_status(255)
    check(outcome.stdout == b"Warning: Cannot open file /proc/module.uil for writing",
          f"{outcome.stdout!r}")


def reader_gone(converter):
    """The reader of standard output has left: ends, by the signal or by the failed write."""
    reading, writing = os.pipe()
    os.close(reading)
    try:
        outcome = converter.convert(converter.generate("--objects", 2000), module=None,
                                    stdout=writing)
    finally:
        os.close(writing)
    outcome.expect_status(-signal.SIGPIPE, CANNOT_WRITE)


def missing_interface(converter):
    """An interface that does not exist is reported and skipped; the others convert."""
    (converter.folder / "there.G").write_bytes(HELLO)
    outcome = converter.convert(b"(:interfaces (missing.G there.G))")
    outcome.expect_module()
    check(b"Cannot open project file missing.G for reading\n" in outcome.stdout,
          f"{outcome.stdout!r}")
    outcome.expect_count(b"hello:XmPushButton{", 1)


def unreadable_interface(converter):
    """Without permission; the superuser may read everything, so this runs as nobody."""
    if os.geteuid() != 0:
        identity = None
    elif converter.sanitized:
        raise Skip("the sanitizers' programs may not be readable for another user")
    else:
        identity = 65534
    secret = converter.folder / "secret.G"
    secret.write_bytes(HELLO)
    secret.chmod(0)
    converter.folder.chmod(0o777)
    if identity is not None and not reachable(converter.pandrel, identity, converter.folder):
        raise Skip("the program is out of reach for another user")

    def drop():
        if identity is not None:
            os.setgroups([])
            os.setgid(identity)
            os.setuid(identity)

    outcome = converter.convert(b"(:interfaces (secret.G))", preparation=drop)
    outcome.expect_module()
    check(outcome.stdout == b"Cannot open project file secret.G for reading\n",
          f"{outcome.stdout!r}")


def reachable(program, identity, folder):
    """Whether that user can start the program in that folder."""
    try:
        return subprocess.run([program, "-help"], user=identity, group=identity, extra_groups=[],
                              cwd=folder, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                              check=False).returncode == 0
    except OSError:
        return False


def interface_is_a_directory(converter):
    """Passes the test for reading, opens, and reads as empty."""
    (converter.folder / "folder.G").mkdir()
    outcome = converter.convert(b"(:interfaces (folder.G))")
    outcome.expect_refusal(255, PARSE_ERROR)


def interface_is_a_socket(converter):
    """Passes the test for reading, but cannot be opened."""
    with socket.socket(socket.AF_UNIX) as listener:
        listener.bind(str(converter.folder / "socket.G"))
        outcome = converter.convert(b"(:interfaces (socket.G))")
    outcome.expect_refusal(255, PARSE_ERROR)
    check(b"Error opening project file socket.G\n" in outcome.stdout, f"{outcome.stdout!r}")


def vanishing_interface(converter):
    """The second interface is removed while the first is being read."""
    (converter.folder / "second.G").write_bytes(HELLO)
    os.mkfifo(converter.folder / "first.G")

    def supply():
        with open(converter.folder / "first.G", "wb") as pipe:  # waits for the converter
            os.unlink(converter.folder / "second.G")
            pipe.write(b"((:type :button :name first))")

    supplier = threading.Thread(target=supply, daemon=True)
    supplier.start()
    outcome = converter.convert(b"(:interfaces (first.G second.G))")
    supplier.join(5)
    outcome.expect_module()
    check(b"Cannot open project file second.G for reading\n" in outcome.stdout,
          f"{outcome.stdout!r}")
    outcome.expect_count(b"first:XmPushButton{", 1)


def interface_cut_short(converter):
    """An interface that ends in the middle is a parse error."""
    (converter.folder / "half.G").write_bytes(b"((:type :button :name half")
    outcome = converter.convert(b"(:interfaces (half.G))")
    outcome.expect_refusal(255, PARSE_ERROR)


def folder_removed(converter):
    """The current folder no longer exists."""
    gone = converter.folder / "gone"
    gone.mkdir()

    def vanish():
        os.chdir(gone)
        os.rmdir(gone)

    outcome = converter.convert(HELLO, preparation=vanish)
    outcome.expect_status(255)
    check(outcome.stdout == b"Warning: Cannot open file module.uil for writing",
          f"{outcome.stdout!r}")


def memory_exhausted(converter):
    """At every limit of address space the run either converts or says why it could not."""
    if converter.sanitized:
        raise Skip("the sanitizers reserve more address space than any limit")
    source = converter.generate("--objects", converter.size(5_000, 50_000))
    # A window claimed as a menu makes the searches keep tables of their own.
    source = source.rstrip()[:-1] + b"(:type :canvas-pane :name claims :menu window1)\n" \
        b"(:type :button :name too :menu window1)\n)\n"
    wanted = plain_module(converter, source)
    step = converter.size(512, 128) << 10
    limit, converted = 12 << 20, 0
    while converted < 5:  # a few steps into the range where all is well
        outcome = converter.convert(source, limits={resource.RLIMIT_AS: limit}, small_stack=False)
        if outcome.status == 0:
            converted += 1
            expect_good_or_refused(outcome, wanted)
        else:
            converted = 0
            expect_complaint(outcome)
        limit += step if limit < 64 << 20 else limit // 64
        check(limit < 16 << 30, "no limit is enough")


def few_descriptors(converter):
    """No descriptor is left for the output file."""
    outcome = converter.convert(HELLO, limits={resource.RLIMIT_NOFILE: 3})
    check(outcome.status != 0, "status 0 without an output file")
    check(outcome.stdout or outcome.stderr, "not a word about what failed")


CASES = [
    full_disk, full_disk_standard_output, disk_fills_up, standard_output_closed,
    standard_output_closed_with_file, standard_error_closed, both_outputs_closed,
    standard_input_closed, all_streams_closed, standard_input_unreadable, directory_as_input,
    unopenable_output, read_only_file_system, reader_gone, missing_interface, unreadable_interface,
    interface_is_a_directory, interface_is_a_socket, vanishing_interface, interface_cut_short,
    folder_removed, memory_exhausted, few_descriptors,
]
