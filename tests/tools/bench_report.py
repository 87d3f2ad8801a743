#!/usr/bin/env -S python3 -B
"""Checks what is made of the output of benchmark programs: bench_report.py CHECKOUT"""

import json
import pathlib
import sys
import tempfile
import unittest

CHECKOUT = pathlib.Path(sys.argv.pop(1)).resolve()
sys.path.insert(0, str(CHECKOUT / "bench" / "report"))

import publish  # noqa: E402
import results  # noqa: E402


def output(times):
    """What Google Benchmark writes with repetitions; times in microseconds."""
    rows = [{"run_name": name, "aggregate_name": aggregate, "real_time": time * factor,
             "time_unit": "us"}
            for name, time in times.items() for aggregate, factor in (("median", 1), ("mean", 9))]
    return json.dumps({"benchmarks": rows})


class Run(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def test_is_read_for_its_medians(self):
        for name, times in (("a.json", {"setDoc/brennet/1MB": 2}),
                            ("b.json", {"openAgain/first/all/iterations:9/manual_time": 3})):
            (self.folder / name).write_text(output(times), encoding="utf-8")
        self.assertEqual(results.read_run(self.folder),
                         {"setDoc/brennet/1MB": 2000.0, "openAgain/first/all": 3000.0})

    def test_tells_the_load_before_it(self):
        self.assertIsNone(results.read_load(self.folder))
        (self.folder / "load").write_text("0.25\n", encoding="utf-8")
        self.assertEqual(results.read_load(self.folder), 0.25)


class Runs(unittest.TestCase):
    def test_are_compared_each_with_itself(self):
        runs = [{"setDoc/brennet/1MB": 40, "setDoc/pugixml/1MB": 100},
                {"setDoc/brennet/1MB": 100, "setDoc/pugixml/1MB": 200},
                {"setDoc/brennet/1MB": 45, "setDoc/pugixml/1MB": 100}]
        row, = results.comparisons(runs)
        self.assertEqual((row["peer"], row["ours_ns"], row["peer_ns"], row["target"], row["met"]),
                         ("pugixml", 45, 100, 0.5, True))
        self.assertAlmostEqual(row["ratio"], 0.45)
        self.assertAlmostEqual(row["spread"], 0.1 / 0.45)

    def test_miss_a_target_that_they_exceed(self):
        row, = results.comparisons([{"setDoc/brennet/1MB": 51, "setDoc/pugixml/1MB": 100}])
        self.assertFalse(row["met"])
        row, = results.comparisons([{"new/brennet/a": 1, "new/other/a": 1}])
        self.assertIsNone(row["met"])

    def test_tell_the_growth_of_each_step(self):
        steps = results.growth([{"scale/read/1024": 10, "scale/read/2048": 20,
                                 "scale/read/8192": 180}])
        self.assertEqual([(step["n"], step["next_n"], step["met"]) for step in steps],
                         [(1024, 2048, True), (2048, 8192, False)])
        self.assertAlmostEqual(steps[1]["growth"], 3)

    def test_tell_what_has_no_peer_or_a_time_to_keep(self):
        rows = results.ours([{"openAgain/brennet/all": 17e6, "openAgain/first/all": 20e6,
                              "openSteps/brennet/a": 1, "openSteps/brennet/b": 3,
                              "setDoc/brennet/1MB": 1, "setDoc/other/1MB": 1}],
                            [{"group": "openAgain", "case": "all"},
                             {"group": "setDoc", "case": "1MB"}])
        self.assertEqual([(row["group"], row["case"], row["met"], row["share"]) for row in rows],
                         [("openAgain", "all", False, None), ("openSteps", "a", None, 0.25),
                          ("openSteps", "b", None, 0.75)])


class Page(unittest.TestCase):
    SUMMARY = results.summary(
        [{"setDoc/brennet/1MB": 4e5, "setDoc/pugixml/1MB": 1e6, "loadLibrary/brennet/all": 3e6,
          "scale/read/1024": 10, "scale/read/2048": 20, "scale/read/4096": 41}], [0.2])

    def test_has_the_table_between_its_lines(self):
        page = publish.replaced("before\n<!-- native -->\nold\n<!-- /native -->\nafter\n", "native",
                                publish.table(self.SUMMARY))
        self.assertTrue(page.startswith("before\n<!-- native -->\n\nRuns: 1, of which the medians count; tasks"))
        self.assertTrue(page.endswith("\n<!-- /native -->\nafter\n"))
        self.assertIn("| setDoc, 1MB | pugixml | 400 us | 1 ms | 0.40 | 0% | 0.5 |\n", page)
        self.assertIn("| loadLibrary, all | 3 ms |  | 0% | 2 ms (missed) |\n", page)
        self.assertIn("| read | 2048 | 4096 | 2.05 | 0% | 2.05 |\n", page)
        self.assertNotIn("old", page)

    def test_without_the_lines_is_refused(self):
        with self.assertRaisesRegex(SystemExit, "no lines <!-- windows -->"):
            publish.replaced("<!-- native -->\n<!-- /native -->\n", "windows", "")


if __name__ == "__main__":
    unittest.main()
