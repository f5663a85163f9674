"""The search for faults finds those that were planted, and none in a program without: injection_test.py BUILD"""
import pathlib
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests/torture"))

from injection import Fault
from operation import BAD, Operation, Trials

BUILD = pathlib.Path(sys.argv.pop())
PLANTED = BUILD / "tests/vmr_fault_planted"


def verdicts(fault, family):
    """Those of all faults of the family in the program with that fault of its own, which replaces a file."""
    operation = Operation(fault, (PLANTED, fault, "out"), {}, {"out": b"the old text\n"}, complaint="could not be replaced")
    with tempfile.TemporaryDirectory() as folder:
        trials = Trials(operation, pathlib.Path(folder) / "trial", BUILD / "tests/libvmr_fault_injector.so")
        calls = trials.learn(Fault(family, PLANTED.name, 0)).calls
        found = []
        for number in range(1, calls + 1):
            for forever in (False, True):
                end, verdict = trials.run(Fault(family, PLANTED.name, number, forever))
                assert end.failed == (end.calls - number + 1 if forever else 1)
                found.append(verdict)
        end, verdict = trials.run(Fault(family, PLANTED.name, calls + 1))
        assert (end.failed, verdict) == (0, "done")
        return found


class Search(unittest.TestCase):
    def test_finds_nothing_where_nothing_is_wrong(self):
        for family in ("open", "write", "fsync", "rename"):
            self.assertEqual(verdicts("none", family), ["given up"] * 2, family)

    def test_finds_a_write_whose_failure_is_ignored(self):
        self.assertEqual(verdicts("ignores", "write"), ["older file lost"] * 2)
        self.assertEqual(verdicts("ignores", "open"), ["given up"] * 2)

    def test_finds_a_file_that_is_left_behind(self):
        self.assertEqual(verdicts("leaves", "rename"), ["left behind"] * 2)
        self.assertEqual(verdicts("leaves", "open"), ["given up"] * 2)

    def test_finds_a_crash_for_want_of_memory(self):
        found = verdicts("crashes", "new")
        self.assertGreater(len(found), 0)
        self.assertEqual(set(found), {"program crashed"})
        self.assertEqual(verdicts("crashes", "open"), ["given up"] * 2)

    def test_finds_a_failure_without_a_word(self):
        self.assertEqual(verdicts("keeps silent", "fsync"), ["no reason given"] * 2)

    def test_finds_a_failure_that_the_status_does_not_tell(self):
        self.assertEqual(verdicts("boasts", "fsync"), ["wrong status"] * 2)

    def test_leaves_programs_of_other_names_alone(self):
        operation = Operation("other", (PLANTED, "none", "out"), {}, {"out": b""}, complaint="could not")
        with tempfile.TemporaryDirectory() as folder:
            trials = Trials(operation, pathlib.Path(folder) / "trial", BUILD / "tests/libvmr_fault_injector.so")
            end, verdict = trials.run(Fault("open", "another", 1, True))
        self.assertEqual((end.calls, end.failed, verdict), (0, 0, "done"))

    def test_counts_what_may_not_be_as_bad(self):
        for verdict in ("older file lost", "left behind", "program crashed", "no reason given", "wrong status"):
            self.assertIn(verdict, BAD)


unittest.main()
