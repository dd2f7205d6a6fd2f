"""Judges what benchmark.sh has measured.

report missed RESULTS            prints the benchmarks of missed goals, to be measured again: a program and a filter a line
report write RESULTS RECORDED    writes RESULTS/report.md; exit status 1 if a goal is missed, or if a lookup needs over 5 %
                                 more instructions than the file RECORDED allows
"""

import collections
import pathlib
import sys

import instructions
import rows
from results import Results


def print_missed(results):
    missed = collections.defaultdict(set)
    for goal in rows.goals(results):
        if not goal.is_met() and goal.program:
            missed[goal.program].update(goal.benchmarks)
    for program, benchmarks in missed.items():
        print(program, f"^({'|'.join(sorted(benchmarks))})(/|$)")
    return 0


def write(results, recorded):
    import page  # loads the plotting library

    goals, comparisons = rows.goals(results), rows.comparisons(results)
    lines, messages = instructions.compare(results.counts("instructions.txt"), recorded)
    messages += [f"missed goal: {goal.question} {goal.against}".rstrip() for goal in goals if not goal.is_met()]
    page.write(results, goals, comparisons, lines)
    print(page.goal_table(goals), page.comparison_table(comparisons), results.directory / "report.md", sep="\n\n")
    for message in messages:
        print(message, file=sys.stderr)
    return 1 if messages else 0


def main(arguments):
    if len(arguments) == 2 and arguments[0] == "missed":
        return print_missed(Results(pathlib.Path(arguments[1])))
    if len(arguments) == 3 and arguments[0] == "write":
        return write(Results(pathlib.Path(arguments[1])), pathlib.Path(arguments[2]))
    print(__doc__, file=sys.stderr)
    return 2


sys.exit(main(sys.argv[1:]))
