"""Reads what benchmark.sh has measured."""

import json


def join(*parts):
    return "/".join(str(part) for part in parts)


def size_text(size):
    contexts = f" x {size[1]} context{'s' if size[1] > 1 else ''}" if len(size) > 1 else ""
    return f"{size[0]}{contexts}"


class Results:
    """The medians of all benchmarks by program and name, and the counts. Names measured again replace the first ones."""

    def __init__(self, directory):
        self.directory = directory
        self.runs = {path.stem: self._medians(path) for path in sorted(directory.glob("*.json"))}
        for path in sorted((directory / "again").glob("*.json")):
            self.runs[path.stem].update(self._medians(path))

    @staticmethod
    def _medians(path):
        runs = json.loads(path.read_text())["benchmarks"]
        return {run["run_name"]: run for run in runs if run.get("aggregate_name") == "median"}

    @staticmethod
    def nanoseconds(run):
        return {"ns": 1, "us": 1e3, "ms": 1e6}[run["time_unit"]] * run["real_time"]

    def time(self, program, name):
        runs = self.runs[program]
        for suffix in ("", "/real_time", "/manual_time", "/iterations:300",
                       "/iterations:1/repeats:10/manual_time"):
            if name + suffix in runs:
                return self.nanoseconds(runs[name + suffix])
        raise KeyError(f"{program}: {name}")

    def ratio(self, program, name, *others):
        return self.time(program, name) / sum(self.time(program, other) for other in others)

    def sizes(self, program, name):
        """The arguments that a benchmark was run with: a/100/2 gives (100, 2)."""
        found = []
        for run in self.runs[program]:
            first, *arguments = run.split("/")
            if first == name:
                found.append(tuple(int(argument) for argument in arguments if argument.isdigit()))
        return sorted(found)

    def ratio_by_size(self, program, name, other):
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
