"""What two counters of runs say about src/, in one form: a FileCounts for each file."""
import collections
import dataclasses
import json
import pathlib
import re
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[2]


@dataclasses.dataclass
class FileCounts:
    """Sums, and what was missed: {line: what is missing there}."""

    lines_hit: int = 0
    lines: int = 0
    sides_hit: int = 0
    sides: int = 0
    missed: dict = dataclasses.field(default_factory=dict)

    def add_sides(self, sides):
        self.sides_hit += sum(1 for side in sides if side)
        self.sides += len(sides)


def relative(name):
    """The file's path from the project, where it is one of src/ that is not written by a program."""
    path = pathlib.Path(name)
    path = (path if path.is_absolute() else ROOT / path).resolve()
    inside = path.is_relative_to(ROOT / "src") and path.exists()
    return str(path.relative_to(ROOT)) if inside else None


def source_lines(file):
    return [""] + (ROOT / file).read_text(encoding="utf-8").splitlines()


# llvm-cov: the JSON of its export.


def of_llvm(export):
    data = json.loads(pathlib.Path(export).read_text(encoding="utf-8"))["data"][0]
    lines, branches = _llvm_functions(data)
    totals = {file["filename"]: file["summary"]["lines"] for file in data["files"]}
    counts = {}
    for name in sorted(set(lines) | set(branches), key=str):
        file = relative(name)
        if file is not None:
            counts[file] = _llvm_file(lines[name], branches[name], totals.get(name, {}))
    return counts


def _llvm_functions(data):
    """Per file: {line: reached}, and {place: [true reached, false reached]}, over all template instances."""
    lines = collections.defaultdict(dict)
    branches = collections.defaultdict(dict)
    for function in data["functions"]:
        for first, _, _, _, count, file, _, kind in function["regions"]:
            if kind == 0:  # code: its first line counts as often as the region runs
                of_file = lines[function["filenames"][file]]
                of_file[first] = of_file.get(first, 0) + count
        for branch in function["branches"]:
            sides = branches[function["filenames"][branch[6]]].setdefault(tuple(branch[:4]), [0, 0])
            sides[0] += branch[4]
            sides[1] += branch[5]
    return lines, branches


def _llvm_file(lines, branches, total):
    counts = FileCounts(total.get("covered", 0), total.get("count", 0))
    counts.missed = {line: "line" for line, count in lines.items() if count == 0}
    for place, sides in branches.items():
        counts.add_sides(sides)
        if 0 in sides and sides != [0, 0]:
            counts.missed.setdefault(place[0], "is never " + ("true" if sides[0] == 0 else "false"))
    return counts


# gcov: a folder with what programs built with --coverage left behind.

# Other lines have branches too: of clean-ups that the compiler adds, and no test takes both sides of those.
DECISION = re.compile(r"^(\} else )?(if|while|for|switch) \(")


def of_gcov(folder, program="gcov", below=""):
    """Of the files below a folder of src/; the others' inline functions are counted elsewhere."""
    lines = collections.defaultdict(lambda: collections.Counter())
    sides = collections.defaultdict(dict)
    for file, entry in _gcov_entries(folder, program):
        if not file.startswith(below):
            continue
        number = entry["line_number"]
        lines[file][number] += entry["count"]
        key = number, entry.get("function_name")
        taken = _without_exceptions(entry["branches"])
        before = sides[file].get(key, [0] * len(taken))
        sides[file][key] = [a + b for a, b in zip(before, taken)] if len(before) == len(taken) else before
    return {file: _gcov_file(file, lines[file], sides[file]) for file in lines}


def _gcov_entries(folder, program):
    data = sorted(str(path.resolve()) for path in pathlib.Path(folder).rglob("*.gcda"))
    if not data:
        raise SystemExit(f"nothing was counted below {folder}")
    output = subprocess.run([program, "--json-format", "--stdout", "--branch-probabilities", *data], cwd=folder,
                            capture_output=True, text=True, check=True).stdout
    for text in output.splitlines():
        for entry in json.loads(text)["files"]:
            # The compiler was told to leave the project's own path out.
            file = relative(re.sub(r"^(\.\./)+", "", entry["file"]))
            for line in entry["lines"] if file else ():
                yield file, line


def _without_exceptions(branches):
    """How often each side was taken, without the pairs of a call that returns or throws."""
    kept = []
    rest = iter(range(len(branches)))
    for i in rest:
        if branches[i]["throw"]:
            continue
        if i + 1 < len(branches) and branches[i + 1]["throw"]:
            next(rest, None)
            continue
        kept.append(branches[i]["count"])
    return kept


def _gcov_file(file, lines, sides):
    source = source_lines(file)
    counts = FileCounts(sum(1 for count in lines.values() if count), len(lines))
    counts.missed = {line: "line" for line, count in lines.items() if count == 0}
    for line, taken in _sides_of_lines(sides).items():
        if lines[line] and DECISION.match(source[line].strip()):
            counts.add_sides(taken)
            if 0 in taken:
                counts.missed.setdefault(line, "one side is never taken")
    return counts


def _sides_of_lines(sides):
    """Sums of all instances of a template."""
    summed = {}
    for (line, _), taken in sides.items():
        before = summed.get(line, [0] * len(taken))
        wide = max(len(before), len(taken))
        summed[line] = [sum(side[i] for side in (before, taken) if i < len(side)) for i in range(wide)]
    return summed
