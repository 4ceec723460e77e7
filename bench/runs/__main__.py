# SPDX-License-Identifier: MIT
"""REPEATS [TOPIC...]: measures the cases of these topics, or all of them, and prints the table."""
import sys

import cases
import days
import rounds
import table


def main():
    repeats, topics = int(sys.argv[1]), sys.argv[2:]
    days.make_all()
    measured = []
    for case in cases.ALL:
        if topics and case.topic not in topics:
            continue
        print(f"{case.over}, {case.what}", file=sys.stderr)
        measured.append((case, rounds.medians(case, repeats)))
    print(f"Medians of {repeats} rounds.\n")
    table.show(measured)


main()
