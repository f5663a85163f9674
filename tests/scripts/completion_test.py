"""Asks the program of the first argument, which knows the grammar of command lines, what may come next, and the scripts
in the folder of the second, which ask it for the shells."""
import os
import pathlib
import shutil
import subprocess
import sys
import unittest

PROGRAM, SCRIPTS = sys.argv[1:3]
del sys.argv[1:3]

# In place of what the package of completions for bash has; it needs a terminal.
BASH = """
_init_completion() { words=("${COMP_WORDS[@]}"); cword=$COMP_CWORD; cur=${words[cword]}; }
_filedir() { COMPREPLY+=("files:$1"); }
__ltrim_colon_completions() { :; }
source "$1"
shift
COMP_WORDS=("$@")
COMP_CWORD=$(($# - 1))
COMPREPLY=()
"$(complete -p "${1##*/}" | sed 's/.* -F \\([^ ]*\\) .*/\\1/')"
printf '%s\\n' "${COMPREPLY[@]}"
"""


def after(line):
    return subprocess.run([PROGRAM, *line.split()], capture_output=True, text=True, check=True).stdout.splitlines()


def options_after(line):
    return {row.split()[1].split(":")[0] for row in after(line) if ":" in row}


def bash_after(*words):
    """What bash offers for the last of the words."""
    prefix = pathlib.Path(PROGRAM).resolve().parents[2]
    call = ["bash", "-c", BASH, "bash", os.path.join(SCRIPTS, "vmr.bash"), str(prefix / "bin" / words[0]), *words[1:]]
    return subprocess.run(call, capture_output=True, text=True, check=True).stdout.splitlines()


class Completion(unittest.TestCase):
    def test_input_options_are_those_with_an_effect_on_reading(self):
        self.assertEqual(options_after("a.stl -t STEP -res_opt"),
                         {"stlReadMergeTolerance", "stlReadUnit", "vmrOptProcessSurfaces", "vmrOptProcessWireframe"})
        self.assertNotIn("vmrOptVerify", options_after("a.step -t STEP -res_opt"))
        self.assertIn("stepReadNames", options_after("a.step -t STEP -res_opt"))
        self.assertNotIn("vmrTolCurveOnSurface3d", options_after("a.step -t STEP -res_opt"))
        self.assertIn("vmrTolCurveOnSurface3d", options_after("a.brep -t STEP -res_opt"))

    def test_output_options_are_those_of_the_output(self):
        offered = options_after("a.step -t STL -o b.stl -res_opt")
        self.assertLessEqual({"stlAngularDeflection", "vmrOptOutputUnits", "vmrOptVerify", "vmrTolTriangulate3d"}, offered)
        self.assertFalse([name for name in offered if "Read" in name or name.startswith("step")])

    def test_resource_file_of_the_output_comes_directly_behind_it(self):
        self.assertIn("word stl.rsc", after("a.step -t STL -o b.stl -r"))
        self.assertNotIn("word stl.rsc", after("a.step -t STL -o b.stl -w -r"))
        self.assertNotIn("files rsc", after("a.step -t STL -o b.stl -w -r"))

    def test_comparisons_take_two_files_and_options_in_any_order(self):
        self.assertIn("files", after("--compare"))
        self.assertIn("files", after("--compare --json a.stp --relative 0.1"))
        self.assertNotIn("files", after("--compare a.stp --json b.stl"))
        self.assertIn("word --no-colours", after("--compare a.stp b.stl"))
        self.assertEqual(after("--compare a.stp --relative"), [])
        self.assertEqual(after("--compare a.stp --timeout"), [])
        self.assertIn("word --timeout", after("--compare a.stp"))
        self.assertIn("files", after("--compare a.stp --timeout 60"))
        self.assertIn("word STL", after("--compare a.stp --format-a"))
        self.assertIn("word stlReadUnit:in", after("--compare a.stp b.stl --option-b"))
        self.assertNotIn("word stlReadUnit:in", after("--compare a.stp b.stl --option-a"))
        self.assertIn("word stlReadUnit:in", after("--compare --format-a stl a.txt --option-a"))
        self.assertFalse([name for name in options_after("--compare a.stp b.stl --option-b") if "Write" in name])

    def test_bash_offers_what_may_come_next_for_both_programs(self):
        self.assertEqual(bash_after("vmr", "-h"), ["-help"])
        self.assertIn("files:", bash_after("vmr", ""))
        self.assertEqual(bash_after("vmr", "a.stp", "-t", "IG"), ["IGES"])
        self.assertEqual(bash_after("vmr", "a b.stp", "-t", "IGES", "-o", "a"), ["a\\ b.igs", "files:"])
        self.assertEqual(bash_after("vmr-compare", "--q"), ["--quiet"])
        self.assertIn("files:", bash_after("vmr-compare", "a.stp", ""))
        self.assertEqual(bash_after("vmr-compare", "a.stp", "b.stl", "--format-a", "ST"), ["STEP", "STL"])

    @unittest.skipUnless(shutil.which("zsh"), "there is no zsh")
    def test_zsh_understands_its_script(self):
        script = os.path.join(SCRIPTS, "vmr.zsh")
        self.assertEqual(subprocess.run(["zsh", "-n", script], capture_output=True, check=False).stderr, b"")


if __name__ == "__main__":
    unittest.main()
