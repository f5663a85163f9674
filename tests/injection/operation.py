"""Something that the programs do, tried with faults, and judged by what it leaves behind."""
import dataclasses
import pathlib
import re
import shutil

from injection import run_with
from trial import contents, environment

PATIENCE = 60

# How a run with a fault may end, and how it may not.
GOOD = ("done", "done, and told", "given up")
BAD = ("program crashed", "host crashed", "never ended", "older file lost", "left behind", "touched outside", "no reason given",
       "wrong status", "log incomplete")
# A host that can say nothing any more may well end without a word, but not by a signal.
HOST_CRASH = re.compile(r"ended unexpectedly \(SIG|^ \| SIG", re.M)


@dataclasses.dataclass(frozen=True)
class Operation:
    name: str
    command: tuple    # run in a folder of its own; the first word is the program
    inputs: dict      # name in that folder: bytes
    outputs: dict     # the same for the files that are there before and are replaced
    says_failure: bool = True  # whether the exit status tells a failure
    host: pathlib.Path | None = None  # the program that it starts
    complaint: str = r"."      # what it says when it could not do its work
    log: str | None = None     # a file that gets all that is said

    @property
    def paths(self):
        """The programs that can have a fault: name to path."""
        return {path.name: path for path in (self.command[0], self.host) if path}


class Trials:
    """All trials of one operation, in a folder that each of them gets as new."""

    def __init__(self, operation, folder, library):
        self.operation, self.folder, self.library = operation, pathlib.Path(folder), library
        self.work, self.home = self.folder / "work", self.folder / "home"
        self.complete = None  # the contents of the work folder after a run without a fault

    def prepare(self):
        shutil.rmtree(self.folder, ignore_errors=True)
        for one in (self.work, self.home):
            one.mkdir(parents=True)
        for name, data in (self.operation.inputs | self.operation.outputs).items():
            (self.work / name).write_bytes(data)
        return contents(self.work)

    def run(self, fault):
        """The end of the run, and one of GOOD or BAD."""
        before = self.prepare()
        end = run_with(fault, self.operation.command, self.work, environment(self.home), self.library,
                       self.folder / "record", PATIENCE)
        return end, self.judge(end, before)

    def learn(self, fault):
        """A run without a failure shows what complete outputs are."""
        end, _ = self.run(dataclasses.replace(fault, number=0))
        self.complete = contents(self.work)
        done = all(self.complete.get(name) not in (None, old) for name, old in self.prepare().items()
                   if name in self.operation.outputs)
        if end.status != 0 or not done:
            raise RuntimeError(f"{self.operation.name} fails without a fault, with status {end.status}:\n{end.said}")
        return end

    def judge(self, end, before):
        if end.status is None:
            return "never ended"
        if end.status < 0 or end.status >= 126:
            return "program crashed"
        if self.complete is None:
            return "done"
        after = contents(self.work)
        log = self.operation.log
        if set(after) - set(before) - {log} or any(is_passing(name) for name in contents(self.home)):
            return "left behind"
        if any(after.get(name) != before[name] for name in self.operation.inputs):
            return "touched outside"
        outputs = {name: after.get(name) for name in self.operation.outputs}
        if any(got not in (before[name], self.complete[name]) for name, got in outputs.items()):
            return "older file lost"
        if HOST_CRASH.search(end.said):
            return "host crashed"
        if log and end.status == 0 and not self.log_is_whole(log, end.said):
            return "log incomplete"
        return self.judge_words(end, all(got == self.complete[name] for name, got in outputs.items()))

    def judge_words(self, end, done):
        complains = re.search(self.operation.complaint, end.said) is not None
        if not done and not complains:
            return "no reason given"
        if done and end.status != 0 and not complains or not done and end.status == 0 and self.operation.says_failure:
            return "wrong status"
        return "given up" if not done else "done, and told" if complains else "done"

    def log_is_whole(self, log, said):
        file = self.work / log
        told = any(log in line for line in said.splitlines() if not line.startswith("The command line was"))
        text = file.read_text(errors="replace") if file.exists() else ""
        # What comes on standard error, before the work begins, is not in it.
        return told or text != "" and said.endswith(text)


def is_passing(name):
    """Whether a file of that name is there only while something is written."""
    return any(part.startswith(".vmr-") or part.endswith(".tmp") for part in pathlib.PurePath(name).parts)
