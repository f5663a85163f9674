"""Damage that every text format can take: it is the same with the same random numbers."""

NUMBERS = ["NaN", "nan", "INF", "-INF", "1e400", "-1e400", "1.E400", "1.D400", "1e308", "-1e308", "1e-400", "0.", "-0.",
           "1e", "--1", "99999999999999999999", "-1", "0", "1", "2147483647", "2147483648", "4294967295", "1e9", "0x10"]


def cut(data, random):
    """Ends the file somewhere."""
    return data[:random.randrange(len(data))]


def flip(data, random):
    """Turns some bits over."""
    changed = bytearray(data)
    for _ in range(random.choice([1, 1, 2, 5, 20])):
        changed[random.randrange(len(changed))] ^= 1 << random.randrange(8)
    return bytes(changed)


def remove(data, random):
    """Takes a piece out."""
    begin = random.randrange(len(data))
    return data[:begin] + data[begin + random.choice([1, 10, 100, 1000, 10000]):]


def repeat(data, random):
    """Says a piece twice."""
    begin = random.randrange(len(data))
    piece = data[begin:begin + random.choice([10, 100, 1000, 10000])]
    return data[:begin] + piece + data[begin:]


def replace_one(data, pattern, choose, random, most=1):
    """Puts choose(found text) in the place of some of what the pattern finds; None when it finds nothing."""
    found = list(pattern.finditer(data))
    if not found:
        return None
    for match in sorted(random.sample(found, min(random.randint(1, most), len(found))), key=lambda one: -one.start()):
        data = data[:match.start()] + choose(match.group()) + data[match.end():]
    return data


ANYWHERE = [cut, flip, remove, repeat]
