"""One line of the table: what was wanted and what was measured."""

import statistics
from dataclasses import dataclass


@dataclass(frozen=True)
class Row:
    what: str
    bound: float
    measured: float
    unit: str = ""
    at_least: bool = False

    @property
    def met(self):
        if self.at_least:
            return self.measured >= self.bound
        return self.measured <= self.bound

    @property
    def goal(self):
        return f"{'>=' if self.at_least else '<='} {self._text(self.bound)}"

    @property
    def figure(self):
        return self._text(self.measured)

    @property
    def verdict(self):
        return "met" if self.met else "MISSED"

    def _text(self, value):
        digits = 0 if float(value).is_integer() else 2
        return f"{value:.{digits}f} {self.unit}".strip()


def medians(figures, what, unit, notes):
    """The median of each name's figures; the notes tell what they were."""
    found = {name: statistics.median(values) for name, values in figures.items()}
    for name, values in figures.items():
        notes.append(f"{what} {name}: median {found[name]:.1f} {unit}, {min(values):.1f} to "
                     f"{max(values):.1f} {unit}, {len(values)} times")
    return found


def print_table(rows, out):
    lines = [("what", "goal", "measured", "")]
    lines += [(row.what, row.goal, row.figure, row.verdict) for row in rows]
    what, goal, figure, _ = (max(len(line[i]) for line in lines) for i in range(4))
    for line in lines:
        print(f"{line[0]:<{what}}  {line[1]:>{goal}}  {line[2]:>{figure}}  {line[3]}".rstrip(),
              file=out)
