"""The questions that the benchmarks answer: goals, which must be met, and comparisons, which inform."""

import dataclasses
import math
import operator

from results import join, size_text

CHECKED_LOOKUPS = 20_000
TABLE = (100_000, 1)  # aliases and contexts of the mapping table that has a goal for its time


@dataclasses.dataclass
class Goal:
    question: str
    against: str
    measured: float
    limit: float
    where: str = ""
    exactly: bool = False
    unit: str = ""
    tolerance: float = 1  # how many times the limit a noisy machine may need
    program: str = ""  # measured again when the goal is missed; empty if the number is the same in every run
    benchmarks: tuple = ()

    def holds(self, limit):
        return (operator.eq if self.exactly else operator.le)(self.measured, limit)

    def is_met(self):
        return self.holds(self.limit * self.tolerance)

    def cells(self):
        relation = "exactly" if self.exactly else "at most"
        verdict = "met" if self.holds(self.limit) else "exceeded, tolerated" if self.is_met() else "**missed**"
        return (self.question, self.against, f"{self.measured:.2f} {self.unit or self.where}".strip(),
                f"{relation} {self.limit:g} {self.unit}".strip(), verdict)


@dataclasses.dataclass
class Comparison:
    question: str
    against: str
    measured: float
    where: str = ""

    def cells(self):
        return self.question, self.against, f"{self.measured:.2f} {self.where}".strip()


def worst(values):
    size = max(values, key=values.get)
    return values[size], f"at {size_text(size)}"


def time_goal(results, question, against, limit, program, name, *others):
    ratio = results.ratio(program, name, *others)
    return Goal(question, against, ratio, limit, program=program, benchmarks=(name, *others))


def size_goal(results, question, against, limit, program, name, other):
    ratio, where = worst(results.ratio_by_size(program, name, other))
    return Goal(question, against, ratio, limit, where, program=program, benchmarks=(name, other))


def gallery_goals(results):
    """What a designer waits for, in milliseconds on the screen. Machines differ, so five times as much is tolerated."""
    for name, question, limit in (
        ("first picture", "gallery, first picture of 8,700 icons", 1300),
        ("saved color/sample", "gallery, saved color, sample", 300),
        ("saved color/breeze", "gallery, saved color, 8,700 icons", 1000),
        ("window", "gallery, window while the service hangs", 1000),
        ("page switch", "gallery, slowest page switch while the service hangs", 100),
        ("recovery", "gallery, resources after the service continues", 1000),
    ):
        yield Goal(question, "", results.time("Gallery", name) / 1e6, limit, unit="ms", tolerance=5, program="Gallery",
                   benchmarks=(name,))


def check_goals(results):
    """The checker as a program, in milliseconds and mebibytes."""
    for name, question, limit in (
        ("sample", "checker, sample with its QML", 60),
        ("breeze", "checker, 8,700 icons", 1000),
        (f"lookups/{CHECKED_LOOKUPS}", f"checker, {CHECKED_LOOKUPS:,} lookups in 500 QML files", 2000),
    ):
        yield Goal(question, "", results.time("Check", name) / 1e6, limit, unit="ms", tolerance=5, program="Check",
                   benchmarks=(name,))
    peak = max(run["peak_mebibytes"] for run in results.runs["Check"].values())
    yield Goal("checker, largest peak of memory", "", peak, 200, unit="MiB")


def table_goals(results):
    library, least = join("library", *TABLE), join("least", *TABLE)
    yield Goal("mapping table, time", "fromJson and filling the maps", results.ratio("MappingTable", library, least), 1.3,
               f"at {size_text(TABLE)}", program="MappingTable", benchmarks=(library, least))
    json_peaks = results.counter_by_size("MappingTable", "json", "peak_bytes")
    peaks = results.counter_by_size("MappingTable", "library", "peak_bytes")
    peak, where = worst({size: peak / json_peaks[size] for size, peak in peaks.items()})
    yield Goal("mapping table, peak of the heap", "QJsonDocument::fromJson", peak, 2.2, where)


def goals(results):
    calls = results.counts("system-calls.txt")
    allocations, where = worst(results.counter_by_size("GeometryEvent", "library", "allocations"))
    icon = "getIconPath of "
    return [
        time_goal(results, "getColor, hit", "QSettings", 0.2, "Color", "hit/library", "hit/QSettings"),
        time_goal(results, "getColor, hit", "GKeyFile", 0.6, "Color", "hit/library", "hit/GKeyFile"),
        time_goal(results, "getColor, miss", "bare warning", 1.4, "Color", "miss/library", "miss/warning"),
        time_goal(results, icon + "30 icons", "QFile::exists", 1.4, "Icon", "sample/library", "sample/exists"),
        time_goal(results, icon + "8,717 Breeze icons", "QFile::exists", 1.4, "Icon", "again/library", "again/exists"),
        Goal("getIconPath, system calls", "", calls["getIconPath"], 1, exactly=True),
        Goal("geometry event, system calls", "", calls["geometry-event"], 0, exactly=True),
        Goal("geometry event, allocations", "", allocations, 0, where, exactly=True),
        size_goal(results, "dimension file", "QSettings", 0.6, "DimensionFile", "library", "QSettings"),
        size_goal(results, "dimension file", "KConfig", 0.6, "DimensionFile", "library", "KConfig"),
        time_goal(results, "connector getter", "QDBusConnection::call", 1.15, "Connector", "library", "call"),
        time_goal(results, "whole start", "bare calls, reads and parses", 1.8, "Start", "library", "bare"),
        *table_goals(results),
        *gallery_goals(results),
        *check_goals(results),
        Goal("stripped library, KiB", "", results.counts("library.txt")["stripped size (bytes)"] / 1024, 120),
    ]


def table_growth(results):
    """The time of the largest table divided by that of 1,000 aliases, as a part of what n log n allows."""
    largest = max(size[0] for size in results.sizes("MappingTable", "library"))
    time = lambda size: results.time("MappingTable", f"library/{size}/1")
    work = lambda size: size * math.log(size)
    return (time(largest) / time(1000)) / (work(largest) / work(1000)), f"at {largest}"


def check_growth(results, name):
    """The time for the largest number divided by that for the smallest, as a part of linear growth."""
    smallest, *_, largest = [size[0] for size in results.sizes("Check", name)]
    return results.ratio("Check", join(name, largest), join(name, smallest)) * smallest / largest, f"at {largest}"


def comparisons(results):
    ratio = results.ratio
    by_size = lambda program, other: worst(results.ratio_by_size(program, "library", other))
    rows = [Comparison("getColor, hit", other, ratio("Color", "hit/library", f"hit/{other}"))
            for other in ("KConfig", "hashes")]
    rows += [
        Comparison("getFontFamily", "getColor", ratio("Font", "getFontFamily", "getColor")),
        Comparison("getFontPointSize", "getColor + toDouble", ratio("Font", "getFontPointSize", "getColor", "toDouble")),
    ]
    for when, words in (("again", "repeated lookup"), ("first", "first lookup of each icon"), ("start", "first lookup of all")):
        rows += [Comparison(f"getIconPath, {words}", other, ratio("Icon", f"{when}/library", f"{when}/{other}"))
                 for other in ("QIcon", "KIconLoader")]
    return rows + [
        Comparison("mapping table, time", "QJsonDocument::fromJson", *by_size("MappingTable", "json")),
        Comparison("mapping table, time", "fromJson and filling the maps", *by_size("MappingTable", "least")),
        Comparison("mapping table, growth from 1,000 aliases", "n log n", *table_growth(results)),
        Comparison("checker, growth by icons", "linear growth", *check_growth(results, "icons")),
        Comparison("checker, growth by lookups", "linear growth", *check_growth(results, "lookups")),
        Comparison("geometry event", "loop by hand", *by_size("GeometryEvent", "loop")),
        Comparison("text map", "filling a QMap", *by_size("TextMap", "fill")),
        Comparison("connector getter", "QDBusInterface", ratio("Connector", "library", "QDBusInterface")),
    ]
