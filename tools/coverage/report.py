#!/usr/bin/env python3
"""Prints how much of src/ the tests reach, by folder, and every line and branch that they do not.

usage: report.py <llvm-cov's JSON export> <list of what cannot be reached>

Each entry of the list is "file | the source line | reason". Fails where a line is not reached without a reason, and
where a reason has outlived its line; one that begins "now and then" may.
"""
import collections
import json
import pathlib
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]


def counts_of(data):
    """Per file: {line: reached}, and {(line, column): (true reached, false reached)}, over all template instances."""
    lines = collections.defaultdict(dict)
    branches = collections.defaultdict(dict)
    for function in data["functions"]:
        for region in function["regions"]:
            note_region(lines[function["filenames"][region[5]]], region)
        for branch in function["branches"]:
            sides = branches[function["filenames"][branch[6]]].setdefault(tuple(branch[:4]), [0, 0])
            sides[0] += branch[4]
            sides[1] += branch[5]
    return lines, branches


def note_region(lines, region):
    """A code region's first line counts as often as the region runs; most of a function is told by its regions."""
    first, _, _, _, count, _, _, kind = region
    if kind == 0:
        lines[first] = lines.get(first, 0) + count


def line_totals(data):
    return {file["filename"]: file["summary"]["lines"] for file in data["files"]}


def relative(name):
    path = pathlib.Path(name)
    path = path if path.is_absolute() else ROOT / path
    path = path.resolve()
    return str(path.relative_to(ROOT)) if path.is_relative_to(ROOT / "src") else None


def read_reasons(file):
    reasons = {}
    for text in pathlib.Path(file).read_text(encoding="utf-8").splitlines():
        if text and not text.startswith("#"):
            name, line, reason = (part.strip() for part in text.split(" | "))
            reasons[name, line] = reason
    return reasons


def main(export, list_file):
    data = json.loads(pathlib.Path(export).read_text(encoding="utf-8"))["data"][0]
    lines, branches = counts_of(data)
    totals_of_lines = line_totals(data)
    reasons, used, wrong = read_reasons(list_file), set(), 0
    totals = collections.defaultdict(lambda: [0, 0, 0, 0])
    for name in sorted(set(lines) | set(branches), key=str):
        file = relative(name)
        if file is None:
            continue
        sums = totals[str(pathlib.Path(file).parent)]
        source = (ROOT / file).read_text(encoding="utf-8").splitlines()
        missed = {line: "line" for line, count in lines[name].items() if count == 0}
        sums[0] += totals_of_lines.get(name, {}).get("covered", 0)
        sums[1] += totals_of_lines.get(name, {}).get("count", 0)
        for place, sides in branches[name].items():
            sums[2] += sum(1 for side in sides if side)
            sums[3] += 2
            if 0 in sides and sides != [0, 0]:
                missed.setdefault(place[0], "is never " + ("true" if sides[0] == 0 else "false"))
        for line, what in sorted(missed.items()):
            key = (file, source[line - 1].strip())
            used.add(key)
            wrong += key not in reasons
            print(f"  {file}:{line}: {what}: {key[1]}\n      {reasons.get(key, 'NOT REACHED, and no reason is given')}")
    for key in reasons.keys() - used:
        if reasons[key].startswith("now and then"):
            continue
        wrong += 1
        print(f"  {key[0]}: is reached, but has a reason why not: {key[1]}")
    for folder, (hit, all_lines, sides, all_sides) in sorted(totals.items()):
        print(f"  {folder:<14} lines {hit:>5} of {all_lines:>5}   branch sides {sides:>4} of {all_sides:>4}")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
