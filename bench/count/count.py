#!/usr/bin/env python3
"""Counts the instructions of each job of brennet-count and compares them with a committed file.

    count.py [--update] PROGRAM COUNTS

Runs PROGRAM under valgrind's callgrind. Fails if a job takes over 2 % more instructions, or reads
and writes memory over 2 % more often, than COUNTS says, and if the jobs are not those of COUNTS.
With --update, COUNTS is written anew instead. Fails as well if a job named "... 2n K" takes over
2.05 times the instructions of "... n K".

Times differ from run to run; counts of the same machine code do not. What would make them differ
between machines is kept out: processors' own variants of functions, fonts, caches, addresses.
"""

import argparse
import glob
import json
import os
import re
import subprocess
import sys
import tempfile

LIMIT = 1.02
GROWTH_LIMIT = 2.05

FONTS = os.path.join(os.path.dirname(__file__), "..", "..", "tests", "ui", "fonts")
FONTS_CONF = """<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "urn:fontconfig:fonts.dtd">
<fontconfig><dir>{fonts}</dir><cachedir>{folder}/cache</cachedir></fontconfig>
"""

# What newer processors have, and glibc and Qt use where they see it. Without it, all machines run
# the same instructions.
NEWER = ["SSSE3", "SSE4_1", "SSE4_2", "POPCNT", "AVX", "AVX2", "AVX512F", "AVX512VL", "AVX512BW",
         "BMI1", "BMI2", "LZCNT", "MOVBE", "ERMS", "FSRM", "RTM", "FMA", "XSAVEC", "XSAVE"]
NEWER_IN_QT = ["ssse3", "sse4.1", "sse4.2", "avx", "avx2", "f16c", "rdrnd", "bmi", "bmi2",
               "avx512f", "avx512bw", "avx512cd", "avx512dq", "avx512er", "avx512ifma", "avx512pf",
               "avx512vbmi", "avx512vl", "rdseed", "shani", "aes", "movbe", "rtm", "hle"]

# From which sizes on glibc copies in other ways depends on the caches otherwise.
COPIES = {"x86_data_cache_size": 0x8000, "x86_shared_cache_size": 0x100000,
          "x86_non_temporal_threshold": 0xC0000, "x86_rep_movsb_threshold": 0x800,
          "x86_rep_stosb_threshold": 0x800}


def environment(folder):
    """The environment of the program, and nothing of the caller's."""
    tunables = ["glibc.cpu.hwcaps=" + ",".join("-" + name for name in NEWER)]
    tunables += [f"glibc.cpu.{name}={size:#x}" for name, size in COPIES.items()]
    return {"PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8", "TZ": "UTC0", "HOME": folder,
            "TMPDIR": folder, "FONTCONFIG_FILE": os.path.join(folder, "fonts.conf"),
            "GLIBC_TUNABLES": ":".join(tunables), "QT_NO_CPU_FEATURE": " ".join(NEWER_IN_QT),
            "QT_QPA_PLATFORM": "offscreen", "QT_HASH_SEED": "0"}


def run(program, folder):
    """Runs the program under callgrind, which writes a file for each job into the folder."""
    with open(os.path.join(folder, "fonts.conf"), "w", encoding="utf-8") as file:
        file.write(FONTS_CONF.format(fonts=os.path.abspath(FONTS), folder=folder))
    # What fontconfig and the like keep is there before anything is counted.
    command = [os.path.abspath(program)]
    subprocess.run(command, env=environment(folder), check=True)
    # The sizes of the caches are named only because valgrind asks the processor otherwise.
    valgrind = ["valgrind", "--tool=callgrind", "--instr-atstart=no", "--cache-sim=yes",
                "--I1=32768,8,64", "--D1=32768,8,64", "--LL=8388608,16,64",
                f"--callgrind-out-file={folder}/counts", f"--log-file={folder}/log"]
    counted = subprocess.run(valgrind + command, env=environment(folder), check=False)
    if counted.returncode != 0:
        with open(os.path.join(folder, "log"), encoding="utf-8") as log:
            sys.exit(f"count.py: {program} failed under valgrind\n{log.read()}")


def read(folder):
    """The counts of each job that callgrind has written, in the order of the runs."""
    jobs = {}
    names = glob.glob(os.path.join(folder, "counts.*"))
    for name in sorted(names, key=lambda name: int(name.rpartition(".")[2])):
        with open(name, encoding="utf-8") as file:
            text = file.read()
        job = re.search("^desc: Trigger: Client Request: (.*)$", text, re.MULTILINE)
        events = re.search("^events: (.*)$", text, re.MULTILINE)
        totals = re.search("^totals: (.*)$", text, re.MULTILINE)
        if job and events and totals:
            of = dict(zip(events[1].split(), map(int, totals[1].split())))
            jobs[job[1]] = {"instructions": of["Ir"], "data references": of["Dr"] + of["Dw"]}
    return jobs


def count(program):
    with tempfile.TemporaryDirectory(prefix="brennet-count-") as folder:
        run(program, folder)
        return read(folder)


def load(name):
    """The counts of a committed file."""
    with open(name, encoding="utf-8") as file:
        return json.load(file)


def compare(old, new):
    """Prints a line for each job; returns what is wrong, a sentence each."""
    wrong = [f'"{job}" is no job any more.' for job in old if job not in new]
    for job, counts in new.items():
        if job not in old:
            wrong.append(f'"{job}" is a new job.')
            continue
        cells = []
        for what, number in counts.items():
            growth = number / old[job][what]
            cells.append(f"{number:>12,} {what} {growth - 1:+7.2%}")
            if growth > LIMIT:
                wrong.append(f'"{job}" takes {number:,} {what}; {old[job][what]:,} before.')
        print(f"{job:<24}", *cells)
    return wrong


def growth(counts):
    """Prints by how much the work grows with the double of a text; returns what is wrong."""
    wrong = []
    for job in counts:
        name, size = re.fullmatch("(.*?)(?: ([0-9]+) K)?", job).groups()
        double = f"{name} {2 * int(size or 0)} K"
        if double in counts:
            factor = counts[double]["instructions"] / counts[job]["instructions"]
            print(f"{double:<24} {factor:.3f} times the instructions of {job}")
            if factor > GROWTH_LIMIT:
                wrong.append(f'"{double}" takes {factor:.3f} times the instructions of "{job}".')
    return wrong


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--update", action="store_true", help="write COUNTS anew")
    parser.add_argument("program", metavar="PROGRAM")
    parser.add_argument("counts", metavar="COUNTS")
    arguments = parser.parse_args()

    new = count(arguments.program)
    if not new:
        sys.exit("count.py: nothing was counted")
    old = load(arguments.counts) if os.path.exists(arguments.counts) else {}
    grown = growth(new)
    wrong = compare(old, new)
    if grown:
        sys.exit("\n".join(grown))
    if arguments.update:
        with open(arguments.counts, "w", encoding="utf-8") as file:
            json.dump(new, file, indent=2)
            file.write("\n")
    elif wrong:
        sys.exit("\n".join(wrong) + "\nIf that is meant, write the counts anew with"
                 " `make bench-count UPDATE=1`, and say why in the commit.")


if __name__ == "__main__":
    main()
