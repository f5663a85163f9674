"""One damaged file through the whole program, and what came of it."""
import hashlib
import math
import os
import pathlib
import re
import shutil
import struct
import subprocess

ENDINGS = {"STEP": "step", "IGES": "igs", "BREP": "brep", "STL": "stl"}
# Longer than any limit of the program's own for files as small as these.
PATIENCE = 300
NOT_FINITE = re.compile(rb"(?<![A-Za-z_])[-+]?(?:nan|inf(?:inity)?)(?![A-Za-z_])", re.I)
TEXTS = re.compile(rb"'(?:[^']|'')*'|\"[^\"]*\"")

# How a trial may end, and how it may not.
GOOD = ("refused", "verified", "differs", "losses", "not verified", "contained crash", "time limit", "memory limit")
BAD = ("program crashed", "never ended", "no reason given", "empty output", "not finite", "left behind", "older output lost",
       "touched outside")


def environment(home):
    kept = {name: value for name, value in os.environ.items() if not name.startswith("XDG_")}
    for name in ("DISPLAY", "WAYLAND_DISPLAY", "LC_ALL", "LC_MESSAGES", "LANGUAGE"):
        kept.pop(name, None)
    return kept | {"HOME": str(home), "LANG": "C.UTF-8"}


def contents(folder):
    """Of every file below the folder: its kind, and a sum over what it holds."""
    found = {}
    for path in sorted(folder.rglob("*")):
        name = str(path.relative_to(folder))
        if path.is_symlink():
            found[name] = os.readlink(path)
        elif path.is_file():
            found[name] = hashlib.sha256(path.read_bytes()).hexdigest()
        else:
            found[name] = "folder"
    return found


def is_finite(file, form):
    data = file.read_bytes()
    if form == "STL" and not data.lstrip().startswith(b"solid"):
        numbers = struct.iter_unpack("<12f2x", data[84:84 + (len(data) - 84) // 50 * 50])
        return all(math.isfinite(number) for triangle in numbers for number in triangle)
    if form == "IGES":
        # Texts carry their length in front.
        data = re.sub(rb"\d+H[^,;]*", b"", data)
    return not NOT_FINITE.search(TEXTS.sub(b"''", data))


def has_content(file, form):
    if form == "STEP":
        return b"CARTESIAN_POINT" in file.read_bytes()
    if form == "IGES":
        return any(line[72:73] == b"D" for line in file.read_bytes().split(b"\n"))
    return file.stat().st_size > (84 if form == "STL" else 0)


def verdict_of(said):
    for line in said.splitlines():
        found = re.match(r"(Verified|Differs|Losses|Not verified)\b", line)
        if found:
            return found.group(1).lower()
    return None


class Trial:
    def __init__(self, folder, program):
        self.folder = pathlib.Path(folder)
        self.program = str(program)
        self.said = ""

    def run(self, data, source, target):
        """Translates the bytes of a file of one format into another. How it ended: one of GOOD or BAD.
        `self.said` has what the program said."""
        shutil.rmtree(self.folder, ignore_errors=True)
        work, outside, home = (self.folder / name for name in ("work", "outside", "home"))
        for one in (work, outside, home):
            one.mkdir(parents=True)
        (outside / "precious").write_bytes(b"not to be touched")
        (outside / ".vmr-precious").mkdir()
        (outside / ".vmr-precious" / "kept").write_bytes(b"nor this")
        given = work / f"in.{ENDINGS[source]}"
        given.write_bytes(data)
        made = work / f"out.{ENDINGS[target]}"
        made.write_bytes(b"an older output")
        before = contents(outside), contents(work)
        command = [self.program, str(given), "-t", target, "-o", str(made)]
        process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                   env=environment(home), cwd=work, start_new_session=True)
        try:
            said, _ = process.communicate(timeout=PATIENCE)
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, 9)
            process.communicate()
            return "never ended"
        self.said = said.decode("utf-8", "replace")
        return self.judge(process.returncode, before, outside, work, made, target)

    def judge(self, status, before, outside, work, made, target):
        if status < 0 or status >= 128:
            return "program crashed"
        after = contents(outside), contents(work)
        if after[0] != before[0] or any(after[1].get(name) != old for name, old in before[1].items() if name != made.name):
            return "touched outside"
        if set(after[1]) - set(before[1]):
            return "left behind"
        if after[1].get(made.name) == before[1][made.name]:
            return self.reason_for_nothing()
        if made.name not in after[1]:
            return "older output lost"
        if not has_content(made, target):
            return "empty output"
        if not is_finite(made, target):
            return "not finite"
        return verdict_of(self.said) or "no reason given"

    def reason_for_nothing(self):
        if re.search(r"translator ended unexpectedly", self.said):
            return "contained crash"
        if "reported nothing new" in self.said:
            return "time limit"
        if re.search(r"needs more memory|out of memory|memory limit", self.said):
            return "memory limit"
        return "refused" if self.gives_reason() else "no reason given"

    def gives_reason(self):
        """A line about one of the files that is neither the frame nor what every translation says."""
        usual = ("File name is", "Reading file", "Writing the translation", "The command line was", "Resource file",
                 "Not verified")
        return any(re.search(r"\b(in|out)\.", line) and not line.startswith(usual) for line in self.said.splitlines())
