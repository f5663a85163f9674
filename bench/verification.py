#!/usr/bin/env python3
"""What it costs to hold an output against its source: bench/verification.py PROGRAM FILE ...

Translates each file to IGES, STEP, BREP and STL without verification and with all of it, in turn, and prints medians,
their ratio, and the largest memory of the translator processes together: pages that they share count once.
"""
import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

RUNS = 7
LOOKS = 3  # at the memory, which is sampled and so now and then caught between two states
FORMATS = ("IGES", "STEP", "BREP", "STL")


def environment(home):
    kept = {name: value for name, value in os.environ.items() if name not in ("DISPLAY", "WAYLAND_DISPLAY")}
    return kept | {"HOME": home}


def command(program, file, translator, verify, folder):
    return [program, file, "-t", translator, "-o", f"{folder}/out.{translator.lower()}", "-res_opt",
            f"vmrOptVerify:{verify}"]


def seconds(words, home):
    begin = time.perf_counter()
    subprocess.run(words, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, stdin=subprocess.DEVNULL,
                   env=environment(home), check=True)
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


def peak_megabytes(words, home):
    process = subprocess.Popen(words, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, env=environment(home))
    peak = 0
    while process.poll() is None:
        peak = max(peak, sum(proportional_set(one) for one in descendants(process.pid)))
        time.sleep(0.01)
    return peak / 1024


def main():
    program, *files = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        for file in files:
            for translator in FORMATS:
                none = command(program, file, translator, "none", folder)
                full = command(program, file, translator, "full", folder)
                seconds(none, folder), seconds(full, folder)
                without, with_all = [], []
                for _ in range(RUNS):
                    without.append(seconds(none, folder))
                    with_all.append(seconds(full, folder))
                a, b = statistics.median(without), statistics.median(with_all)
                memory = [statistics.median(peak_megabytes(words, folder) for _ in range(LOOKS))
                          for words in (none, full)]
                print(f"{pathlib.Path(file).name} to {translator}: {a:.3f} s, verified {b:.3f} s: {b / a - 1:+.0%}; "
                      f"hosts {memory[0]:.0f} MB, verified {memory[1]:.0f} MB: {memory[1] / memory[0]:.2f} times",
                      flush=True)


main()
