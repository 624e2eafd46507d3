"""Runs the operations of rows and series in turn and records the time or memory of each."""

import dataclasses
import statistics

import rows


def quartiles(values):
    return statistics.quantiles(values, n=4, method="inclusive") if len(values) > 1 else values * 3


def verdict(values, limit):
    low, _, high = quartiles(values)
    if limit is None:
        return ""
    return "reached" if high <= limit else "missed" if low > limit else "undecided"


@dataclasses.dataclass
class Result:
    """The measurements of a row. Its ratio is the median of the rounds' ratios."""

    row: rows.Row
    ours: list
    peer: list

    @property
    def ratios(self):
        return [ours / peer for ours, peer in zip(self.ours, self.peer)]

    @property
    def verdict(self):
        return verdict(self.ratios, self.row.limit)


@dataclasses.dataclass
class SeriesResult:
    """The measurements of a series: for each size, a value from each round."""

    table: rows.Table
    series: rows.Series
    values: dict

    @property
    def medians(self):
        return [statistics.median(self.values[size]) for size in self.table.sizes]

    @property
    def ratios(self):
        return [large / small for large, small in
                zip(self.values[self.table.sizes[-1]], self.values[self.table.beside])]

    @property
    def verdict(self):
        return verdict(self.ratios, self.series.limit)


def in_turn(workbench, operations, rounds):
    """Returns the values of each operation, one a round. Every other round reverses the order, so
    that no operation always follows the same one. The first round warms up and isn't returned."""
    took = {operation: [] for operation in operations}
    for number in range(rounds + 1):
        for operation in operations if number % 2 else reversed(operations):
            method, *arguments = operation
            took[operation].append(getattr(workbench, method)(*arguments))
    return {operation: values[1:] for operation, values in took.items()}


def measure_part(workbench, part, rounds):
    operations = dict.fromkeys(operation for row in part.rows for operation in (row.ours, row.peer))
    took = in_turn(workbench, list(operations), rounds or part.rounds)
    return [Result(row, took[row.ours], took[row.peer]) for row in part.rows]


def measure_series(workbench, table, series, rounds):
    took = in_turn(workbench, [series.operation + (size,) for size in table.sizes],
                   rounds or table.rounds)
    return SeriesResult(table, series,
                        {size: took[series.operation + (size,)] for size in table.sizes})
