"""Damage that knows STL files: words of the text form, the count and the triangles of the binary form."""
import re
import struct

from damage import ANYWHERE, NUMBERS, replace_one

REAL = re.compile(rb"(?<=\s)[-+]?\d+(?:\.\d*)?(?:[eE][-+]?\d+)?(?=\s)")
WORD = re.compile(rb"\b(?:solid|facet|normal|outer|loop|vertex|endloop|endfacet|endsolid)\b", re.I)
HEAD = 84
TRIANGLE = 50
BITS = [0x7FC00000, 0x7F800000, 0xFF800000, 0x7F7FFFFF, 0x00000001, 0x80000000, 0xFFFFFFFF]


def is_binary(data):
    return len(data) >= HEAD and len(data) == HEAD + TRIANGLE * struct.unpack_from("<I", data, 80)[0]


def number(data, random):
    """A coordinate that is none."""
    if not is_binary(data):
        return replace_one(data, REAL, lambda _: random.choice(NUMBERS).encode(), random, 3)
    triangles = (len(data) - HEAD) // TRIANGLE
    if triangles == 0:
        return None
    changed = bytearray(data)
    at = HEAD + TRIANGLE * random.randrange(triangles) + 4 * random.randrange(12)
    changed[at:at + 4] = struct.pack("<I", random.choice(BITS))
    return bytes(changed)


def count(data, random):
    """How many triangles there are."""
    if not is_binary(data):
        return None
    true = (len(data) - HEAD) // TRIANGLE
    lie = random.choice([0, 1, true + 1, max(true - 1, 0), 0x7FFFFFFF, 0xFFFFFFFF, random.randrange(2 ** 32)])
    return data[:80] + struct.pack("<I", lie) + data[HEAD:]


def word(data, random):
    """Another word than belongs there."""
    words = [b"solid", b"facet", b"normal", b"vertex", b"endloop", b"endfacet", b"endsolid", b"", b"color"]
    return replace_one(data, WORD, lambda _: random.choice(words), random, 3)


def empty(data, random):
    """Nothing but a head."""
    return random.choice([b"", data[:HEAD], b"solid nothing\nendsolid nothing\n"])


DAMAGES = [number, number, number, count, count, word, empty] + ANYWHERE
