# SPDX-License-Identifier: MIT
"""Inputs of extreme size and depth: each converts or ends with its message, in time and memory that
keep to the size of the input."""
import itertools

from harness import check

MEMORY_PER_BYTE = 10

BUTTON = b"XmPushButton{\n"
LABEL = b"XmLabel{\n"
BOARD = b"XmBulletinBoard{\n"


def objects(converter):
    return converter.size(20_000, 1_000_000)


def children(converter):
    """How many there are where each is compared with all: callbacks of one widget, items with an
    action each, members of one group. The UIL compiler gives up beyond about 1,700 children of one
    widget; ten times as many is enough."""
    return converter.size(2_000, 20_000)


def converts(converter, arguments, per_byte=MEMORY_PER_BYTE):
    """Converts what gilgen writes for these arguments, within the memory limit."""
    outcome = converter.convert(arguments)
    outcome.expect_module()
    converter.expect_memory(outcome, per_byte)
    return outcome


def button(name=b"button1", label=b'"Button"'):
    """An interface with one button."""
    return b"((:type :button :name %s :label %s))" % (name, label)


def controls_in_boards(count):
    """How many of `count` objects gilgen makes controls when each 50 have a window and an area."""
    boards, rest = divmod(count, 52)
    return boards * 50 + max(rest - 2, 0)


def owner_chain(converter):
    """Control areas, each in the one before it."""
    count = objects(converter)
    outcome = converts(converter, ["--shape", "owner-chain", "--objects", count])
    outcome.expect_count(BOARD, count)


def owner_chain_reversed(converter):
    """The same with the innermost area first in the file."""
    count = objects(converter)
    outcome = converts(converter, ["--shape", "owner-chain", "--objects", count, "--reversed"])
    outcome.expect_count(BOARD, count)


def menu_chain(converter):
    """Menus, each opened by an item of the next."""
    count = objects(converter)
    outcome = converts(converter, ["--shape", "menu-chain", "--objects", count])
    outcome.expect_count(b"XmPulldownMenu{\n", count - 1)


def group_chain(converter):
    """Groups, each the only member of the next."""
    count = objects(converter)
    outcome = converts(converter, ["--shape", "group-chain", "--objects", count])
    outcome.expect_count(BOARD, count - 3 + 1)


def name_list(converter):
    """A group of a million members that do not exist, and one that does."""
    count = objects(converter)
    outcome = converts(converter, ["--shape", "name-list", "--objects", count],
                       per_byte=20)
    missing = outcome.stdout.count(b"Cannot find group member: missing")
    check(missing == count - 1, f"{missing} missing members reported, expected {count - 1}")
    outcome.expect_count(BOARD, 2)


def members(converter):
    """A group of members that are all in one control area."""
    count = children(converter)
    outcome = converts(converter, ["--shape", "members", "--objects", count])
    outcome.expect_count(BUTTON, count)
    outcome.expect_count(BOARD, 2)


def one_container(converter):
    """A million objects in one container."""
    count = objects(converter)
    outcome = converts(converter, ["--shape", "one-container", "--objects", count])
    outcome.expect_count(LABEL, count - 2)


def same_name(converter):
    """A million widgets that ask for one name: all numbers are given, up to the last."""
    count = objects(converter)
    outcome = converts(converter, ["--shape", "same-name", "--objects", count])
    buttons = controls_in_boards(count)
    outcome.expect_count(BUTTON, buttons)
    outcome.expect_count(b"\nitem:XmPushButton{\n", 1)
    outcome.expect_count(f"\nitem{buttons - 1}:XmPushButton{{\n".encode(), 1)


def same_name_top(converter):
    """The same without any owner."""
    count = objects(converter)
    outcome = converts(converter, ["--shape", "same-name-top", "--objects", count])
    outcome.expect_count(f"\nitem{count - 1}:XmPushButton{{\n".encode(), 1)


def renumber(converter):
    """Names that are taken together with their numbers."""
    count = objects(converter)
    outcome = converts(converter, ["--shape", "renumber", "--objects", count])
    outcome.expect_count(LABEL, controls_in_boards(count))


def button_menus(converter):
    """Every button with a menu of its own."""
    count = objects(converter)
    outcome = converts(converter, ["--shape", "button-menus", "--objects", count])
    menus = outcome.module.read_bytes().count(b"XmPulldownMenu{\n")
    check(menus > count * 0.45, f"only {menus} menus")


def same_menu(converter):
    """Every button with one and the same menu."""
    count = objects(converter)
    converts(converter, ["--shape", "same-menu", "--objects", count])


def missing_menus(converter):
    """Every button with a menu that does not exist."""
    count = objects(converter)
    outcome = converts(converter, ["--shape", "missing-menus", "--objects", count])
    found = outcome.stdout.count(b"Cannot find menu menu")
    check(found == controls_in_boards(count), f"{found} missing menus reported")


def actions(converter):
    """Every button with an action on another."""
    count = objects(converter)
    outcome = converts(converter, ["--shape", "actions", "--objects", count])
    outcome.expect_count(b"XmNactivateCallback = ", controls_in_boards(count))


def procedures(converter):
    """Every button with a procedure of its own."""
    count = objects(converter)
    outcome = converts(converter, ["--shape", "procedures", "--objects", count])
    outcome.expect_count(b"\nprocedure do_button", controls_in_boards(count))


def grouped(converter):
    """Half of the buttons in groups of five."""
    count = objects(converter)
    converts(converter, ["--shape", "grouped", "--objects", count])


def orphans(converter):
    """Every button with an owner that does not exist."""
    count = objects(converter)
    outcome = converts(converter, ["--shape", "orphans", "--objects", count])
    found = outcome.stderr.count(b"Cannot find owner controls")
    check(found == count, f"{found} missing owners reported, expected {count}")


def windows(converter):
    """A million top-level windows."""
    count = objects(converter)
    outcome = converts(converter, ["--shape", "windows", "--objects", count])
    outcome.expect_count(b":TopLevelShell{\n", count)


def list_values(converter):
    """A scrolling list of a million entries."""
    count = objects(converter)
    outcome = converts(converter, ["--shape", "list-values", "--objects", count])
    outcome.expect_count(b"XmNitemCount = %d;" % count, 1)
    outcome.expect_count(b"\"item ", count)


def choices(converter):
    """A setting of a million choices."""
    count = objects(converter)
    outcome = converts(converter, ["--shape", "choices", "--objects", count], per_byte=30)
    outcome.expect_count(b"XmToggleButton{\n", count)


def menu_items(converter):
    """A menu of a million items."""
    count = objects(converter)
    outcome = converts(converter, ["--shape", "menu-items", "--objects", count], per_byte=30)
    outcome.expect_count(BUTTON, count)


def connections(converter):
    """One button that calls many procedures."""
    count = children(converter)
    outcome = converts(converter, ["--shape", "connections", "--objects", count])
    outcome.expect_count(b"\nprocedure call", count)


def item_actions(converter):
    """A menu of many items, each with an action."""
    count = children(converter)

    def chunks(text):
        for start in range(0, count, 1000):
            yield b"".join(text % i for i in range(start, min(start + 1000, count)))

    def blocks():
        yield b"((:type :menu :name m :menu-type :command :menu-item-labels ("
        yield from chunks(b'"c%d" ')
        yield b") :actions ("
        yield from chunks(b'(:from ("c%d") :when (Notify) :to () :function_type CallFunction '
                          b":arg_type () :action (call))")
        yield b"))(:type :button :name b :menu m))"

    outcome = converter.convert(blocks())
    outcome.expect_module()
    outcome.expect_count(BUTTON, count)
    outcome.expect_count(b"XmNactivateCallback = procedure call();\n", count)


def attributes(converter):
    """One object with a million attributes, of which the last counts."""
    count = objects(converter)

    def blocks():
        yield b"((:type :button :name b "
        for start in range(0, count, 1000):
            yield b"".join(b":x %d " % x for x in range(start, start + 1000))
        yield b"))"

    outcome = converter.convert(blocks())
    outcome.expect_module()
    outcome.expect_count(b"XmNx = ", 1)


def realistic(converter):
    """An ordinary interface, only large."""
    count = objects(converter)
    outcome = converts(converter, ["--objects", count])
    check(outcome.stdout.count(b"Cannot find") == 0, "something was not found")


def megabytes_of(text, count):
    """An interface with one button, and text behind it."""
    yield b"((:type :button :name button1)\n"
    block = text * ((1 << 20) // len(text))
    for _ in range(count):
        yield block
    yield b"\n)"


def comments(converter):
    """A stream of comments is read in constant memory."""
    outcome = converter.convert(megabytes_of(b"; " + b"-" * 68 + b"\n", converter.size(4, 1024)))
    outcome.expect_module()
    outcome.expect_count(BUTTON, 1)
    converter.expect_memory(outcome, 0)


def blanks(converter):
    """So is a stream of newlines and blanks."""
    outcome = converter.convert(megabytes_of(b"\n" * 64 + b" " * 64, converter.size(4, 1024)))
    outcome.expect_module()
    converter.expect_memory(outcome, 0)


def blanks_before_long_string(converter):
    """A long token is whole wherever blanks before it put it in the reader's buffer."""
    string = b'"' + b"x" * 9_998 + b'"'
    for count in range(60_000, 200_000, converter.size(7_000, 500)):
        outcome = converter.convert(b"(" + b"\n" * count + b"(:type :button :name b :label " + string +
                                    b"))")
        outcome.expect_module()
        outcome.expect_count(b"XmNlabelString = " + string + b";", 1)


def illegal_characters(converter):
    """Every byte that starts no token is reported and skipped."""
    count = converter.size(100_000, 10_000_000)

    def blocks():
        yield b"((:type :button :name b :x 1))"
        for _ in range(0, count, 10_000):
            yield b"%" * 10_000

    outcome = converter.convert(blocks())
    outcome.expect_module()
    found = outcome.stderr.count(b"Illegal character: %\n")
    check(found == count, f"{found} illegal characters reported, expected {count}")


def dashes(converter):
    """A run of dashes without a digit is no number, however long: each is reported, without looking
    at the rest again for each."""
    run = b"-" * 20_000 + b" "
    outcome = converter.convert(b"((:type :button :name b :x 1))" + run * converter.size(10, 1000))
    outcome.expect_module()


def quotes(converter):
    """A quote that no other closes within the limit ends the run."""
    outcome = converter.convert(b'("' + b"x" * converter.size(100_000, 50_000_000))
    outcome.expect_refusal(1, b"Input string too long, limit 10000\n")


def parentheses(converter):
    """Parentheses do not nest in the grammar: the second too many is a syntax error."""
    outcome = converter.convert(b"(" * converter.size(100_000, 50_000_000))
    outcome.expect_refusal(255, b"Error: Parse error\n")


def string_at_limit(converter):
    """A string of exactly 10,000 bytes, its quotes included, converts."""
    outcome = converter.convert(button(label=b'"%s"' % (b"x" * 9_998)))
    outcome.expect_module()
    outcome.expect_count(b'XmNlabelString = "' + b"x" * 9_998 + b'";', 1)


def string_over_limit(converter):
    """One byte more ends the run."""
    outcome = converter.convert(button(label=b'"%s"' % (b"x" * 9_999)))
    outcome.expect_refusal(1, b"Input string too long, limit 10000\n")


def identifier_at_limit(converter):
    """A name of 10,000 bytes converts, cut like every long name."""
    outcome = converter.convert(button(name=b"x" * 10_000))
    outcome.expect_module()
    outcome.expect_count(b"\n" + b"x" * 30 + b":XmPushButton{\n", 1)


def identifier_over_limit(converter):
    """One byte more ends the run."""
    outcome = converter.convert(button(name=b"x" * 10_001))
    outcome.expect_refusal(1, b"Input string too long, limit 10000\n")


def comment_over_limit(converter):
    """A comment is a token too, however little it means."""
    outcome = converter.convert(itertools.repeat(b";" + b"-" * (1 << 20), converter.size(1, 1024)))
    outcome.expect_refusal(1, b"Input string too long, limit 10000\n")


def interface_names(converter):
    """A project of a million interfaces, none of which can be read."""
    count = objects(converter)
    parts = b"".join(b"part%d.G " % i for i in range(count))
    outcome = converter.convert(b"(:interfaces (%s))" % parts)
    outcome.expect_module()
    found = outcome.stdout.count(b"Cannot open project file part")
    check(found == count, f"{found} unreadable interfaces reported, expected {count}")


def nested_projects(converter):
    """Projects, each named by the one before it."""
    count = converter.size(200, 20_000)
    for i in range(1, count):
        (converter.folder / f"p{i}.P").write_bytes(b"(:interfaces (p%d.P))" % (i + 1))
    (converter.folder / f"p{count}.P").write_bytes(b"((:type :button :name last))")
    outcome = converter.convert(b"(:interfaces (p1.P))")
    outcome.expect_module()
    outcome.expect_count(b"\nlast:XmPushButton{\n", 1)


def project_files(converter):
    """A project of ten thousand files."""
    count = converter.size(200, 10_000)
    converter.generate("--files", count, "--objects", 40, "--directory", converter.folder)
    with open(converter.folder / "project.P", "rb") as project:
        outcome = converter.convert(project)
    outcome.expect_module()
    found = outcome.stdout.count(b"Opening project subfile: part")
    check(found == count, f"{found} files opened, expected {count}")


CASES = [
    owner_chain, owner_chain_reversed, menu_chain, group_chain, name_list, members,
    one_container, same_name, same_name_top, renumber, button_menus, same_menu, missing_menus,
    actions, procedures, grouped, orphans, windows, list_values, choices, menu_items,
    connections, item_actions, attributes, realistic, comments, blanks, blanks_before_long_string,
    illegal_characters, dashes, quotes, parentheses, string_at_limit, string_over_limit,
    identifier_at_limit, identifier_over_limit, comment_over_limit, interface_names,
    nested_projects, project_files,
]
