"""Damage that knows STEP files: entities, what they refer to, their numbers and lists."""
import re

from damage import ANYWHERE, NUMBERS, replace_one

ENTITY = re.compile(rb"^#\d+\s*=.*?;\s*$", re.M | re.S)
REFERENCE = re.compile(rb"(?<=[(,])\s*#\d+")
REAL = re.compile(rb"(?<=[(,])\s*-?\d+\.\d*(?:[eE][-+]?\d+)?")
INTEGER = re.compile(rb"(?<=[(,])\s*-?\d+(?=[,)])")
LIST = re.compile(rb"\([^()]*\)")
KIND = re.compile(rb"(?<==)\s*[A-Z_0-9]+")
ENUMERATION = re.compile(rb"\.[A-Z_]+\.")


def real(data, random):
    """A coordinate that is none."""
    return replace_one(data, REAL, lambda _: random.choice(NUMBERS).encode(), random, 3)


def integer(data, random):
    """A count or a degree that lies."""
    return replace_one(data, INTEGER, lambda _: random.choice(NUMBERS).encode(), random, 3)


def dangling(data, random):
    """An entity that is not there."""
    return replace_one(data, REFERENCE, lambda _: b"#%d" % random.randrange(10 ** 6, 10 ** 9), random, 3)


def swapped(data, random):
    """Another entity than was meant; now and then one that leads back."""
    entities = re.findall(rb"^#(\d+)", data, re.M)
    return replace_one(data, REFERENCE, lambda _: b"#" + random.choice(entities), random, 3) if entities else None


def itself(data, random):
    """An entity that refers to itself."""
    def choose(entity):
        number = re.match(rb"#\d+", entity).group()
        return replace_one(entity, REFERENCE, lambda _: number, random) or entity
    return replace_one(data, ENTITY, choose, random)


def absent(data, random):
    """An attribute without a value."""
    return replace_one(data, REFERENCE, lambda _: random.choice([b"$", b"*", b""]), random, 3)


def shorter(data, random):
    """A list that lacks some of its members, or all."""
    def choose(members):
        parts = members[1:-1].split(b",")
        return b"(" + b",".join(parts[:random.randrange(len(parts))]) + b")"
    return replace_one(data, LIST, choose, random)


def longer(data, random):
    """A list that has its members many times."""
    return replace_one(data, LIST, lambda members: b"(" + b",".join([members[1:-1]] * random.choice([2, 3, 1000])) + b")",
                       random)


def nested(data, random):
    """Parentheses in parentheses."""
    deep = random.choice([1, 10, 100000])
    return replace_one(data, LIST, lambda members: b"(" * deep + members + b")" * deep, random)


def twice(data, random):
    """Two entities with one number."""
    return replace_one(data, ENTITY, lambda entity: entity + b"\n" + entity, random, 3)


def gone(data, random):
    """Entities that are missed."""
    return replace_one(data, ENTITY, lambda _: b"", random, 5)


def other_kind(data, random):
    """An entity of another kind."""
    kinds = KIND.findall(data)
    return replace_one(data, KIND, lambda _: random.choice(kinds), random, 2) if kinds else None


def other_value(data, random):
    """Another word of an enumeration."""
    words = ENUMERATION.findall(data) + [b".NOTHING.", b".U."]
    return replace_one(data, ENUMERATION, lambda _: random.choice(words), random, 3)


DAMAGES = [real, real, integer, dangling, dangling, swapped, swapped, itself, absent, shorter, longer, nested, twice, gone,
           other_kind, other_value] + ANYWHERE
