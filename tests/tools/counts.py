#!/usr/bin/env -S python3 -B
"""Checks the comparison of counted instructions: counts.py CHECKOUT"""

import contextlib
import io
import pathlib
import re
import sys
import tempfile
import unittest

CHECKOUT = pathlib.Path(sys.argv.pop(1)).resolve()
sys.path.insert(0, str(CHECKOUT / "bench" / "count"))

import count  # noqa: E402


def counts(instructions, references=10_000):
    return {"instructions": instructions, "data references": references}


def silently(function, *arguments):
    with contextlib.redirect_stdout(io.StringIO()):
        return function(*arguments)


class Comparison(unittest.TestCase):
    def test_allows_two_percent(self):
        self.assertEqual(silently(count.compare, {"load": counts(10_000)},
                                  {"load": counts(10_200, 10_200)}), [])

    def test_names_the_job_that_takes_more(self):
        wrong = silently(count.compare, {"load": counts(10_000), "save": counts(10_000)},
                         {"load": counts(10_201), "save": counts(9_000, 10_300)})
        self.assertEqual(wrong, ['"load" takes 10,201 instructions; 10,000 before.',
                                 '"save" takes 10,300 data references; 10,000 before.'])

    def test_knows_all_jobs(self):
        wrong = silently(count.compare, {"load": counts(1)}, {"save": counts(1)})
        self.assertEqual(wrong, ['"load" is no job any more.', '"save" is a new job.'])


class Growth(unittest.TestCase):
    def test_may_be_linear(self):
        self.assertEqual(silently(count.growth, {"parse 2 K": counts(100), "parse 4 K": counts(205),
                                                 "load": counts(1)}), [])

    def test_may_not_be_more(self):
        self.assertEqual(silently(count.growth, {"parse 2 K": counts(100),
                                                 "parse 4 K": counts(206)}),
                         ['"parse 4 K" takes 2.060 times the instructions of "parse 2 K".'])

    def test_is_only_seen_between_a_size_and_its_double(self):
        self.assertEqual(silently(count.growth, {"parse 2 K": counts(1), "parse 8 K": counts(9),
                                                 "decode 4 K": counts(9)}), [])


class FilesOfCallgrind(unittest.TestCase):
    def test_are_read_in_the_order_of_the_runs(self):
        with tempfile.TemporaryDirectory() as folder:
            for number, job in ((10, "save"), (9, "load")):
                pathlib.Path(folder, f"counts.{number}").write_text(
                    f"desc: Trigger: Client Request: {job}\nevents: Ir Dr Dw I1mr\n"
                    f"totals: {number} 20 3 4\n", encoding="utf-8")
            pathlib.Path(folder, "counts.11").write_text(
                "desc: Trigger: Program termination\nevents: Ir\ntotals: 1\n", encoding="utf-8")
            read = count.read(folder)
        self.assertEqual(list(read.items()), [("load", counts(9, 23)), ("save", counts(10, 23))])


class TheCommittedFile(unittest.TestCase):
    def test_has_each_job(self):
        self.assertEqual(set(count.load(CHECKOUT / "bench" / "counts.json")),
                         set(jobs_of_the_program()))


def jobs_of_the_program():
    """The texts in quotes that name jobs in the sources."""
    for source in sorted((CHECKOUT / "bench" / "count").glob("*Jobs.cpp")):
        for call in re.findall(r"(?:countAgain|countTexts|Count count)\(([^;{\[]*)",
                               source.read_text(encoding="utf-8")):
            yield from re.findall('"([^"]+)"', call)


if __name__ == "__main__":
    unittest.main()
