# SPDX-License-Identifier: MIT
"""The table, in the form that docs/performance.md has."""

UNITS = {"wall": lambda value: f"{value:.3f} s", "processor": lambda value: f"{value:.3f} s",
         "memory": lambda value: f"{value / 1024:.1f} MB"}
MEASURES = {"wall": "time", "processor": "processor time", "memory": "peak memory"}


def verdict(ratio, aim):
    if aim is None:
        return ""
    return f"{aim:.2f}, met" if ratio <= aim else f"{aim:.2f}, **not met**"


def row(case, costs, aim):
    unit = UNITS[aim.measure]
    ours, other = (getattr(costs[name], aim.measure) for name in (case.ours, aim.other))
    measure = MEASURES[aim.measure]
    if case.ours != "Vell":
        measure += ", window on"
    return [case.over, case.what, measure, unit(ours), aim.other, unit(other), f"{ours / other:.2f}",
            verdict(ours / other, aim.ratio)]


def show(measured):
    lines = [["over", "what", "measure", "Vell", "against", "", "ratio", "aim"], ["---"] * 8]
    lines += [row(case, costs, aim) for case, costs in measured for aim in case.aims]
    for line in lines:
        print("| " + " | ".join(line) + " |")
