#!/usr/bin/env python3
"""Prints how much of src/ the tests reach, by folder, and every line and branch that they do not.

usage: report.py llvm <llvm-cov's JSON export> <list of what cannot be reached>
       report.py gcov <folder with .gcda files> <that list> <gcov of the compiler> <folder of src/ to report>

Each entry of the list is "file | the source line | reason". Fails where a line is not reached without a reason, and
where a reason has outlived its line; one that begins "now and then" may.
"""
import collections
import pathlib
import sys

import counts


def read_reasons(file):
    reasons = {}
    for text in pathlib.Path(file).read_text(encoding="utf-8").splitlines():
        if text and not text.startswith("#"):
            name, line, reason = (part.strip() for part in text.split(" | "))
            reasons[name, line] = reason
    return reasons


def print_missed(found, reasons):
    """Returns the entries of the list that were used, and how many lines have none."""
    used, without = set(), 0
    for file in sorted(found):
        source = counts.source_lines(file)
        for line, what in sorted(found[file].missed.items()):
            key = (file, source[line].strip())
            used.add(key)
            without += key not in reasons
            print(f"  {file}:{line}: {what}: {key[1]}\n      {reasons.get(key, 'NOT REACHED, and no reason is given')}")
    return used, without


def print_outlived(reasons, used):
    outlived = [key for key in reasons.keys() - used if not reasons[key].startswith("now and then")]
    for file, line in sorted(outlived):
        print(f"  {file}: is reached, but has a reason why not: {line}")
    return len(outlived)


def print_totals(found):
    totals = collections.defaultdict(counts.FileCounts)
    for file, of_file in found.items():
        total = totals[str(pathlib.Path(file).parent)]
        total.lines_hit += of_file.lines_hit
        total.lines += of_file.lines
        total.sides_hit += of_file.sides_hit
        total.sides += of_file.sides
    for folder, total in sorted(totals.items()):
        print(f"  {folder:<14} lines {total.lines_hit:>5} of {total.lines:>5}   "
              f"branch sides {total.sides_hit:>4} of {total.sides:>4}")


def main(counter, counted, list_file, *gcov):
    found = counts.of_llvm(counted) if counter == "llvm" else counts.of_gcov(counted, *gcov)
    reasons = read_reasons(list_file)
    used, wrong = print_missed(found, reasons)
    wrong += print_outlived(reasons, used)
    print_totals(found)
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
