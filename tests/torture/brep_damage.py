"""Damage that knows BREP files: words in a row, counts before tables, indices into them."""
import re

from damage import ANYWHERE, NUMBERS, replace_one

WORD = re.compile(rb"(?<=\s)[-+]?\d+(?:\.\d*)?(?:[eE][-+]?\d+)?(?=\s)")
COUNT = re.compile(rb"(?<=[A-Za-z] )\d+(?=\s)")
LINE = re.compile(rb"^.*\n", re.M)


def number(data, random):
    """A number that is none, or too large, or an index out of its table."""
    return replace_one(data, WORD, lambda _: random.choice(NUMBERS).encode(), random, 3)


def count(data, random):
    """How many entries a table has."""
    return replace_one(data, COUNT, lambda _: random.choice(
        [b"0", b"1", b"-1", b"2147483647", b"3100000000", b"1000000000", b"%d" % random.randrange(100)]), random)


def index(data, random):
    """Another entry than was meant."""
    return replace_one(data, WORD, lambda _: b"%d" % random.randrange(200), random, 3)


def line_gone(data, random):
    """A line that is missed."""
    return replace_one(data, LINE, lambda _: b"", random, 3)


def line_twice(data, random):
    """A line that comes again."""
    return replace_one(data, LINE, lambda line: line + line, random, 3)


DAMAGES = [number, number, number, count, count, index, index, line_gone, line_twice] + ANYWHERE
