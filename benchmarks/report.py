"""Writes report.md and its plots from what benchmark.sh has measured: report.py RESULTS INSTRUCTIONS

Exit status 1 when a lookup costs over 5 % more instructions than the file INSTRUCTIONS says.
"""

import json
import math
import pathlib
import platform
import statistics
import sys

import matplotlib

matplotlib.use("svg")
from matplotlib import pyplot  # noqa: E402 (the backend is chosen before)

INSTRUCTION_TOLERANCE = 1.05


def join(*parts):
    return "/".join(str(part) for part in parts)


class Results:
    """The medians of all benchmarks, by program and name, and the counts."""

    def __init__(self, directory):
        self.directory = directory
        self.runs = {path.stem: self.medians(path) for path in sorted(directory.glob("*.json"))}

    @staticmethod
    def medians(path):
        runs = json.loads(path.read_text())["benchmarks"]
        return {run["run_name"]: run for run in runs if run.get("aggregate_name") == "median"}

    @staticmethod
    def nanoseconds(run):
        factor = {"ns": 1, "us": 1e3, "ms": 1e6}[run["time_unit"]]
        return factor * run["real_time"]

    def time(self, program, name):
        runs = self.runs[program]
        for suffix in ("", "/real_time", "/manual_time", "/iterations:300"):
            if name + suffix in runs:
                return self.nanoseconds(runs[name + suffix])
        raise KeyError(f"{program}: {name}")

    def ratio(self, program, name, *parts):
        return self.time(program, name) / sum(self.time(program, part) for part in parts)

    def sizes(self, program, name):
        """The arguments with which a benchmark was run: a/100/2 gives (100, 2)."""
        found = []
        for run in self.runs[program]:
            first, *arguments = run.split("/")
            if first == name:
                found.append(tuple(int(argument) for argument in arguments if argument.isdigit()))
        return sorted(found)

    def by_size(self, program, name, other):
        return {size: self.ratio(program, join(name, *size), join(other, *size)) for size in self.sizes(program, name)}

    def counter_by_size(self, program, name, counter):
        runs = self.runs[program]
        return {size: next(run[counter] for key, run in runs.items() if (key + "/").startswith(join(name, *size) + "/"))
                for size in self.sizes(program, name)}

    def counts(self, name):
        lines = (self.directory / name).read_text().splitlines()
        return {key: float(value) for key, value in (line.rsplit(" ", 1) for line in lines)}

    def hosts(self, name):
        return [json.loads(line) for line in (self.directory / name).read_text().splitlines()]


def worst(ratios):
    size = max(ratios, key=ratios.get)
    return ratios[size], f"at {size[0]}" + (f" of {size[1]} contexts" if len(size) > 1 else "")


class Table:
    """The lines of the comparison: question, against, ratio, goal, verdict."""

    def __init__(self):
        self.lines = []

    def add(self, question, against, value, limit, where=""):
        verdict = "met" if value <= limit else "missed" + (f" by {100 * (value / limit - 1):.0f} %" if limit else "")
        measured = f"{value:.2f} {where}".strip()
        self.lines.append((question, against, measured, f"at most {limit:g}", verdict))

    def add_sizes(self, question, against, ratios, limit):
        value, where = worst(ratios)
        self.add(question, against, value, limit, where)

    def text(self):
        return table(("Question", "Against", "Measured", "Goal", "Verdict"), self.lines)


def table(head, lines):
    rows = [head, ["---"] * len(head), *lines]
    return "\n".join("| " + " | ".join(str(cell) for cell in row) + " |" for row in rows)


def lookups(goals, results):
    for other, limit in (("QSettings", 0.2), ("KConfig", 0.12), ("GKeyFile", 0.5), ("hashes", 1.4)):
        goals.add("getColor, hit", other, results.ratio("Color", "hit/library", f"hit/{other}"), limit)
    goals.add("getColor, miss", "bare warning", results.ratio("Color", "miss/library", "miss/warning"), 1.3)
    goals.add("getFontFamily", "getColor", results.ratio("Font", "getFontFamily", "getColor"), 1.3)
    goals.add("getFontPointSize", "getColor + toDouble",
              results.ratio("Font", "getFontPointSize", "getColor", "toDouble"), 1.3)
    for which, words in (("sample", "of 30 icons"), ("again", "of Breeze's 8,717")):
        goals.add(f"getIconPath {words}", "QFile::exists", results.ratio("Icon", f"{which}/library", f"{which}/exists"), 1.25)
    for when, words in (("again", "asked again"), ("first", "asked first"), ("start", "the first of all")):
        for other in ("QIcon", "KIconLoader"):
            goals.add(f"getIconPath, {words}", other, results.ratio("Icon", f"{when}/library", f"{when}/{other}"), 1)
    calls = results.counts("system-calls.txt")["getIconPath"]
    goals.add("system calls of getIconPath", "one", calls, 1)


def growing(goals, results):
    goals.add_sizes("mapping table, time", "QJsonDocument::fromJson", results.by_size("MappingTable", "library", "json"), 1.6)
    peaks = results.counter_by_size("MappingTable", "library", "peak_bytes")
    json_peaks = results.counter_by_size("MappingTable", "json", "peak_bytes")
    peaks = {size: peak / json_peaks[size] for size, peak in peaks.items()}
    goals.add_sizes("mapping table, peak of the heap", "QJsonDocument::fromJson", peaks, 2.0)
    goals.add("mapping table, growth from 1,000 aliases to the most", "n log n", table_growth(results), 1)
    for other in ("QSettings", "KConfig"):
        goals.add_sizes("dimension file", other, results.by_size("DimensionFile", "library", other), 0.5)
    goals.add_sizes("geometry event", "loop by hand", results.by_size("GeometryEvent", "library", "loop"), 1.5)
    allocations = results.counter_by_size("GeometryEvent", "library", "allocations")
    goals.add_sizes("geometry event, allocations", "none", allocations, 0)
    goals.add("geometry event, system calls", "none", results.counts("system-calls.txt")["geometry-event"], 0)
    goals.add_sizes("text map", "filling a QMap", results.by_size("TextMap", "library", "fill"), 1.5)


def mapping_table(results):
    lines = []
    for size in results.sizes("MappingTable", "library"):
        library, json_time, least = (results.time("MappingTable", join(name, *size)) for name in ("library", "json", "least"))
        lines.append((*size, f"{library / 1e6:.2f}", f"{library / json_time:.2f}", f"{least / json_time:.2f}"))
    return table(("Aliases", "Contexts", "ms", "Over fromJson", "The least, over fromJson"), lines)


def table_growth(results):
    """The time of the largest table over that of one of 1,000 aliases, as a part of what n log n allows."""
    largest = max(size[0] for size in results.sizes("MappingTable", "library"))
    time = lambda size: results.time("MappingTable", f"library/{size}/1")
    work = lambda size: size * math.log(size)
    return (time(largest) / time(1000)) / (work(largest) / work(1000))


def service(goals, results):
    goals.add("connector getter", "QDBusConnection::call", results.ratio("Connector", "library", "call"), 1.15)
    goals.add("connector getter", "QDBusInterface", results.ratio("Connector", "library", "QDBusInterface"), 1)
    goals.add("whole start", "bare calls, reads and parses", results.ratio("Start", "library", "bare"), 1.4)


def times(results, program):
    lines = [(name.replace("/real_time", "").replace("part/", "of it: "), f"{results.nanoseconds(run) / 1e6:.2f}")
             for name, run in results.runs[program].items()]
    return table(("", "ms"), lines)


def plot(results, program, unit, names):
    pyplot.figure(figsize=(6, 4))
    for name in names:
        sizes = [size for size in results.sizes(program, name) if len(size) == 1 or size[1] == 1]
        seconds = [results.time(program, join(name, *size)) / 1e9 for size in sizes]
        pyplot.loglog([size[0] for size in sizes], seconds, marker="o", label=name)
    pyplot.xlabel(unit)
    pyplot.ylabel("seconds, median")
    pyplot.grid(True, which="major", alpha=0.4)
    pyplot.legend()
    pyplot.savefig(results.directory / f"{program}.svg", bbox_inches="tight")
    pyplot.close()
    return f"![{program}]({program}.svg)"


def instructions(results, expectation):
    """The table of instructions, and the lookups that have become dearer."""
    expected = {}
    for line in expectation.read_text().splitlines():
        if not line.startswith("#"):
            name, count = line.rsplit(" ", 1)
            expected[name] = float(count)
    lines, dearer = [], []
    for name, count in results.counts("instructions.txt").items():
        kept = expected.get(name, 0)
        lines.append((name, f"{count:.0f}", f"{kept:.0f}"))
        if count > kept * INSTRUCTION_TOLERANCE:
            dearer.append(f"{name} costs {count:.0f} instructions, {kept:.0f} in {expectation}")
    return table(("Lookup", "Instructions", "Kept"), lines), dearer


def device(results):
    bare = results.hosts("bare-host.txt")
    memory = lambda hosts: statistics.median(host["private_kib"] for host in hosts)
    lines = [(name, f"{value:.0f}") for name, value in results.counts("library.txt").items()]
    lines.append(("time to load (microseconds)", f"{statistics.median(host['load_ns'] for host in bare) / 1e3:.0f}"))
    lines.append(("private memory of a host without it (KiB)", f"{memory(bare):.0f}"))
    lines.append(("private memory of a host with the five handlers on the sample resources (KiB)",
                  f"{memory(results.hosts('library-host.txt')):.0f}"))
    return table(("", ""), lines)


def machine():
    names = [line.split(":")[1].strip() for line in pathlib.Path("/proc/cpuinfo").read_text().splitlines()
             if line.startswith("model name")]
    return f"{len(names)} x {names[0] if names else platform.machine()}, Linux {platform.release()}."


def main(directory, expectation):
    results = Results(directory)
    goals = Table()
    lookups(goals, results)
    growing(goals, results)
    service(goals, results)
    counts, dearer = instructions(results, expectation)
    calls = table(("System calls of one", ""), [(name, f"{count:g}") for name, count in results.counts("system-calls.txt").items()])
    plots = [
        plot(results, "MappingTable", "aliases, of one context each", ("library", "json", "least")),
        plot(results, "DimensionFile", "keys", ("library", "QSettings", "KConfig")),
        plot(results, "GeometryEvent", "display sizes", ("library", "loop")),
        plot(results, "TextMap", "URLs", ("library", "fill")),
    ]
    sections = ["# Benchmarks", machine(), "## Ratios of medians", goals.text(), "## Counts", calls, counts,
                "## Where the time of a start goes", times(results, "Start"),
                "## QML: a page of 1,000 rectangles, to its first frame", times(results, "Qml"),
                "## Mapping table",
                "The least is the parsing, and the maps filled from strings at hand.", mapping_table(results),
                "## What the library costs a device", device(results), "## Over a growing size", *plots]
    (directory / "report.md").write_text("\n\n".join(sections) + "\n")
    print(goals.text())
    print(f"\n{directory / 'report.md'}")
    for line in dearer:
        print(line, file=sys.stderr)
    return 1 if dearer else 0


sys.exit(main(pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])))
