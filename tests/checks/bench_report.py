"""What benchmarks/report.py works out of the programs' figures."""

import contextlib
import io
import json
import pathlib
import re
import sys
import tempfile
import unittest
from unittest import mock

BENCHMARKS = pathlib.Path(__file__).resolve().parents[2] / "benchmarks"
sys.path.insert(0, str(BENCHMARKS))
sys.dont_write_bytecode = True
import report  # noqa: E402


def run_of(name, cpu, real=None, **fields):
    """One repetition, in milliseconds."""
    return {"run_name": name, "run_type": "iteration", "cpu_time": cpu, "real_time": real if real else cpu,
            "time_unit": "ms", **fields}


def figures_of(*runs):
    return report.read_figures({"benchmarks": list(runs)})


def judge(figures, **target):
    return report.judge_target({"what": "it", "measured": "our/10", "baseline": "their/10", "reach": 1.0, "aim": 0.5,
                                **target}, figures)


class Figures(unittest.TestCase):
    def test_the_median_of_the_repetitions_counts(self):
        figures = figures_of(*(run_of("sort/10", milliseconds) for milliseconds in (9, 1, 2, 3, 2.5)))
        self.assertEqual(figures["sort/10"].time, 2.5e6)

    def test_aggregates_and_failed_runs_are_left_out(self):
        figures = figures_of(run_of("a", 1), run_of("b", 1, error_occurred=True),
                             {"run_name": "a", "run_type": "aggregate", "cpu_time": 99, "time_unit": "ms"})
        self.assertEqual(list(figures), ["a"])
        self.assertEqual(figures["a"].time, 1e6)

    def test_how_a_benchmark_was_timed_is_no_part_of_its_name(self):
        figures = figures_of(run_of("a/10/iterations:3/manual_time", 1, 2), run_of("b/min_time:0.5", 1),
                             run_of("c/1000/process_time", 3, 2), run_of("d/real_time/repeats:5", 1, 4))
        self.assertEqual(list(figures), ["a/10", "b", "c/1000", "d"])

    def test_the_clock_counts_only_for_benchmarks_that_say_so(self):
        figures = figures_of(run_of("a/manual_time", 1, 2), run_of("b/real_time", 1, 3), run_of("c", 1, 4))
        self.assertEqual([figure.time for figure in figures.values()], [2e6, 3e6, 1e6])

    def test_a_name_without_size_is_a_stage_of_its_own(self):
        figures = figures_of(run_of("search/absent/100000", 1), run_of("start/version", 1))
        self.assertEqual([(figure.stage, figure.size) for figure in figures.values()],
                         [("search/absent", 100000), ("start/version", None)])

    def test_the_time_of_one_comes_from_what_was_counted_or_else_from_the_size(self):
        figures = figures_of(run_of("a/1000", 1, items_per_second=5e5), run_of("b/1000", 1))
        self.assertEqual(figures["a/1000"].time_of_one(), 2000)
        self.assertEqual(figures["b/1000"].time_of_one(), 1000)


class Targets(unittest.TestCase):
    def test_a_verdict_names_the_farthest_limit_that_holds(self):
        for milliseconds, verdict in ((4, "aim"), (5, "aim"), (6, "reach"), (10, "reach"), (11, "missed")):
            judgement = judge(figures_of(run_of("our/10", milliseconds), run_of("their/10", 10)))
            self.assertEqual(judgement.verdict(), verdict)
            self.assertEqual(judgement.ratio, milliseconds / 10)

    def test_speeds_must_be_at_least_the_limit(self):
        for ours, verdict in ((90, "aim"), (50, "reach"), (30, "missed")):
            figures = figures_of(run_of("our/10", 1, bytes_per_second=ours), run_of("their/10", 1, bytes_per_second=100))
            judgement = judge(figures, kind="speed", is_least=True, reach=0.4, aim=0.8)
            self.assertEqual(judgement.verdict(), verdict)

    def test_a_counter_can_be_compared(self):
        figures = figures_of(run_of("our/10", 1, bytes=300.0), run_of("their/10", 1, bytes=760.0))
        self.assertAlmostEqual(judge(figures, kind="bytes").ratio, 300 / 760)

    def test_the_aim_may_have_a_baseline_of_its_own(self):
        figures = figures_of(run_of("our/10", 6), run_of("their/10", 10), run_of("best/10", 2))
        judgement = judge(figures, aim_baseline="best/10", aim=2.0)
        self.assertEqual((judgement.ratio, judgement.aim_ratio, judgement.verdict()), (0.6, 3.0, "reach"))
        self.assertEqual(judge(figures, aim_baseline="best/10", aim=3.0).verdict(), "aim")

    def test_a_baseline_may_be_a_number_of_milliseconds(self):
        self.assertEqual(judge(figures_of(run_of("our/10", 4)), baseline_ms=16).ratio, 0.25)

    def test_what_did_not_run_is_not_judged(self):
        self.assertEqual(judge(figures_of(run_of("our/10", 1))).verdict(), "not run")
        self.assertEqual(judge(figures_of(run_of("their/10", 1))).verdict(), "not run")


class Growth(unittest.TestCase):
    GROWTH = {"reach": 1.2, "aim": 1.05, "except": ["plain", "a/plain"]}

    def judge(self, *runs):
        return [(judgement.what, round(judgement.ratio, 3), judgement.verdict())
                for judgement in report.judge_growth(figures_of(*runs), self.GROWTH)]

    def test_a_million_rows_stand_beside_ten_times_a_tenth_of_them(self):
        self.assertEqual(self.judge(run_of("a/100000", 10), run_of("a/1000000", 104),
                                    run_of("b/100000", 10), run_of("b/1000000", 115),
                                    run_of("c/100000", 10), run_of("c/1000000", 130)),
                         [("a: growth", 1.04, "aim"), ("b: growth", 1.15, "reach"), ("c: growth", 1.3, "missed")])

    def test_baselines_counts_and_stages_of_other_sizes_are_left_out(self):
        self.assertEqual(self.judge(run_of("plain/x/100000", 1), run_of("plain/x/1000000", 99),
                                    run_of("a/plain/100000", 1), run_of("a/plain/1000000", 99),
                                    run_of("m/100000", 1, live_bytes=1), run_of("m/1000000", 99, live_bytes=1),
                                    run_of("b/10000", 1), run_of("b/1000000", 999), run_of("c/100000", 1)), [])


class Report(unittest.TestCase):
    def test_the_targets_in_use_can_be_read_and_printed(self):
        settings = json.loads((BENCHMARKS / "targets.json").read_text())
        judgements = [report.judge_target(target, {}) for target in settings["targets"]]
        written = io.StringIO()
        with contextlib.redirect_stdout(written):
            report.print_judgements(judgements)
        self.assertEqual(written.getvalue().count("not run"), len(judgements))

    def test_tables_show_every_size_and_unit(self):
        written = io.StringIO()
        with contextlib.redirect_stdout(written):
            report.print_figures(figures_of(run_of("a/1000", 1, items_per_second=1e6), run_of("a/1000000", 2000),
                                            run_of("start", 3), run_of("memory/10", 1, bytes=12.5)))
        for text in ("1,000", "1,000,000", "1.00 us", "2.00 us", "3.00 ms", "12.5"):
            self.assertIn(text, written.getvalue())

    def test_the_order_of_sizes_is_that_of_numbers(self):
        written = io.StringIO()
        with contextlib.redirect_stdout(written):
            report.print_figures(figures_of(run_of("a/10000", 1), run_of("a/9000", 1)))
        self.assertRegex(written.getvalue(), "9,000 +10,000")


FAKE_PROGRAM = """#!{python}
import json, re, sys
times = {times}
options = dict(word.lstrip("-").partition("=")[::2] for word in sys.argv[1:])
if "benchmark_list_tests" in options:
    print("\\n".join(times))
elif re.search(r"\\\\[^][.^$*+?(){{}}|\\\\]", options["benchmark_filter"]):
    print("Invalid escape in regular expression", file=sys.stderr)  # And a success, as the programs have it.
else:
    runs = [dict(run_name=name, run_type="iteration", cpu_time=time, real_time=time, time_unit="ms")
            for name, time in times.items() if re.search(options["benchmark_filter"], name)]
    json.dump(dict(context=dict(num_cpus=2), benchmarks=runs), open(options["benchmark_out"], "w"))
"""


class Command(unittest.TestCase):
    """The whole command, with a program that only says that it measured something."""

    def run_with(self, times, *words):
        """Returns the exit code and what was printed."""
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            program = folder / "fake"
            program.write_text(FAKE_PROGRAM.format(python=sys.executable, times=times))
            program.chmod(0o700)
            target = {"what": "it", "measured": "our/10", "baseline": "their/10", "reach": 1.0, "aim": 0.5}
            (folder / "targets.json").write_text(json.dumps(
                {"programs": ["fake", "none"], "growth": {"reach": 1.2, "aim": 1.05, "except": []},
                 "targets": [target]}))
            written = io.StringIO()
            with mock.patch.object(report, "FOLDER", folder), contextlib.redirect_stdout(written), \
                    contextlib.redirect_stderr(io.StringIO()), \
                    mock.patch.object(sys, "argv", ["bench", "--programs", name, *words]):
                return report.main(), written.getvalue()

    def test_it_ends_with_one_when_a_target_is_missed_or_could_not_be_judged(self):
        self.assertEqual(self.run_with({"our/10": 1, "their/10": 1})[0], 0)
        self.assertEqual(self.run_with({"our/10": 2, "their/10": 1})[0], 1)
        self.assertEqual(self.run_with({"our/10": 1})[0], 1)

    def test_a_name_may_have_any_characters(self):
        names = ("filter/offline-media/10", "csv_cell/#/10", "csv_cell/File Name/10", "a (b)+[c]{d}|e^f$g.h*i?/10")
        code, written = self.run_with({**dict.fromkeys(names, 1), "our/10": 1, "their/10": 1})
        self.assertEqual(code, 0)
        for name in names:
            self.assertIn(name.removesuffix("/10"), written)

    def test_a_program_that_measures_nothing_is_told_of(self):
        with mock.patch.object(report, "escape", re.escape), self.assertRaisesRegex(SystemExit, "Invalid escape"):
            self.run_with({"filter/offline-media/10": 1})

    def test_what_was_not_asked_for_is_no_failure(self):
        code, written = self.run_with({"our/10": 2, "their/10": 1, "other": 1}, "--filter", "^other$")
        self.assertEqual(code, 0)
        self.assertNotIn("our", written)

    def test_a_quick_run_leaves_out_the_million(self):
        code, written = self.run_with({"a/1000000/manual_time": 1, "a/10": 1}, "--quick")
        self.assertEqual(code, 0)
        self.assertNotIn("1,000,000", written)

    def test_figures_for_machines_say_what_the_tables_say(self):
        code, written = self.run_with({"our/10": 3, "their/10": 4}, "--json")
        results = json.loads(written)
        self.assertEqual(code, 0)
        self.assertEqual(results["context"], {"num_cpus": 2})
        self.assertEqual([figure["name"] for figure in results["figures"]], ["our/10", "their/10"])
        self.assertEqual(results["targets"][0]["ratio"], 0.75)
        self.assertEqual(results["targets"][0]["verdict"], "reach")


if __name__ == "__main__":
    unittest.main()
