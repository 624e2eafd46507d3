#!/usr/bin/env python3
"""Measures the launcher beside its peers and writes the table of ratios.

Both sides of a comparison run in turn, in pairs that change their order, on the same data and the
same file system. A row's figure is the median of the pairs' ratios; the spread is their quartiles.
"""

import argparse
import contextlib
import io
import itertools
import json
import os
import pathlib
import platform
import random
import shutil
import statistics
import subprocess
import sys
import tarfile
import tempfile
import time
import zipfile

SEED = 20
TREE_FILES, TREE_FOLDERS, TREE_BYTES = 3000, 60, 150_000_000
GROWTH = (100, 1000, 10_000, 100_000)
DEPTHS = (250, 500, 1000)


# == Data

def make_application(root):
    """An application of a real one's size: few large files, many small ones, half of them code and
    text that shrinks to a half and less, half of them pictures and the like that don't."""
    rng = random.Random(SEED)
    weights = [rng.lognormvariate(0, 1.9) for _ in range(TREE_FILES)]
    sizes = [max(1, int(TREE_BYTES * w / sum(weights))) for w in weights]
    words = [rng.randbytes(rng.randint(2, 12)) for _ in range(4000)]

    def content(size):
        packed = rng.randbytes(size // 2 if rng.random() < 0.5 else 0)
        chosen = rng.choices(words, cum_weights=range(1, 4001), k=max(1, size // 6))
        return (packed + b"".join(chosen) * 2)[:size]

    folders = [root / "Contents" / "Resources" / f"part{i:02d}" for i in range(TREE_FOLDERS)]
    for folder in folders:
        folder.mkdir(parents=True)
    for i, size in enumerate(sizes):
        (folders[i % TREE_FOLDERS] / f"file{i:06d}.bin").write_bytes(content(size))
    (root / "Contents" / "MacOS").mkdir()
    shutil.copy("/bin/true", root / "Contents" / "MacOS" / "tarnwell-ui")
    (root / "Contents" / "Info.plist").write_text(
        "<plist><dict><key>CFBundleExecutable</key><string>tarnwell-ui</string></dict></plist>\n")
    (root / "Contents" / "Resources" / "INFO").write_text("[Version]\nbuild_version=2\n")


def pack(root, archive):
    members = sorted(str(p.relative_to(root)) for p in root.rglob("*"))
    listing = "\n".join(members)
    format_of = {".zip": ["--format", "zip"], ".gz": ["--format", "ustar", "-z"]}[archive.suffix]
    subprocess.run(["bsdtar", *format_of, "-cf", archive, "-C", root, "-n", "-T", "-"], input=listing,
                   text=True, check=True)


def write_archive(path, kind, entries):
    """An archive of small files, fifty in a folder."""
    names = [f"Contents/part{i // 50:05d}/file{i:06d}" for i in range(entries)]
    if kind == "zip":
        with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as archive:
            for name in names:
                archive.writestr(name, b"x" * 200)
    else:
        with tarfile.open(path, "w:gz") as archive:
            for name in names:
                member = tarfile.TarInfo(name)
                member.size = 200
                archive.addfile(member, io.BytesIO(b"x" * 200))


# == Measuring

class Row:
    def __init__(self, what, peer, limit):
        self.what, self.peer, self.limit, self.ratios, self.note = what, peer, limit, [], ""

    def add(self, ours, peers):
        self.ratios.append(ours / peers)
        self.note = f"{ours * 1e3:.3g} ms beside {peers * 1e3:.3g} ms"

    @property
    def ratio(self):
        return statistics.median(self.ratios)

    @property
    def reached(self):
        return self.limit is None or self.ratio <= self.limit

    def cells(self):
        low, _, high = statistics.quantiles(self.ratios, n=4) if len(self.ratios) > 1 else [self.ratio] * 3
        limit = "" if self.limit is None else f"{self.limit:.2f}"
        return [self.what, self.peer, f"{self.ratio:.2f}", f"{low:.2f} to {high:.2f}", limit,
                "" if self.reached else "**missed**", self.note]


class Bench:
    def __init__(self, build, folder, pairs):
        self.tool = build / "bench" / "bench-files"
        self.library = build / "bench" / "bench-library"
        self.empty = build / "bench" / "bench-empty-dialog"
        self.folder, self.pairs, self.rows = folder, pairs, []
        self.bundle = shutil.copytree(build / "Tarnwell.app", folder / "bundle" / "Tarnwell.app")
        self.launcher = self.bundle / "Contents" / "MacOS" / "tarnwell-launcher"
        self.home = folder / "home"
        self.environment = {"HOME": str(self.home), "QT_QPA_PLATFORM": "offscreen", "PATH": os.environ["PATH"],
                            "XDG_RUNTIME_DIR": str(folder), "LANG": "C.UTF-8"}

    def pairs_of(self, row, ours, peers, prepare=lambda: None, count=None):
        """Runs both sides in pairs; each returns its seconds, after prepare()."""
        self.rows.append(row)
        for i in range((count or self.pairs) + 1):
            seconds = {}
            for side in (ours, peers) if i % 2 else (peers, ours):
                prepare()
                seconds[side] = side()
            if i > 0:  # the first pair warms up
                row.add(seconds[ours], seconds[peers])
        print("  ".join(row.cells()[:5]), flush=True)

    def run_tool(self, *arguments):
        """Seconds of one operation, measured inside the tool."""
        done = subprocess.run([self.tool, *map(str, arguments)], check=True, capture_output=True, text=True)
        return float(done.stdout)

    @staticmethod
    def timed(*command, **options):
        start = time.perf_counter()
        subprocess.run([str(c) for c in command], check=True, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL, **options)
        return time.perf_counter() - start

    def fresh(self, name):
        """The path of something that isn't there, with everything written before on the disk."""
        path = self.folder / name
        subprocess.run(["rm", "-rf", path], check=True)
        subprocess.run(["sync", "-f", self.folder], check=True)
        return path

    def copy_of(self, tree, name):
        path = self.fresh(name)
        subprocess.run(["cp", "-r", tree, path], check=True)
        subprocess.run(["sync", "-f", path], check=True)
        return path

    def give_launcher(self, package):
        shutil.copy(package, self.bundle / "Contents" / "Resources" / "package" / "tarnwell.opk")
        (self.bundle / "Contents" / "Resources" / "INFO").write_text("[Version]\nbuild_version=2\n")

    def peak_memory(self):
        """KiB of the launcher at the most, while it installs its package."""
        self.fresh("home").mkdir()
        process = subprocess.Popen([self.launcher], env=self.environment, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL)
        peak = 0
        while process.poll() is None:
            for line in pathlib.Path(f"/proc/{process.pid}/status").read_text().splitlines():
                if line.startswith("VmHWM:"):
                    peak = int(line.split()[1])
            time.sleep(0.002)
        return peak

    # == The rows

    def upgrade(self, tree, package, limit, label):
        app = self.home / ".Tarnwell" / "Tarnwell.app"
        self.give_launcher(package)

        def prepare():
            self.fresh("home")
            app.parent.mkdir(parents=True)
            self.copy_of(tree, "home/.Tarnwell/Tarnwell.app")
            (app / "Contents" / "Resources" / "INFO").write_text("[Version]\nbuild_version=1\n")

        def ours():
            seconds = self.timed(self.launcher, env=self.environment)
            left = sorted(p.name for p in app.parent.glob("[Tu]*"))
            if "=2" not in (app / "Contents/Resources/INFO").read_text() or left != ["Tarnwell.app"]:
                sys.exit(f"the launcher did not upgrade: {left}")
            return seconds

        script = f'mv "$1" "$1"_tmp && mkdir "$1" && bsdtar -xf "{package}" -C "$1" && sync -f "$1" && rm -rf "$1"_tmp'
        # A tar.gz takes about what it may, so that more pairs are needed to tell.
        self.pairs_of(Row(f"a whole upgrade, {label}", "`mv`, `bsdtar`, `sync -f`, `rm -rf`", limit), ours,
                      lambda: self.timed("sh", "-c", script, "sh", app), prepare,
                      count=self.pairs if label == "zip" else 2 * self.pairs + 3)
        if label == "zip":
            self.pairs_of(Row("a run with nothing to do", "an empty Qt program", 1.10),
                          lambda: self.timed(self.launcher, env=self.environment),
                          lambda: self.timed(self.empty, env=self.environment), count=40)

    def unpacking(self, package):
        target = self.folder / "unpacked"

        def prepare():
            self.fresh("unpacked").mkdir()

        self.pairs_of(Row("unpacking alone, zip", "`bsdtar -xf`", 0.95),
                      lambda: self.run_tool("unpack", package, target),
                      lambda: self.timed("bsdtar", "-xf", package, "-C", target), prepare)

    def removing(self, tree):
        self.pairs_of(Row("`FSRemove` of the tree", "`rm -rf`", 1.0),
                      lambda: self.run_tool("remove", self.folder / "copy"),
                      lambda: self.timed("rm", "-rf", self.folder / "copy"),
                      lambda: self.copy_of(tree, "copy"))

    def copying(self, tree):
        large = self.folder / "large"
        if not large.exists():
            large.write_bytes(random.Random(SEED).randbytes(1 << 24) * 64)
        target = self.folder / "copied"
        self.pairs_of(Row("`FSCopy` of 1 GiB", "`cp`, `sync FILE`", 1.0),
                      lambda: self.run_tool("copy", large, target),
                      lambda: self.timed("sh", "-c", 'cp "$1" "$2" && sync "$2"', "sh", large, target),
                      lambda: self.fresh("copied"), count=5)
        self.fresh("copied")
        small = self.fresh("small")
        small.mkdir()
        for i in range(1000):
            (small / str(i)).write_bytes(random.Random(i).randbytes(4096))
        each = 'for file in "$1"/*; do cp "$file" "$2" && sync "$2/${file##*/}"; done'
        self.pairs_of(Row("`FSCopy` of 4 KiB, 1,000 times", "`cp`, `sync FILE`", 1.0),
                      lambda: self.run_tool("copy-each", small, target),
                      lambda: self.timed("sh", "-c", each, "sh", small, target),
                      lambda: self.fresh("copied").mkdir(), count=3)
        whole = 'cp -r "$1" "$2" && find "$2" -type f -exec sync {} +'
        self.pairs_of(Row("`FSCopyPath` of the tree", "`cp -r`, `sync` of all files", 1.0),
                      lambda: self.run_tool("copy-tree", tree, target),
                      lambda: self.timed("sh", "-c", whole, "sh", tree, target),
                      lambda: self.fresh("copied"), count=5)
        self.fresh("copied")

    def small_operations(self):
        environment = dict(os.environ, BENCH_LOG=str(self.folder / "bench.log"))
        done = subprocess.run(
            [self.library, "--benchmark_format=json", "--benchmark_repetitions=25", "--benchmark_min_time=0.03",
             "--benchmark_enable_random_interleaving=true"],
            env=environment, check=True, capture_output=True, text=True)
        times = {}
        for run in json.loads(done.stdout)["benchmarks"]:
            if run["run_type"] == "iteration":
                times.setdefault(run["name"].split("/")[0], []).append(run["cpu_time"])
        limits = {"LogWritten_spdlog": 1.0, "LogDropped_lock_and_lookup": 1.5, "Compose_icu": 1.1}
        for name in sorted(times):
            ours, _, peer = name.partition("_")
            if not peer:
                continue
            row = Row(ours, peer.replace("_", " "), limits.get(name))
            for a, b in zip(times[ours], times[name]):
                row.add(a * 1e-9, b * 1e-9)
            row.note = f"{statistics.median(times[ours]):.0f} ns beside {statistics.median(times[name]):.0f} ns"
            self.rows.append(row)
            print("  ".join(row.cells()[:5]), flush=True)

    def growth(self):
        """Time and memory per entry, from the smallest archive to the largest."""
        figures = {}
        for entries, kind in itertools.product(GROWTH, ("zip", "tar.gz")):
            archive = self.fresh("grown")
            write_archive(archive, kind, entries)
            self.give_launcher(archive)
            peak = self.peak_memory()
            samples = []
            for _ in range(max(3, 1500 // entries)):
                target = self.fresh("unpacked")
                target.mkdir()
                samples.append((self.run_tool("unpack", archive, target) / entries, peak,
                                self.run_tool("remove", target) / entries))
            figures[kind, entries] = [statistics.median(column) for column in zip(*samples)]
        for kind in ("zip", "tar.gz"):
            small, large = figures[kind, GROWTH[0]], figures[kind, GROWTH[-1]]
            for index, what in enumerate(("time per entry, unpacking", "peak memory, installing",
                                          "time per entry, removing")):
                row = Row(f"{what} {kind}", f"{GROWTH[0]} entries (ours {GROWTH[-1]:,})", 1.3)
                row.ratios.append(large[index] / small[index])
                unit = "KiB" if index == 1 else "µs"
                scale = 1 if index == 1 else 1e6
                row.note = ", ".join(f"{figures[kind, n][index] * scale:.4g}" for n in GROWTH) + f" {unit}"
                self.rows.append(row)
                print("  ".join(row.cells()[:5]), row.note, flush=True)

    def deep(self, operation, depth):
        """Seconds of an operation on a chain of folders."""
        root, other = self.fresh("deep"), self.fresh("deep-copy")
        root.mkdir()
        path = root / "/".join(["d"] * depth)
        if operation.startswith("unpack"):
            archive = self.fresh("deep.zip")
            with zipfile.ZipFile(archive, "w") as file:
                for i in range(depth if operation == "unpack each folder" else 0):
                    file.writestr("d/" * (i + 1), b"")
                file.writestr("d/" * depth + "file", b"")
            return self.run_tool("unpack", archive, root)
        made = self.run_tool("make-folders", path)
        if operation == "make-folders":
            return made
        arguments = {"describe": [path], "copy-tree": [root, other], "remove": [root]}[operation]
        return self.run_tool(operation, *arguments)

    def depth(self):
        """What twice the depth costs: 2 is linear, 4 quadratic. A package with an entry for each folder
        is itself four times as large then."""
        for operation in ("make-folders", "describe", "copy-tree", "remove", "unpack", "unpack each folder"):
            times = {}
            for depth in DEPTHS:
                samples = []
                for _ in range(5):
                    samples.append(self.deep(operation, depth))
                times[depth] = min(samples)
            row = Row(f"depth: `{operation}`", f"{DEPTHS[-2]} deep (ours {DEPTHS[-1]:,})",
                      None if operation == "unpack each folder" else 2.6)
            row.ratios.append(times[DEPTHS[-1]] / times[DEPTHS[-2]])
            row.note = ", ".join(f"{times[d] * 1e3:.3g}" for d in DEPTHS) + " ms"
            self.rows.append(row)
            print("  ".join(row.cells()[:5]), row.note, flush=True)


# == The report

def describe_machine(folder):
    def first(path, key):
        for line in pathlib.Path(path).read_text().splitlines():
            if line.startswith(key):
                return line.split(":", 1)[1].strip()
        return "unknown"

    kind = subprocess.run(["findmnt", "-no", "FSTYPE", "--target", folder], capture_output=True,
                          text=True).stdout.strip()
    return (f"{os.cpu_count()} cores ({first('/proc/cpuinfo', 'model name')}), "
            f"{first('/proc/meminfo', 'MemTotal')} of memory, Linux {platform.release()}, {kind}")


def write_report(path, rows, machine):
    """Puts the table between the marks of the document."""
    lines = [f"Measured on: {machine}.", "", "| what | beside | ratio | quartiles | to reach | | last pair |",
             "|---|---|---|---|---|---|---|"]
    lines += ["| " + " | ".join(row.cells()) + " |" for row in rows]
    text = path.read_text()
    begin, end = "<!-- table -->\n", "<!-- end of table -->\n"
    head, rest = text.split(begin)
    path.write_text(head + begin + "\n".join(lines) + "\n" + end + rest.split(end)[1])


@contextlib.contextmanager
def own_disk(folder):
    """A folder to work in: the given one, or, for root, a file system of its own in a file below
    build/, so that neither its age nor its mount options count."""
    with tempfile.TemporaryDirectory(dir=folder or pathlib.Path.cwd() / "build") as made:
        root = pathlib.Path(made)
        if folder or os.geteuid() != 0:
            yield root
            return
        image = root / "image"
        with open(image, "wb") as file:
            file.truncate(5 << 30)
        subprocess.run(["mkfs.ext4", "-q", image], check=True)
        disk = root / "disk"
        disk.mkdir()
        subprocess.run(["mount", "-o", "loop", image, disk], check=True)
        device = subprocess.run(["findmnt", "-no", "SOURCE", disk], check=True, capture_output=True, text=True)
        subprocess.run(["losetup", "--direct-io=on", device.stdout.strip()], check=True)
        try:
            yield disk
        finally:
            subprocess.run(["umount", "-l", disk], check=True)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("report", type=pathlib.Path)
    parser.add_argument("--dir", help="where to work (default: a new file system in a file below build/; takes root)")
    parser.add_argument("--pairs", type=int, default=11)
    parser.add_argument("--only", default="", help="rows to measure: upgrade, unpack, remove, copy, small, growth, depth")
    options = parser.parse_args()
    chosen = options.only.split(",") if options.only else None
    with own_disk(options.dir) as folder:
        bench = Bench(options.build.resolve(), folder, options.pairs)
        tree = folder / "tree"
        make_application(tree)
        for suffix in ("zip", "tar.gz"):
            pack(tree, folder / f"package.{suffix}")
        parts = {
            "upgrade": lambda: (bench.upgrade(tree, folder / "package.zip", 0.95, "zip"),
                                bench.upgrade(tree, folder / "package.tar.gz", 1.15, "tar.gz")),
            "unpack": lambda: bench.unpacking(folder / "package.zip"),
            "remove": lambda: bench.removing(tree),
            "copy": lambda: bench.copying(tree),
            "small": bench.small_operations,
            "growth": bench.growth,
            "depth": bench.depth,
        }
        for name, measure in parts.items():
            if chosen is None or name in chosen:
                measure()
        machine = describe_machine(folder)
    if chosen is None:
        write_report(options.report, bench.rows, machine)
    return 0 if all(row.reached for row in bench.rows) else 1


if __name__ == "__main__":
    sys.exit(main())
