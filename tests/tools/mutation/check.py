#!/usr/bin/env -S python3 -B
"""Checks the mutation of sources: check.py CHECKOUT"""

import pathlib
import shutil
import sys
import tempfile
import unittest

CHECKOUT = pathlib.Path(sys.argv.pop(1)).resolve()
HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(CHECKOUT / "tools" / "mutation"))

import mutate  # noqa: E402
from build import Build  # noqa: E402
from mutants import Mutant, mutants_of  # noqa: E402
from trial import Trials  # noqa: E402

# The line of the sample, the text there, and the text that replaces it.
EXPECTED = [
    (12, "unit >= u'a' && unit <= u'z'", "!(unit >= u'a' && unit <= u'z')"),
    (12, ">=", "<"), (12, ">=", ">"), (12, "u'a'", "u'b'"), (12, "&&", "||"),
    (12, "<=", "<"), (12, "<=", ">"), (12, "u'z'", "u'{'"),
    (16, "const Error error = look()", "const Error error = look(); !error"), (16, "0", "1"),
    (17, "!", ""),
    (18, "static_cast<void>(other.close());", ";"),
    (19, "else {\n    other.count += 0x1F;\n  }", ""),
    (20, "other.count += 0x1F;", ";"), (20, "+=", "-="), (20, "0x1F", "0"), (20, "0x1F", "0x20"),
    (23, "0", "1"), (23, "<", "<="), (23, "<", ">="), (23, "size()", "size() - 1"),
    (23, "++", "--"),
    (24, "isLetter(i)", "!(isLetter(i))"), (24, "continue;", ";"),
    (26, "other.isThere", "!(other.isThere)"), (26, "other.isThere ? find(copy) : 7U", "{}"),
    (26, "7U", "0U"), (26, "7U", "8U"),
]


class MutantsOfASource(unittest.TestCase):
    maxDiff = None

    def test_are_these(self):
        text = (HERE / "sample.txt").read_text(encoding="utf-8")
        found = [(text.count("\n", 0, m.start) + 1, m.before, m.after)
                 for m in mutants_of("sample.cpp", text)]
        self.assertEqual(sorted(found), sorted(EXPECTED))

    def test_are_replaced_where_they_stand(self):
        self.assertEqual(Mutant("a.cpp", 2, 3, "<", ">=").applied_to("a < b"), "a >= b")


class TheOrder(unittest.TestCase):
    texts = {"a.cpp": "int f(int a) {\n  return a < 3 ? a + 1 : 0;\n}\n",
             "b.cpp": "int g(int a) {\n  return a - 5;\n}\n"}

    def test_is_the_same_for_a_seed(self):
        self.assertEqual(mutate.drawn_from(self.texts, 1), mutate.drawn_from(self.texts, 1))
        orders = {tuple(mutate.drawn_from(self.texts, seed)) for seed in range(9)}
        self.assertGreater(len(orders), 1)

    def test_has_one_mutant_of_each_place(self):
        places = [(m.file, m.start, m.end) for m in mutate.drawn_from(self.texts, 1)]
        wanted = {(m.file, m.start, m.end) for file, text in self.texts.items()
                  for m in mutants_of(file, text)}
        self.assertEqual(sorted(places), sorted(wanted))

    def test_in_one_file_does_not_depend_on_others(self):
        changed = {**self.texts, "b.cpp": "int g() {\n  return 5 + 6;\n}\n"}
        of_a = [[m for m in mutate.drawn_from(texts, 1) if m.file == "a.cpp"]
                for texts in (self.texts, changed)]
        self.assertEqual(*of_a)


class Verdicts(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp()).resolve()
        cls.checkout = cls.folder / "checkout"
        shutil.copytree(HERE / "project", cls.checkout)
        for folder in (cls.checkout, *filter(pathlib.Path.is_dir, cls.checkout.rglob("*"))):
            folder.chmod(0o755)  # where the checkout may not be written, the copy may
        cls.build = Build(cls.checkout, cls.folder / "build", ["sums"], 2)
        room = cls.folder / "room"
        room.mkdir()
        cls.trials = Trials(cls.build, room, {"sums": ("sums",)}, least_seconds=1)

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.folder)

    def verdict(self, file, before, after):
        text = (self.checkout / file).read_text(encoding="utf-8")
        mutant = next(m for m in mutants_of(file, text) if (m.before, m.after) == (before, after))
        return self.trials.of(mutant, text)

    def test_are_these(self):
        for file, before, after, verdict in (
                ("sums/Sums.cpp", "<=", "<", ("killed", "sums")),
                ("sums/Sums.cpp", "++", "--", ("killed", "sums, no end")),
                ("sums/Sums.cpp", "sum = 0;", ";", ("survived", "")),
                ("sums/Sums.cpp", "*", "/", ("killed", "sums")),
                ("sums/Sums.cpp", "%", "*", ("not compiled", "no part of this build")),
                ("sums/Sums.h", "*", "/", ("killed", "sums"))):
            with self.subTest(before=before, after=after):
                self.assertEqual(self.verdict(file, before, after), verdict)

    def test_know_what_does_not_compile(self):
        mutant = Mutant("sums/Sums.cpp", 0, 0, "", "no C++ ")
        self.assertEqual(self.trials.of(mutant, "int a;"), ("not compiled", ""))
        self.assertEqual(self.trials.of(mutant, ""), ("not compiled", ""))
        mutant = Mutant("sums/Sums.cpp", 0, 0, "", "int unused();")
        self.assertEqual(self.trials.of(mutant, ""), ("not compiled", "not linked"))

    def test_know_the_same_code(self):
        text = (self.checkout / "sums/Sums.cpp").read_text(encoding="utf-8")
        mutant = Mutant("sums/Sums.cpp", len(text), len(text), "", "// a comment\n")
        self.assertEqual(self.trials.of(mutant, text),
                         ("survived", "the compiler makes the same code of it"))

    def test_leave_the_sources_and_the_build_alone(self):
        self.assertEqual(list((self.folder / "room").iterdir()), [])
        self.assertEqual(sorted(self.build.sources(["sums"])), ["sums/Sums.cpp", "sums/Sums.h"])
        for file in self.build.sources(["sums"]):
            self.assertEqual((self.checkout / file).read_bytes(),
                             (HERE / "project" / file).read_bytes())


class FormerVerdicts(unittest.TestCase):
    def test_hold_as_long_as_source_and_tests_are_the_same(self):
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "results.jsonl"
            mutant = Mutant("a.cpp", 2, 3, "<", ">")
            killed, survived = (mutate.Results.key(mutant, text) for text in ("a < b", "a < c"))
            first = mutate.Results(path)
            first.add(killed, "tests", "killed", "model")
            first.add(survived, "tests", "survived", "")
            again = mutate.Results(path)
            self.assertEqual(again.get(killed, "other tests")["verdict"], "killed")
            self.assertEqual(again.get(survived, "tests")["verdict"], "survived")
            self.assertIsNone(again.get(survived, "other tests"))
            self.assertIsNone(again.get(mutate.Results.key(mutant, "another text"), "tests"))


unittest.main()
