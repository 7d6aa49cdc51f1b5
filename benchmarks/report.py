"""Runs the benchmark programs, prints what they measured, and compares it with the targets.

A benchmark is named "stage/size" ("search/absent/ascii/100000"), or "stage" alone. Each figure is the median of
its repetitions in one run. Stages are timed on the processor, so that other programs hardly count; those that
say so themselves (".../real_time", ".../manual_time") by the clock.
"""

import argparse
import json
import os
import pathlib
import re
import statistics
import subprocess
import sys
import tempfile

FOLDER = pathlib.Path(__file__).resolve().parent
GROWTH_SIZE = 1000000
TIMING_SUFFIX = re.compile(
    r"/(?:(?:iterations|repeats|min_time|min_warmup_time|threads):[^/]*|real_time|manual_time|process_time)")
NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}
OWN_FIELDS = {"name", "run_name", "run_type", "repetitions", "repetition_index", "threads", "iterations",
              "real_time", "cpu_time", "time_unit", "family_index", "per_family_instance_index", "label", "items_per_second",
              "bytes_per_second"}


class Figure:
    """What one benchmark measured."""

    def __init__(self, runs):
        self.name = TIMING_SUFFIX.sub("", runs[0]["run_name"])
        by_clock = re.search(r"/(real|manual)_time", runs[0]["run_name"])
        clock = "real_time" if by_clock else "cpu_time"
        # In nanoseconds.
        self.time = statistics.median(run[clock] * NANOSECONDS[run["time_unit"]] for run in runs)
        self.items = median_of(runs, "items_per_second")
        self.bytes = median_of(runs, "bytes_per_second")
        self.counters = {key: median_of(runs, key) for key in runs[0] if key not in OWN_FIELDS}
        stage, _, size = self.name.rpartition("/")
        self.stage, self.size = (stage, int(size)) if stage and size.isdigit() else (self.name, None)

    def time_of_one(self):
        """Nanoseconds for one row, or for whatever the benchmark counts."""
        return 1e9 / self.items if self.items else self.time / (self.size or 1)

    def value(self, kind):
        """What a target compares: "time", "speed" in bytes a second, or a counter of the benchmark."""
        if kind == "time":
            return self.time
        return self.bytes if kind == "speed" else self.counters.get(kind)

    def is_timed(self):
        """False for a benchmark that counts bytes, whatever time that takes."""
        return not any(name.endswith("bytes") for name in self.counters)

    def to_json(self):
        return {"name": self.name, "nanoseconds": self.time, "nanoseconds_of_one": self.time_of_one(),
                "items_per_second": self.items, "bytes_per_second": self.bytes, "counters": self.counters}


def median_of(runs, key):
    values = [run[key] for run in runs if key in run]
    return statistics.median(values) if values else None


def read_figures(results):
    """The figures in the output of one program, by name; benchmarks that failed are left out."""
    runs = {}
    for run in results["benchmarks"]:
        if run.get("run_type") != "aggregate" and not run.get("error_occurred"):
            runs.setdefault(run["run_name"], []).append(run)
    figures = [Figure(same) for same in runs.values()]
    return {figure.name: figure for figure in figures}


class Judgement:
    """How a measured value stands beside its baseline. The verdict is "aim", "reach", "missed" or "not run"."""

    def __init__(self, what, reach, aim, is_least=False):
        self.what, self.reach, self.aim, self.is_least = what, reach, aim, is_least
        self.kind = "time"
        self.measured = self.baseline = self.ratio = self.aim_ratio = None

    def compare(self, measured, baseline, aim_baseline):
        self.measured, self.baseline = measured, baseline
        if measured is not None and baseline:
            self.ratio = measured / baseline
            self.aim_ratio = measured / aim_baseline if aim_baseline else None
        return self

    def verdict(self):
        if self.ratio is None:
            return "not run"
        if self.aim_ratio is not None and self.is_within(self.aim_ratio, self.aim):
            return "aim"
        return "reach" if self.is_within(self.ratio, self.reach) else "missed"

    def is_within(self, ratio, limit):
        return ratio >= limit if self.is_least else ratio <= limit

    def to_json(self):
        return {"what": self.what, "kind": self.kind, "measured": self.measured, "baseline": self.baseline,
                "ratio": self.ratio, "aim_ratio": self.aim_ratio, "reach": self.reach, "aim": self.aim,
                "is_least": self.is_least, "verdict": self.verdict()}


def judge_target(target, figures):
    kind = target.get("kind", "time")

    def value_of(name):
        return figures[name].value(kind) if name in figures else None

    judgement = Judgement(target["what"], target["reach"], target["aim"], target.get("is_least", False))
    judgement.kind = kind
    baseline = target["baseline_ms"] * 1e6 if "baseline_ms" in target else value_of(target["baseline"])
    aim_baseline = value_of(target["aim_baseline"]) if "aim_baseline" in target else baseline
    return judgement.compare(value_of(target["measured"]), baseline, aim_baseline)


def is_excepted(stage, prefixes):
    return any(stage == prefix or stage.startswith(prefix + "/") for prefix in prefixes)


def judge_growth(figures, growth):
    """Every stage at a million rows beside ten times itself at a tenth of them."""
    judgements = []
    for figure in figures.values():
        tenth = figures.get(f"{figure.stage}/{GROWTH_SIZE // 10}")
        is_stage = figure.is_timed() and not is_excepted(figure.stage, growth["except"])
        if figure.size == GROWTH_SIZE and tenth is not None and is_stage:
            judgement = Judgement(f"{figure.stage}: growth", growth["reach"], growth["aim"])
            judgements.append(judgement.compare(figure.time, 10 * tenth.time, 10 * tenth.time))
    return judgements


def scaled(value, units):
    for factor, unit in units:
        if value >= factor:
            break
    digits = 0 if value / factor >= 100 else 1 if value / factor >= 10 else 2
    return f"{value / factor:.{digits}f} {unit}"


def time_text(nanoseconds):
    return scaled(nanoseconds, [(1e9, "s"), (1e6, "ms"), (1e3, "us"), (1, "ns")])


def value_text(value, kind):
    if value is None:
        return ""
    if kind == "time":
        return time_text(value)
    return scaled(value, [(1e9, "GB/s"), (1e6, "MB/s"), (1, "B/s")]) if kind == "speed" else f"{value:.1f}"


def speed_text(figure):
    if figure.bytes:
        return value_text(figure.bytes, "speed")
    return scaled(figure.items, [(1e6, "M/s"), (1e3, "k/s"), (1, "/s")]) if figure.items else ""


def print_table(header, lines):
    """Columns as wide as they need to be: the first one flush left, the others right."""
    widths = [max(len(line[i]) for line in [header, *lines]) for i in range(len(header))]
    for line in [header, ["-" * width for width in widths], *lines]:
        cells = [line[0].ljust(widths[0])] + [cell.rjust(width) for cell, width in zip(line[1:], widths[1:])]
        print("  ".join(cells).rstrip())
    print()


def print_figures(figures):
    sizes = sorted({figure.size for figure in figures.values() if figure.size and figure.is_timed()})
    stages = {}
    for figure in filter(Figure.is_timed, figures.values()):
        stages.setdefault(figure.stage, {})[figure.size] = figure
    lines = []
    for stage, by_size in stages.items():
        if None in by_size:
            continue
        largest = by_size[max(by_size)]
        times = [time_text(by_size[size].time_of_one()) if size in by_size else "" for size in sizes]
        lines.append([stage, *times, time_text(largest.time), speed_text(largest)])
    if lines:
        print_table(["Time of one, of so many:", *(f"{size:,}" for size in sizes), "all", "speed"], lines)
    whole = [[stage, time_text(by_size[None].time), speed_text(by_size[None])]
             for stage, by_size in stages.items() if None in by_size]
    if whole:
        print_table(["Whole", "time", "speed"], whole)
    print_counters(figures)


def print_counters(figures):
    lines = [[figure.name, key, f"{value:,.1f}"] for figure in figures.values() if not figure.is_timed()
             for key, value in figure.counters.items()]
    if lines:
        print_table(["Counted", "of one", "value"], lines)


def print_judgements(judgements):
    def limit_text(judgement, limit):
        return f"{'>=' if judgement.is_least else '<='} {limit:g} x"

    def ratio_text(ratio):
        return "" if ratio is None else f"{ratio:.2f} x"

    lines = []
    for judgement in judgements:
        ratio = ratio_text(judgement.ratio)
        if judgement.aim_ratio != judgement.ratio and judgement.aim_ratio is not None:
            ratio += " / " + ratio_text(judgement.aim_ratio)
        lines.append([judgement.what, value_text(judgement.measured, judgement.kind),
                      value_text(judgement.baseline, judgement.kind), ratio,
                      limit_text(judgement, judgement.reach), limit_text(judgement, judgement.aim),
                      judgement.verdict()])
    print_table(["What", "measured", "baseline", "ratio", "reach", "aim", "verdict"], lines)


def choose(program, pattern, is_quick):
    """The names of a program's benchmarks that are wanted."""
    listed = subprocess.run([program, "--benchmark_list_tests"], check=True, capture_output=True, text=True)
    names = [name for name in listed.stdout.split("\n") if name and re.search(pattern, name)]
    return [name for name in names if not is_quick or not re.search(r"/1000000(/|$)", name)]


def escape(name):
    """As the programs' regular expressions want it, which know no escape of ordinary characters."""
    return re.sub(r"([][.^$*+?(){}|\\])", r"\\\1", name)


def run(program, names, options):
    with tempfile.NamedTemporaryFile(suffix=".json") as output:
        command = [program, f"--benchmark_out={output.name}", "--benchmark_out_format=json",
                   f"--benchmark_filter=^({'|'.join(map(escape, names))})$", *options]
        done = subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
        text = output.read()
        if done.returncode != 0 or not text:
            sys.exit(f"{program} failed: {done.stderr}")
        return json.loads(text)


def measure(programs, arguments):
    # A panel touches its memory once and then rebuilds at every keystroke: a first run is not counted.
    options = ["--benchmark_repetitions=1", "--benchmark_min_time=0.01"] if arguments.quick else [
        f"--benchmark_repetitions={arguments.repetitions}", "--benchmark_min_time=0.1",
        "--benchmark_min_warmup_time=0.01", "--benchmark_enable_random_interleaving=true"]
    figures, context = {}, {}
    for name in programs:
        program = pathlib.Path(arguments.programs) / name
        names = choose(program, arguments.filter, arguments.quick) if program.exists() else []
        if names:
            print(f"{name}: {len(names)} benchmarks", file=sys.stderr)
            results = run(program, names, options)
            context = results["context"]
            figures.update(read_figures(results))
    return figures, context


def parse_arguments():
    parser = argparse.ArgumentParser(prog="./bench")
    parser.add_argument("--programs", default=FOLDER.parent / "build/release/bin", help=argparse.SUPPRESS)
    parser.add_argument("--json", nargs="?", const="-", metavar="FILE", help="figures for machines")
    parser.add_argument("--filter", default="", metavar="REGEX", help="only the benchmarks whose names match")
    parser.add_argument("--repetitions", type=int, default=5, metavar="N", help="figures are medians of N (5)")
    parser.add_argument("--quick", action="store_true", help="once each, and no million rows: does everything run?")
    return parser.parse_args()


def main():
    arguments = parse_arguments()
    settings = json.loads((FOLDER / "targets.json").read_text())
    os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")
    figures, context = measure(settings["programs"], arguments)
    judgements = [judge_target(target, figures) for target in settings["targets"]]
    judgements += judge_growth(figures, settings["growth"])
    if arguments.json:
        text = json.dumps({"context": context, "figures": [figure.to_json() for figure in figures.values()],
                           "targets": [judgement.to_json() for judgement in judgements]}, indent=1)
        print(text) if arguments.json == "-" else pathlib.Path(arguments.json).write_text(text + "\n")
    if arguments.json != "-":
        print_figures(figures)
        print_judgements(judgements)
    is_partial = arguments.filter or arguments.quick
    failing = {"missed"} if is_partial else {"missed", "not run"}
    return 1 if any(judgement.verdict() in failing for judgement in judgements) else 0


if __name__ == "__main__":
    sys.exit(main())
