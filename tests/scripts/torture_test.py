#!/usr/bin/env python3
"""That a trial of scripts/torture sees what a program must not do: torture_test.py FOLDER_OF_ITS_MODULES"""
import pathlib
import stat
import sys
import tempfile
import unittest

sys.path.insert(0, sys.argv.pop(1))

import random

import brep_damage
import iges_damage
import step_damage
import stl_damage
from trial import Trial

PROGRAM = """#!{python}
import os, pathlib, shutil, sys
given, output = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[5])
{what}
"""
GOOD_OUTPUT = """output.write_text("#1=CARTESIAN_POINT('INF nan',(0.,1.,2.));")
"""


class Trials(unittest.TestCase):
    def end(self, what, target="STEP"):
        with tempfile.TemporaryDirectory() as folder:
            program = pathlib.Path(folder) / "program"
            program.write_text(PROGRAM.format(python=sys.executable, what=what), encoding="utf-8")
            program.chmod(program.stat().st_mode | stat.S_IXUSR)
            return Trial(pathlib.Path(folder) / "trial", program).run(b"damaged", "STEP", target)

    def test_translation_with_its_verdict(self):
        self.assertEqual(self.end(GOOD_OUTPUT + 'print("Verified: all of it")'), "verified")
        self.assertEqual(self.end(GOOD_OUTPUT + 'print("Losses: 1")'), "losses")
        self.assertEqual(self.end(GOOD_OUTPUT + 'print("Not verified: out")'), "not verified")

    def test_refusal_needs_a_reason(self):
        self.assertEqual(self.end('print(f"{given} is cut off")'), "refused")
        self.assertEqual(self.end('print(f"Reading file {given}")'), "no reason given")

    def test_success_needs_a_verdict(self):
        self.assertEqual(self.end(GOOD_OUTPUT), "no reason given")

    def test_crash_of_the_program(self):
        self.assertEqual(self.end("os.kill(os.getpid(), 11)"), "program crashed")

    def test_contained_crash(self):
        self.assertEqual(self.end('print("The translator ended unexpectedly (signal 11) while reading in.step")'),
                         "contained crash")

    def test_output_without_content(self):
        self.assertEqual(self.end('output.write_text("ISO-10303-21;"); print("Verified")'), "empty output")

    def test_numbers_that_are_not_finite(self):
        self.assertEqual(self.end("""output.write_text("CARTESIAN_POINT('',(INF,0.,0.))"); print("Verified")"""),
                         "not finite")
        self.assertEqual(self.end("""output.write_text("CARTESIAN_POINT('',(-nan,0.,0.))"); print("Verified")"""),
                         "not finite")
        self.assertEqual(
            self.end('output.write_bytes(bytes(80) + bytes([1, 0, 0, 0]) + bytes([0, 0, 0x80, 0x7F]) + bytes(46)); '
                     'print("Verified")', "STL"), "not finite")

    def test_what_is_left_behind(self):
        self.assertEqual(self.end(GOOD_OUTPUT + 'pathlib.Path(".vmr-1").mkdir(); print("Verified")'), "left behind")

    def test_older_output(self):
        self.assertEqual(self.end("output.unlink()"), "older output lost")

    def test_what_is_not_the_programs(self):
        self.assertEqual(self.end('shutil.rmtree("../outside/.vmr-precious")'), "touched outside")
        self.assertEqual(self.end('given.write_text("")'), "touched outside")


STEP = b"DATA;\n#1=CARTESIAN_POINT('',(0.,1.,2.));\n#2=VERTEX_POINT('',#1);\n#3=X(#1,(#1,#2),.T.,3);\nENDSEC;\n"
IGES = b"\n".join([b"1H,,1H;,0.01".ljust(72) + b"G      1", b"     126       1".ljust(72) + b"D      1",
                   b"126,1,1,0,0,1,0,0.,0.,1.,1.;".ljust(72) + b"P      1"]) + b"\n"
BREP = b"CASCADE Topology\nLocations 0\nCurves 1\n1 0 0 0 1 0 0\nTriangulations 0\n"
STL = b"solid x\nfacet normal 0 0 1\nouter loop\nvertex 0 0 0\nendloop\nendfacet\nendsolid x\n"


class Damages(unittest.TestCase):
    def test_each_changes_a_file_that_it_fits(self):
        for module, data in ((step_damage, STEP), (iges_damage, IGES), (brep_damage, BREP), (stl_damage, STL)):
            for damage in module.DAMAGES:
                if damage in (stl_damage.count,):
                    data_for_it = bytes(80) + b"\1\0\0\0" + bytes(50)
                else:
                    data_for_it = data
                changed = [damage(data_for_it, random.Random(seed)) for seed in range(20)]
                self.assertTrue(any(one is not None and one != data_for_it for one in changed), damage.__name__)

    def test_is_the_same_with_the_same_numbers(self):
        for damage in step_damage.DAMAGES:
            self.assertEqual(damage(STEP, random.Random(7)), damage(STEP, random.Random(7)))

    def test_keeps_the_columns_of_iges(self):
        for damage in (iges_damage.value, iges_damage.pointer, iges_damage.directory, iges_damage.settings):
            for seed in range(20):
                changed = damage(IGES, random.Random(seed))
                self.assertTrue(changed is None or all(len(line) in (0, 80) for line in changed.split(b"\n")))


unittest.main()
