#!/usr/bin/env python3
"""Counts the instructions of the main stages and holds them against their budgets.

  check_budgets.py PROGRAM            checks
  check_budgets.py PROGRAM --update   counts, and writes the counts as the new budgets
  check_budgets.py PROGRAM --growth   checks that eight times the clips take no more than eight times
                                      the instructions

Instructions are counted under callgrind: unlike clock time the same in each run. They are those of one
compiler on one kind of processor, so builds by others are counted but not checked, which ends with 77.
"""

import argparse
import json
import os
import pathlib
import platform
import re
import subprocess
import sys
import tempfile

TOLERANCE = 0.10
TIMES_MORE = 8
NOT_CHECKED = 77
BUDGETS = pathlib.Path(__file__).with_name("budgets.json")

# The C library's fastest functions differ from one processor to the next; its plain ones do not.
ENVIRONMENT = {
    "PATH": os.environ.get("PATH", ""),
    "LC_ALL": "C.UTF-8",
    "GLIBC_TUNABLES": "glibc.cpu.hwcaps=-AVX2,-AVX512F,-AVX512VL,-ERMS,-FSRM,-BMI2,-RTM,-EVEX",
}


def list_stages(program):
    """What the program was built for, and its stages."""
    output = subprocess.run([program], check=True, capture_output=True, text=True).stdout
    compiler, *stages = output.splitlines()
    return f"{compiler}, {platform.machine()}", stages


def count_instructions(valgrind, program, stage, part=1):
    with tempfile.TemporaryDirectory(prefix="budget-") as folder:
        counts = pathlib.Path(folder, "counts")
        command = [valgrind, "--tool=callgrind", "--instr-atstart=no",
                   f"--callgrind-out-file={counts}", program, stage, str(part)]
        run = subprocess.run(command, env={**ENVIRONMENT, "TMPDIR": folder},
                             capture_output=True, text=True, check=False)
        if run.returncode != 0:
            sys.exit(f"{stage}: the count failed.\n{run.stderr}")
        totals = re.search(r"^totals: (\d+)", counts.read_text(errors="replace"), re.MULTILINE)
        return int(totals.group(1)) if totals else sys.exit(f"{stage}: callgrind gave no count.")


def check_growth(valgrind, program, stages):
    """Whether a stage has a step that takes the square of the clips, or worse."""
    failures = []
    for stage in stages:
        few = count_instructions(valgrind, program, stage, TIMES_MORE)
        many = count_instructions(valgrind, program, stage)
        print(f"{stage:24} {few:>14,} {many:>14,} {many / few:7.2f} times", flush=True)
        if many > few * TIMES_MORE * (1 + TOLERANCE):
            failures.append(f"\"{stage}\" grows faster than the timeline: {TIMES_MORE} times the clips"
                            f" take {many / few:.1f} times the instructions.")
    print("\n".join(failures))
    return 1 if failures else 0


def write_budgets(file, built_for, counts):
    text = json.dumps({"built for": built_for, "instructions": counts}, indent=2)
    file.write_text(text + "\n")


def print_count(stage, count, budget):
    share = f"{budget:>14,} {100 * count / budget - 100:+7.1f} %" if budget else ""
    print(f"{stage:24} {count:>14,} {share}", flush=True)


def judge(counts, budgets, program):
    """The sentences about stages that are not as they were; those of the first list are failures."""
    failures = []
    remarks = []
    script = os.path.relpath(__file__)
    update = f"python3 {script} {program} --update"
    for stage in counts.keys() | budgets.keys():
        if stage not in counts or stage not in budgets:
            failures.append(f"\"{stage}\" is no longer a stage, or has no budget yet: {update}")
        elif counts[stage] > budgets[stage] * (1 + TOLERANCE):
            share = 100 * counts[stage] / budgets[stage] - 100
            failures.append(f"\"{stage}\" takes {share:.1f} % more instructions than its budget. Find"
                            " out why and repair it (valgrind --tool=callgrind --instr-atstart=no"
                            f" {program} \"{stage}\"); if it is worth its cost, write new budgets:"
                            f" {update}")
        elif counts[stage] < budgets[stage] * (1 - TOLERANCE):
            remarks.append(f"\"{stage}\" takes much less than its budget; keep it so: {update}")
    return sorted(failures), sorted(remarks)


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program", help="the built budget_stages")
    parser.add_argument("--update", action="store_true", help="write the counts as the new budgets")
    parser.add_argument("--growth", action="store_true",
                        help="compare each stage with an eighth of its clips")
    parser.add_argument("--budgets", type=pathlib.Path, default=BUDGETS)
    parser.add_argument("--valgrind", default="valgrind")
    return parser.parse_args()


def main():
    arguments = parse_arguments()
    built_for, stages = list_stages(arguments.program)
    if arguments.growth:
        return check_growth(arguments.valgrind, arguments.program, stages)
    known = {} if arguments.update else json.loads(arguments.budgets.read_text())
    budgets = known.get("instructions", {})
    is_checked = known.get("built for") == built_for
    print(f"{'stage':24} {'instructions':>14} {'budget':>14}")
    counts = {}
    for stage in stages:
        counts[stage] = count_instructions(arguments.valgrind, arguments.program, stage)
        print_count(stage, counts[stage], budgets.get(stage) if is_checked else None)
    if arguments.update:
        write_budgets(arguments.budgets, built_for, counts)
        return 0
    if not is_checked:
        print(f"NOT CHECKED: the budgets are for {known.get('built for')}, this is {built_for}.")
        return NOT_CHECKED
    failures, remarks = judge(counts, budgets, arguments.program)
    for sentence in remarks + failures:
        print(sentence)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
