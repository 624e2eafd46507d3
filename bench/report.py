"""Formats figures and tables, and writes them into the document."""

import os
import pathlib
import platform
import statistics
import subprocess

import measure

UNITS = {
    "s": ((1, "s"), (1e-3, "ms"), (1e-6, "µs"), (1e-9, "ns")),
    "B": ((1e9, "GB"), (1e6, "MB"), (1e3, "kB"), (1, "B")),
}


def figure(value, unit):
    """Three significant digits and a suitable unit."""
    scale, name = next((pair for pair in UNITS[unit] if value >= pair[0]), UNITS[unit][-1])
    value /= scale
    digits = 2 if value < 9.995 else 1 if value < 99.95 else 0
    return f"{value:.{digits}f} {name}"


def ratio_cells(values, limit, verdict):
    low, middle, high = measure.quartiles(values)
    return [f"{middle:.2f}", f"{low:.2f} to {high:.2f}", "" if limit is None else f"{limit:.2f}",
            f"**{verdict}**" if verdict == "missed" else verdict]


def result_cells(result):
    row = result.row
    return [row.what, row.beside, *ratio_cells(result.ratios, row.limit, result.verdict),
            figure(statistics.median(result.ours), row.unit),
            figure(statistics.median(result.peer), row.unit)]


def series_cells(result):
    return [result.series.what,
            *(figure(median, result.series.unit) for median in result.medians),
            *ratio_cells(result.ratios, result.series.limit, result.verdict)]


def line(result):
    """The line to print as soon as a result is known."""
    if isinstance(result, measure.Result):
        name = f"{result.row.what}, beside {result.row.beside}"
        limit, unit = result.row.limit, result.row.unit
        figures = [statistics.median(values) for values in (result.ours, result.peer)]
    else:
        name = f"{result.series.what}, {result.table.sizes[-1]:,} beside {result.table.beside:,}"
        limit, unit = result.series.limit, result.series.unit
        figures = result.medians
    low, middle, high = measure.quartiles(result.ratios)
    bar = f", at most {limit:.2f}: {result.verdict}" if limit is not None else ""
    taken = ", ".join(figure(value, unit) for value in figures)
    return f"{middle:.2f} ({low:.2f} to {high:.2f}){bar}; {name}: {taken}"


def table(heads, rows):
    return "".join(f"| {' | '.join(cells)} |\n" for cells in [heads, ["---"] * len(heads), *rows])


RATIO_HEADS = ["ratio", "quartiles", "at most", ""]


def ratio_table(results):
    return table(["what", "beside", *RATIO_HEADS, "ours", "theirs"], map(result_cells, results))


def series_table(results):
    sizes = results[0].table
    heads = [f"{size:,}" for size in sizes.sizes]
    return table([sizes.noun, *heads, f"last to {sizes.beside:,}", *RATIO_HEADS[1:]],
                 map(series_cells, results))


def disk_table(results):
    """A row for each operation, a column for each file system. `results` is by file system."""
    columns = []
    for found in results.values():
        columns.append([f"{statistics.median(result.ratios):.2f}"
                        f"{'' if result.verdict == 'reached' else ' ' + result.verdict}"
                        for result in found])
    rows = next(iter(results.values()))
    cells = [[result.row.what, result.row.beside, *(column[i] for column in columns),
              f"{result.row.limit:.2f}"] for i, result in enumerate(rows)]
    return table(["what", "beside", *results, "at most"], cells)


def machine(folder):
    def first(path, key):
        for text in pathlib.Path(path).read_text().splitlines():
            if text.startswith(key):
                return text.split(":", 1)[1].strip()
        return "unknown"

    kind = subprocess.run(["findmnt", "-no", "FSTYPE", "--target", folder], capture_output=True,
                          text=True).stdout.strip()
    memory = int(first("/proc/meminfo", "MemTotal").split()[0]) * 1024
    return (f"{os.cpu_count()} cores ({first('/proc/cpuinfo', 'model name')}), "
            f"{figure(memory, 'B')} of memory, Linux {platform.release()}, {kind}")


def put(document, name, text):
    """Replaces the text between the markers of that name."""
    content = document.read_text()
    begin, end = f"<!-- {name} -->\n", f"<!-- end of {name} -->\n"
    head, rest = content.split(begin)
    document.write_text(head + begin + text + end + rest.split(end)[1])
