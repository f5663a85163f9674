"""Damage that knows IGES files: lines of 80 columns, the directory, the parameters and what they count."""
import re

from damage import ANYWHERE, NUMBERS

NUMBER = re.compile(rb"[-+]?\d+\.?\d*(?:[ED][-+]?\d+)?")


def lines_of(data, section):
    lines = data.split(b"\n")
    return lines, [at for at, line in enumerate(lines) if line[72:73] == section]


def changed_line(data, section, change, random):
    lines, found = lines_of(data, section)
    if not found:
        return None
    at = random.choice(found)
    changed = change(lines[at][:72])
    if changed is None:
        return None
    lines[at] = changed[:72].ljust(72) + lines[at][72:]
    return b"\n".join(lines)


def number_in(text, choose, random):
    found = list(NUMBER.finditer(text))
    if not found:
        return None
    match = random.choice(found)
    return text[:match.start()] + choose(match.group()) + text[match.end():]


def value(data, random):
    """A parameter that is no number, or too large, or the place of another entity."""
    return changed_line(data, b"P", lambda text: number_in(
        text[:64], lambda _: random.choice(NUMBERS).encode(), random), random)


def pointer(data, random):
    """A parameter that points elsewhere: into nothing, to itself, back."""
    _, entries = lines_of(data, b"D")
    target = random.choice([0, -1, 1, 2, len(entries) + 1, 9999999] + list(range(1, len(entries) + 1, 2)))
    return changed_line(data, b"P", lambda text: number_in(text[:64], lambda _: b"%d" % target, random), random)


def directory(data, random):
    """A field of a directory entry."""
    def change(text):
        at = 8 * random.randrange(9)
        word = random.choice([b"", b"0", b"-1", b"1", b"3", b"9999999", b"124", b"128", b"402", b"XXXXXXXX",
                              b"%d" % random.randrange(10000)])
        return text[:at] + word.rjust(8) + text[at + 8:]
    return changed_line(data, b"D", change, random)


def settings(data, random):
    """A parameter of the global section."""
    return changed_line(data, b"G", lambda text: number_in(
        text, lambda _: random.choice(NUMBERS).encode(), random), random)


def line_gone(data, random):
    """A line of any section that is missed."""
    lines = data.split(b"\n")
    del lines[random.randrange(len(lines))]
    return b"\n".join(lines)


def line_twice(data, random):
    """A line of any section that comes again."""
    lines = data.split(b"\n")
    at = random.randrange(len(lines))
    lines.insert(at, lines[at])
    return b"\n".join(lines)


def lines_swapped(data, random):
    """Two lines in each other's place."""
    lines = data.split(b"\n")
    a, b = random.randrange(len(lines)), random.randrange(len(lines))
    lines[a], lines[b] = lines[b], lines[a]
    return b"\n".join(lines)


DAMAGES = [value, value, value, pointer, pointer, pointer, directory, directory, settings, line_gone, line_twice,
           lines_swapped] + ANYWHERE
