"""Compares the instructions of each lookup with the recorded ones."""

TOLERANCE = 1.05


def compare(measured, expectation):
    """The lines of the table, and a message for each lookup whose count is too high or not recorded."""
    expected = {}
    for line in expectation.read_text().splitlines():
        if not line.startswith("#"):
            name, count = line.rsplit(" ", 1)
            expected[name] = float(count)
    lines, messages = [], []
    for name, count in measured.items():
        recorded = expected.get(name, 0)
        lines.append((name, f"{count:.0f}", f"{recorded:.0f}"))
        if count > recorded * TOLERANCE:
            messages.append(f"{name}: {count:.0f} instructions, {recorded:.0f} in {expectation}")
    return lines, messages
