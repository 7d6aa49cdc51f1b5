#!/usr/bin/env python3
"""Tests check_budgets.py with a program and a valgrind that say what the test wants."""

import json
import pathlib
import platform
import subprocess
import sys
import tempfile
import unittest

SCRIPT = pathlib.Path(__file__).with_name("check_budgets.py")
BUDGETS = {"import": 1000, "search": 2000}

PROGRAM = """#!/bin/sh
echo "GNU 12"
echo import
echo search
"""
# Takes the count of a stage from a file of that name, that of an eighth from "eighth <name>".
VALGRIND = """#!/usr/bin/env python3
import pathlib, sys
out = next(a.split("=", 1)[1] for a in sys.argv if a.startswith("--callgrind-out-file="))
stage, part = sys.argv[-2:]
name = stage if part == "1" else "eighth " + stage
count = (pathlib.Path(sys.argv[0]).parent / name).read_text()
pathlib.Path(out).write_text("events: Ir\\ntotals: " + count + "\\n")
"""


class CheckBudgets(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.write_program("program", PROGRAM)
        self.write_program("valgrind", VALGRIND)
        self.write_budgets(f"GNU 12, {platform.machine()}", BUDGETS)
        self.count(BUDGETS)

    def write_program(self, name, text):
        (self.folder / name).write_text(text)
        (self.folder / name).chmod(0o755)

    def write_budgets(self, built_for, budgets):
        content = {"built for": built_for, "instructions": budgets}
        (self.folder / "budgets.json").write_text(json.dumps(content))

    def count(self, counts):
        for stage, count in counts.items():
            (self.folder / stage).write_text(str(count))

    def check(self, *options):
        return subprocess.run(
            [sys.executable, SCRIPT, self.folder / "program", "--valgrind", self.folder / "valgrind",
             "--budgets", self.folder / "budgets.json", *options],
            capture_output=True, text=True, check=False)

    def test_counts_within_their_budgets_pass_with_a_line_each(self):
        self.count({"search": 2200})
        run = self.check()
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertRegex(run.stdout, r"import +1,000 +1,000 +\+0\.0 %")
        self.assertRegex(run.stdout, r"search +2,200 +2,000 +\+10\.0 %")

    def test_a_regression_fails_with_the_name_of_its_stage(self):
        self.count({"search": 2202})
        run = self.check()
        self.assertEqual(run.returncode, 1)
        self.assertIn('"search" takes 10.1 % more instructions than its budget', run.stdout)
        self.assertIn("--update", run.stdout)
        self.assertNotIn('"import"', run.stdout)

    def test_a_stage_that_became_much_faster_is_told_and_passes(self):
        self.count({"import": 899})
        run = self.check()
        self.assertEqual(run.returncode, 0)
        self.assertIn('"import" takes much less than its budget', run.stdout)

    def test_a_stage_without_budget_fails(self):
        self.write_budgets(f"GNU 12, {platform.machine()}", {"import": 1000})
        run = self.check()
        self.assertEqual(run.returncode, 1)
        self.assertIn('"search"', run.stdout)

    def test_counts_of_another_compiler_are_not_checked_and_that_is_said(self):
        self.write_budgets("Clang 15, " + platform.machine(), BUDGETS)
        self.count({"search": 9999})
        run = self.check()
        self.assertEqual(run.returncode, 77)
        self.assertIn("NOT CHECKED", run.stdout)
        self.assertIn("9,999", run.stdout)

    def test_an_update_writes_the_counts_as_budgets(self):
        self.count({"import": 5000})
        self.assertEqual(self.check("--update").returncode, 0)
        content = json.loads((self.folder / "budgets.json").read_text())
        self.assertEqual(content["instructions"], {"import": 5000, "search": 2000})
        self.assertEqual(self.check().returncode, 0)

    def test_a_stage_that_grows_faster_than_the_timeline_fails_with_its_name(self):
        self.count({"eighth import": 125, "eighth search": 250})
        self.assertEqual(self.check("--growth").returncode, 0)
        self.count({"search": 2201})
        run = self.check("--growth")
        self.assertEqual(run.returncode, 1)
        self.assertIn('"search" grows faster than the timeline', run.stdout)

    def test_a_stage_that_breaks_down_is_an_error(self):
        (self.folder / "search").unlink()
        run = self.check()
        self.assertEqual(run.returncode, 1)
        self.assertIn("search: the count failed", run.stderr)


if __name__ == "__main__":
    unittest.main()
