#!/usr/bin/env python3
"""What it costs to hold an output against its source: bench/verification.py PROGRAM FILE ...

Translates each STEP file to IGES, STEP, BREP and STL without verification and with all of it, in turn, and prints
medians, their ratio, and the largest memory of the translator processes together: pages that they share count once.
The jobs go to the translator process itself: the program asks ten times a second whether it is done.
"""
import json
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

RUNS = 7
LOOKS = 3  # at the memory, which is sampled and so now and then caught between two states
FORMATS = ("IGES", "STEP", "BREP", "STL")


class Translation:
    def __init__(self, program, file, translator, verify, folder):
        root = pathlib.Path(program).resolve().parent.parent
        self.host = root / "libexec/vmr/vmr-host"

        def side(path, name):
            module = str(root / f"lib/vmr/translators/{name.lower()}.so")
            return {"file": path, "module": module, "format": name, "options": {}}

        output = side(f"{folder}/out.{translator.lower()}", translator)
        output["options"]["vmrOptVerify"] = verify
        self.job = json.dumps({"job": 1, "inputs": [side(str(pathlib.Path(file).resolve()), "STEP")], "output": output})

    def start(self, events=subprocess.DEVNULL):
        process = subprocess.Popen([self.host], stdin=subprocess.PIPE, stdout=events, stderr=subprocess.DEVNULL, text=True)
        process.stdin.write(self.job + "\n")
        process.stdin.flush()
        return process

    @staticmethod
    def end(process):
        # It ends with its job; a closed input would be the user who cancels.
        if process.wait() != 0:
            sys.exit("a translation failed")
        process.stdin.close()

    def verdict(self):
        """What the translation ends with; None where nobody looks at the output."""
        with tempfile.TemporaryFile("w+") as said:
            self.end(self.start(said))
            said.seek(0)
            events = [json.loads(line) for line in said]
        return next((event["verdict"] for event in events if event["event"] == "verdict"), None)

    def seconds(self):
        begin = time.perf_counter()
        self.end(self.start())
        return time.perf_counter() - begin


def descendants(parent):
    found = []
    for entry in pathlib.Path("/proc").glob("[0-9]*"):
        try:
            fields = (entry / "stat").read_text(encoding="utf-8", errors="replace").rsplit(")", 1)[1].split()
        except OSError:
            continue
        if int(fields[1]) == parent:
            found.append(int(entry.name))
            found += descendants(int(entry.name))
    return found


def proportional_set(process):
    try:
        for line in pathlib.Path(f"/proc/{process}/smaps_rollup").read_text(encoding="ascii").splitlines():
            if line.startswith("Pss:"):
                return int(line.split()[1])
    except OSError:
        pass
    return 0


def peak_megabytes(translation):
    process = translation.start()
    peak = 0
    while process.poll() is None:
        processes = [process.pid] + descendants(process.pid)
        peak = max(peak, sum(proportional_set(one) for one in processes))
        time.sleep(0.01)
    translation.end(process)
    return peak / 1024


def main():
    program, *files = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        for file in files:
            for translator in FORMATS:
                none = Translation(program, file, translator, "none", folder)
                full = Translation(program, file, translator, "full", folder)
                if none.verdict() is not None or full.verdict() in (None, "not_verified"):
                    sys.exit(f"{file} to {translator}: what is measured is not what was asked for")
                without, with_all = [], []
                for _ in range(RUNS):
                    without.append(none.seconds())
                    with_all.append(full.seconds())
                a, b = statistics.median(without), statistics.median(with_all)
                memory = [statistics.median(peak_megabytes(one) for _ in range(LOOKS)) for one in (none, full)]
                print(f"{pathlib.Path(file).name} to {translator}: {a:.3f} s, verified {b:.3f} s: {b / a - 1:+.0%}; "
                      f"hosts {memory[0]:.0f} MB, verified {memory[1]:.0f} MB: {memory[1] / memory[0]:.2f} times",
                      flush=True)


main()
