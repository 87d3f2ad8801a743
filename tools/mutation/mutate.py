#!/usr/bin/env -S python3 -B
"""Plants small faults in the sources and looks which of them the tests find.

  tools/mutation/mutate.py [--mutants N] [--seed N] [--jobs N] [--room ROOM] [FOLDER...]

A sample of all mutants of the named folders is drawn: a place in the sources, then one of the
faults that fit there, until so many have been found that compile. The same seed draws the same ones
from a source as long as that does not change. The verdicts are kept in the room (build/mutation): a
further run goes on where the last one ended, and tries survivors again once the tests have changed.
No source of the checkout is written.
"""

import argparse
import collections
import concurrent.futures
import dataclasses
import hashlib
import json
import os
import pathlib
import signal
import sys

from build import Build, BuildError
from mutants import mutants_of
from trial import PROGRAMS, Trials, program_of

CHECKOUT = pathlib.Path(__file__).resolve().parent.parent.parent
ACCEPTED = pathlib.Path(__file__).resolve().parent / "survivors.txt"


def drawn_from(texts, seed):
    """All mutants of the files in a random order, one for each place. What is drawn from one file
    does not depend on the others."""
    places = collections.defaultdict(list)
    for file, text in texts.items():
        for mutant in mutants_of(file, text):
            places[file, mutant.start, mutant.end].append(mutant)

    def lot(place):
        return int.from_bytes(hashlib.sha256(repr((seed, place)).encode()).digest(), "big")

    return [places[place][lot(place) % len(places[place])] for place in sorted(places, key=lot)]


class Results:
    """The verdicts of this run and former ones, each a line of a file."""

    def __init__(self, path):
        self._path = path
        self._rows = {}
        if path.exists():
            for line in path.read_text(encoding="utf-8").splitlines():
                row = json.loads(line)
                self._rows[row["mutant"]] = row

    @staticmethod
    def key(mutant, text):
        content = json.dumps([dataclasses.astuple(mutant), text])
        return hashlib.sha256(content.encode()).hexdigest()[:24]

    def get(self, key, fingerprint):
        """A verdict that still holds, or None."""
        row = self._rows.get(key)
        if row and row["verdict"] == "survived" and row["tests"] != fingerprint:
            return None
        return row

    def add(self, key, fingerprint, verdict, word):
        row = {"mutant": key, "tests": fingerprint, "verdict": verdict, "word": word}
        self._rows[key] = row
        with self._path.open("a", encoding="utf-8") as file:
            file.write(json.dumps(row) + "\n")


def line_of(mutant, text):
    """Where a mutant begins, as "line:column", and the line."""
    begin = text.rfind("\n", 0, mutant.start) + 1
    number = text.count("\n", 0, begin) + 1
    return f"{number}:{mutant.start - begin + 1}", text[begin:].split("\n", 1)[0].strip()


def shown(mutant):
    return " -> ".join(" ".join(part.split()) or "nothing" for part in (mutant.before, mutant.after))


def accepted_reasons():
    """The reasons for survivors that no test can kill: "file | line | change | reason" each."""
    reasons = {}
    for row in ACCEPTED.read_text(encoding="utf-8").splitlines():
        if row and not row.startswith("#"):
            *place, reason = row.rsplit(" | ", 1)
            reasons[place[0]] = reason
    return reasons


def tried_in(verdicts):
    """How many mutants have compiled."""
    return sum(1 for verdict, _ in verdicts.values() if verdict != "not compiled")


def report(verdicts, texts):
    counts = collections.defaultdict(collections.Counter)
    reasons = accepted_reasons()
    survivors = []
    for mutant, (verdict, word) in sorted(verdicts.items()):
        counts[mutant.file.split("/")[0]][verdict] += 1
        if verdict == "survived":
            place, line = line_of(mutant, texts[mutant.file])
            reason = reasons.get(f"{mutant.file} | {line} | {shown(mutant)}", word)
            survivors.append((mutant.file, place, line, shown(mutant), reason))
    for file, place, line, change, reason in survivors:
        print(f"{file}:{place}: {line}\n    {change}" + (f"\n    {reason}" if reason else ""))
    total = sum(counts.values(), collections.Counter())
    print(f"\n{'folder':10}{'mutants':>9}{'killed':>8}{'survived':>10}{'not compiled':>14}{'':>3}killed")
    for folder, count in (*sorted(counts.items()), ("all", total)):
        tried = count["killed"] + count["survived"]
        share = f"{100 * count['killed'] / tried:.1f} %" if tried else "-"
        print(f"{folder:10}{tried:9}{count['killed']:8}{count['survived']:10}"
              f"{count['not compiled']:14}{'':3}{share}")
    explained = sum(1 for *_, reason in survivors if reason)
    print(f"{explained} of {len(survivors)} survivors have a reason")


def run(arguments):
    room = arguments.room.resolve()
    room.mkdir(parents=True, exist_ok=True)
    programs_of = {folder: PROGRAMS[folder] for folder in arguments.folders}
    programs = sorted({program_of(name) for names in programs_of.values() for name in names})
    print(f"Building and running {', '.join(programs)} ...", flush=True)
    build = Build(CHECKOUT, room / "build", programs, arguments.jobs)
    texts = {file: (CHECKOUT / file).read_text(encoding="utf-8")
             for file in build.sources(arguments.folders)}
    trials_room = room / "trials"
    trials_room.mkdir(exist_ok=True)
    trials = Trials(build, trials_room, programs_of)
    fingerprints = {folder: trials.fingerprint(folder) for folder in arguments.folders}
    results = Results(room / "results.jsonl")

    def verdict_on(mutant):
        text = texts[mutant.file]
        key, tests = Results.key(mutant, text), fingerprints[mutant.file.split("/")[0]]
        known = results.get(key, tests)
        if known:
            return known["verdict"], known["word"]
        verdict = trials.of(mutant, text)
        results.add(key, tests, *verdict)
        return verdict

    verdicts = {}
    order = drawn_from(texts, arguments.seed)
    executor = concurrent.futures.ThreadPoolExecutor(arguments.jobs)
    try:
        while missing := min(arguments.mutants - tried_in(verdicts), len(order) - len(verdicts)):
            # Headers last: much has to be compiled for each.
            batch = sorted(order[len(verdicts):len(verdicts) + missing],
                           key=lambda mutant: mutant.file.endswith(".h"))
            for mutant, verdict in zip(batch, executor.map(verdict_on, batch)):
                verdicts[mutant] = verdict
                print(f"{tried_in(verdicts)}/{arguments.mutants} {verdict[0]}: {mutant.file}:"
                      f"{line_of(mutant, texts[mutant.file])[0]}: {shown(mutant)}", flush=True)
    except KeyboardInterrupt:
        print("Interrupted; the next run goes on from here.")
    finally:
        executor.shutdown(cancel_futures=True)
    report(verdicts, texts)


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("folders", nargs="*", default=list(PROGRAMS), metavar="FOLDER",
                        help=", ".join(PROGRAMS))
    parser.add_argument("--mutants", type=int, default=600)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--room", type=pathlib.Path, default=CHECKOUT / "build" / "mutation")
    arguments = parser.parse_args()
    unknown = set(arguments.folders) - set(PROGRAMS)
    if unknown:
        parser.error(f"no such folder: {', '.join(sorted(unknown))}")
    signal.signal(signal.SIGTERM, signal.default_int_handler)
    try:
        run(arguments)
    except (BuildError, RuntimeError) as error:
        sys.exit(f"brennet: {error}")


if __name__ == "__main__":
    main()
