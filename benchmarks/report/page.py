"""Writes report.md and its plots."""

import pathlib
import platform
import statistics

import matplotlib

matplotlib.use("svg")
from matplotlib import pyplot  # noqa: E402 (the backend is chosen before)

from results import join  # noqa: E402


def table(head, lines):
    rows = [head, ["---"] * len(head), *lines]
    return "\n".join("| " + " | ".join(str(cell) for cell in row) + " |" for row in rows)


def goal_table(goals):
    return table(("Goal", "Against", "Measured", "Limit", "Verdict"), [goal.cells() for goal in goals])


def comparison_table(comparisons):
    return table(("Comparison", "Against", "Measured"), [row.cells() for row in comparisons])


def mapping_table(results):
    lines = []
    for size in results.sizes("MappingTable", "library"):
        library, json_time, least = (results.time("MappingTable", join(name, *size)) for name in ("library", "json", "least"))
        lines.append((*size, f"{library / 1e6:.2f}", f"{library / json_time:.2f}", f"{library / least:.2f}"))
    return table(("Aliases", "Contexts", "ms", "Divided by fromJson", "Divided by fromJson and filling the maps"), lines)


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


def write(results, goals, comparisons, instructions):
    calls = [(name, f"{count:g}") for name, count in results.counts("system-calls.txt").items()]
    sections = [
        "# Benchmarks", machine(), "All ratios are ratios of medians.",
        "## Goals", goal_table(goals),
        "## Comparisons", comparison_table(comparisons),
        "## Instructions", table(("Lookup", "Instructions", "Recorded"), instructions),
        "## System calls", table(("One lookup", "System calls"), calls),
        "## Where the time of a start goes", times(results, "Start"),
        "## QML: a page of 1,000 rectangles, until its first frame", times(results, "Qml"),
        "## Mapping table", mapping_table(results),
        "## What the library costs a device", device(results),
        "## By size",
        plot(results, "MappingTable", "aliases with one context each", ("library", "json", "least")),
        plot(results, "DimensionFile", "keys", ("library", "QSettings", "KConfig")),
        plot(results, "GeometryEvent", "display sizes", ("library", "loop")),
        plot(results, "TextMap", "URLs", ("library", "fill")),
        plot(results, "Check", "icons, or lookups in QML", ("icons", "lookups")),
    ]
    (results.directory / "report.md").write_text("\n\n".join(sections) + "\n")
