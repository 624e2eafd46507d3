#!/usr/bin/env python3
"""Compares the launcher with its peers. Run scripts/bench, which builds the programs first."""

import argparse
import contextlib
import pathlib
import signal
import sys
import tempfile

import chart
import disks
import measure
import report
import rows
import workbench

NAMES = list(dict.fromkeys(item.name for item in (*rows.PARTS, rows.GROWTH, rows.DEPTH)))


@contextlib.contextmanager
def prepared(options, store, kind):
    with disks.own_disk(kind, options.dir) as folder:
        bench = workbench.Workbench(options.build.resolve(), store, folder)
        with bench.cleanup:
            yield bench


def run_parts(bench, parts, rounds):
    results = []
    for part in parts:
        found = measure.measure_part(bench, part, rounds)
        results += found
        for result in found:
            print(report.line(result), flush=True)
    return results


def run_table(bench, table, rounds):
    results = []
    for series in table.series:
        results.append(measure.measure_series(bench, table, series, rounds))
        print(report.line(results[-1]), flush=True)
    return results


def run_all(options, store):
    """Measures rows, growth and depth. With --only, leaves the document unchanged."""
    chosen = options.only or NAMES
    with prepared(options, store, "ext4") as bench:
        machine = f"Measured on: {report.machine(bench.folder)}.\n"
        parts = [part for part in rows.PARTS if part.name in chosen]
        results = run_parts(bench, parts, options.pairs)
        growth, depth = (run_table(bench, table, options.pairs) if table.name in chosen else []
                         for table in (rows.GROWTH, rows.DEPTH))
    if not options.only:
        report.put(options.report, "machine", machine)
        report.put(options.report, "ratios", report.ratio_table(results))
        report.put(options.report, "growth", report.series_table(growth))
        report.put(options.report, "depth", report.series_table(depth))
        folder = options.report.parent
        (folder / "performance-ratios.svg").write_text(chart.ratios(results))
        (folder / "performance-growth.svg").write_text(chart.growth(growth))
    return results + growth + depth


def run_disks(options, store):
    results = {}
    for kind in disks.ALL:
        print(f"== {kind}", flush=True)
        with prepared(options, store, kind) as bench:
            results[kind] = run_parts(bench, rows.DISK_PARTS, options.pairs)
    report.put(options.report, "disks", report.disk_table(results))
    return [result for found in results.values() for result in found]


def main():
    parser = argparse.ArgumentParser(prog="scripts/bench")
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("report", type=pathlib.Path)
    parser.add_argument("--only", type=lambda text: text.split(","))
    parser.add_argument("--disks", action="store_true")
    parser.add_argument("--pairs", type=int)
    parser.add_argument("--dir")
    options = parser.parse_args()
    unknown = set(options.only or []) - set(NAMES)
    if unknown or (options.disks and (options.only or options.dir)):
        parser.error(f"no part is named {', '.join(unknown)}" if unknown
                     else "--disks can't be combined with --only or --dir")
    # On SIGTERM, leave the contexts, which unmount file systems and stop servers.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    with tempfile.TemporaryDirectory(dir="build") as store:
        run = run_disks if options.disks else run_all
        results = run(options, pathlib.Path(store).resolve())
    counts = {name: sum(result.verdict == name for result in results)
              for name in ("reached", "undecided", "missed")}
    print(", ".join(f"{count} {name}" for name, count in counts.items()))
    return 1 if counts["missed"] else 0


if __name__ == "__main__":
    sys.exit(main())
