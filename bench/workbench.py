"""The operations that the rows name. Each prepares its inputs and returns seconds or bytes."""

import contextlib
import os
import pathlib
import random
import select
import shutil
import statistics
import subprocess
import sys
import time

import inputs

UPGRADE_BY_HAND = ('mv "$1" "$1"_tmp && mkdir "$1" && bsdtar -xf "$2" -C "$1" && sync -f "$1" && '
                   'rm -rf "$1"_tmp')
COPY_EACH_BY_HAND = 'for file in "$1"/*; do cp "$file" "$2" && sync "$2/${file##*/}"; done'


class Workbench:
    """Works in `folder`. Keeps what is slow to make in `store`, for the next workbench."""

    def __init__(self, build, store, folder):
        self.build, self.store, self.folder = build, store, folder
        self.home = folder / "home"
        self.app = self.home / ".Tarnwell" / "Tarnwell.app"
        self.bundle = shutil.copytree(build / "Tarnwell.app", folder / "bundle" / "Tarnwell.app")
        (self.bundle / inputs.INFO).write_text(inputs.info(2))
        self.launcher = self.bundle / "Contents" / "MacOS" / "tarnwell-launcher"
        self.empty = self.copy_empty_program()
        self.pipe = folder / "started"
        os.mkfifo(self.pipe)
        self.environment = {"HOME": str(self.home), "PATH": os.environ["PATH"], "LANG": "C.UTF-8",
                            "QT_QPA_PLATFORM": "offscreen", "XDG_RUNTIME_DIR": str(folder)}
        self.display = ""
        self.cleanup = contextlib.ExitStack()

    def copy_empty_program(self):
        """Uses only the launcher's plug-ins: the system's would load OpenGL and its compiler."""
        (self.folder / "empty").mkdir()
        plugins = self.bundle / "Contents" / "Frameworks" / "plugins"
        (self.folder / "empty" / "qt.conf").write_text(f"[Paths]\nPlugins={plugins}\n")
        return shutil.copy(self.program("empty-program"), self.folder / "empty")

    # == Inputs of the operations, each made when it is first needed

    def once(self, name, make):
        path = self.folder / name
        if not path.exists():
            if not (self.store / name).exists():
                make(self.store / name)
            subprocess.run(["cp", "-r", self.store / name, path], check=True)
            self.settle()
        return path

    @property
    def tree(self):
        return self.once("tree", lambda path: inputs.make_application(path, self.program("client")))

    def package(self, kind):
        return self.once(f"package.{kind}", lambda path: self.pack(kind, self.tree, path))

    def package_of(self, kind, entries, size=200):
        def make(path):
            tree = self.store / f"{entries}-{size}"
            if not tree.exists():
                inputs.make_small_application(tree, self.program("client"), entries, size)
            self.pack(kind, tree, path)
        return self.once(f"{entries}-{size}.{kind}", make)

    def pack(self, kind, tree, package):
        inputs.pack(self.build / "packaging" / "make-package", kind, tree, package)

    def deep_package(self, depth, folders):
        return self.once(f"deep-{depth}-{folders}",
                         lambda path: inputs.pack_deep(path, depth, folders))

    def large_file(self):
        return self.once("large", lambda path: path.write_bytes(
            random.Random(inputs.SEED).randbytes(1 << 24) * 64))

    def small_files(self):
        def make(path):
            path.mkdir()
            for i in range(100):
                (path / str(i)).write_bytes(random.Random(i).randbytes(4096))
        return self.once("small", make)

    def start_display(self):
        """Starts an X server that runs until the cleanup."""
        end, other = os.pipe()
        server = subprocess.Popen(["Xvfb", "-displayfd", str(other), "-screen", "0", "1280x800x24"],
                                  pass_fds=[other], stderr=subprocess.DEVNULL)
        self.cleanup.callback(server.wait)
        self.cleanup.callback(server.terminate)
        os.close(other)
        with os.fdopen(end) as answer:
            self.display = ":" + answer.readline().strip()

    # == Steps

    def program(self, name):
        return self.build / "bench" / f"bench-{name}"

    def settle(self):
        """Waits until all data is on the disk, that of the store too, so that nothing is written
        in the background during a measurement."""
        subprocess.run(["sync", "-f", self.folder, self.store], check=True)

    def fresh(self, name):
        """Removes what has this name, waits until all data is on the disk and returns the path."""
        path = self.folder / name
        subprocess.run(["rm", "-rf", path], check=True)
        self.settle()
        return path

    def fresh_folder(self, name):
        path = self.fresh(name)
        path.mkdir()
        return path

    def fresh_copy(self, tree, path):
        subprocess.run(["cp", "-r", tree, path], check=True)
        self.settle()

    def install_old(self):
        self.fresh("home")
        self.app.parent.mkdir(parents=True)
        self.fresh_copy(self.tree, self.app)
        (self.app / inputs.INFO).write_text(inputs.info(1))
        self.settle()

    def give_launcher(self, package):
        carried = self.bundle / "Contents" / "Resources" / "package" / "tarnwell.opk"
        carried.unlink()
        os.link(package, carried)

    def upgraded(self):
        version = self.app / inputs.INFO
        return version.exists() and version.read_text() == inputs.info(2)

    def check_upgrade(self):
        left = sorted(path.name for path in self.app.parent.glob("[Tu]*"))
        if left != ["Tarnwell.app"] or not self.upgraded():
            sys.exit(f"bench: the launcher did not upgrade; {self.app.parent} has {left}")

    def timed(self, *command, **options):
        start = time.perf_counter()
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                       **options)
        return time.perf_counter() - start

    def shell(self, script, *arguments):
        return self.timed("sh", "-c", script, "sh", *arguments)

    def reported(self, name, *arguments):
        """Seconds that one of the benchmark programs measures and prints."""
        done = subprocess.run([self.program(name), *map(str, arguments)], check=True,
                              stdout=subprocess.PIPE, text=True, env=self.environment)
        return float(done.stdout)

    def peak(self, *command, **options):
        """The peak memory of a program, in bytes."""
        report = self.folder / "peak"
        self.timed("time", "-f", "%M", "-o", report, *command, **options)
        return int(report.read_text()) * 1024

    # == Upgrades

    def upgrade(self, kind):
        self.give_launcher(self.package(kind))
        self.install_old()
        seconds = self.timed(self.launcher, env=self.environment)
        self.check_upgrade()
        return seconds

    def by_hand(self, kind):
        package = self.package(kind)
        self.install_old()
        return self.shell(UPGRADE_BY_HAND, self.app, package)

    def floor(self, kind):
        package = self.package(kind)
        self.install_old()
        return self.reported("floor", package, self.app)

    # == Starts

    def start_client(self, who):
        """Seconds from the start of a program until the client that it starts is running."""
        if not self.upgraded():
            self.upgrade("zip")
        command = {"launcher": [self.launcher],
                   "empty": [self.empty, self.app / inputs.CLIENT]}[who]
        environment = dict(self.environment, BENCH_STARTED=str(self.pipe))
        with os.fdopen(os.open(self.pipe, os.O_RDWR), "rb", buffering=0) as pipe:
            start = time.monotonic()
            process = subprocess.Popen(command, env=environment, stdout=subprocess.DEVNULL,
                                       stderr=subprocess.DEVNULL)
            if not select.select([pipe], [], [], 60)[0]:
                sys.exit("bench: the client did not start within 60 seconds")
            started = float(pipe.read(64))
        process.wait()
        return started - start

    def first_frame(self, who):
        """Seconds from the start of a program until its window's first frame."""
        if not self.display:
            self.start_display()
        environment = dict(self.environment, DISPLAY=self.display, QT_QPA_PLATFORM="xcb")
        if who == "launcher":
            self.give_launcher(self.package("tar.zst"))
            self.install_old()
        command = self.launcher if who == "launcher" else self.empty
        with subprocess.Popen([self.program("first-frame")], env=environment, text=True,
                              stdout=subprocess.PIPE) as watcher:
            if watcher.stdout.readline() != "ready\n":
                sys.exit("bench: first-frame can't watch the display")
            start = time.monotonic()
            process = subprocess.Popen([command], env=environment, stdout=subprocess.DEVNULL,
                                       stderr=subprocess.DEVNULL)
            drawn = float(watcher.stdout.readline())
        process.wait()
        return drawn - start

    # == Memory

    def peak_memory(self, who):
        if who == "empty":
            return self.peak(self.empty, env=self.environment)
        self.give_launcher(self.package("tar.zst"))
        self.install_old()
        peak = self.peak(self.launcher, env=self.environment)
        self.check_upgrade()
        return peak

    def peak_of_entries(self, kind, entries):
        """The entries' total size is constant, because the memory to decompress depends on it."""
        self.give_launcher(self.package_of(kind, entries, 20_000_000 // entries))
        self.fresh_folder("home")
        peak = self.peak(self.launcher, env=self.environment)
        self.check_upgrade()
        return peak

    # == Files

    def remove(self):
        self.fresh_copy(self.tree, self.fresh("copy"))
        return self.reported("files", "remove", self.folder / "copy")

    def remove_by_hand(self):
        self.fresh_copy(self.tree, self.fresh("copy"))
        return self.timed("rm", "-rf", self.folder / "copy")

    def copy_large(self):
        return self.reported("files", "copy", self.large_file(), self.fresh("copied"))

    def copy_large_by_hand(self):
        return self.shell('cp "$1" "$2" && sync "$2"', self.large_file(), self.fresh("copied"))

    def copy_small(self):
        return self.reported("files", "copy-each", self.small_files(), self.fresh_folder("copied"))

    def copy_small_by_hand(self):
        return self.shell(COPY_EACH_BY_HAND, self.small_files(), self.fresh_folder("copied"))

    def copy_tree(self):
        return self.reported("files", "copy-tree", self.tree, self.fresh("copied"))

    def copy_tree_by_hand(self):
        return self.shell('cp -r "$1" "$2" && find "$2" -type f -exec sync {} +', self.tree,
                          self.fresh("copied"))

    # == Growth and depth

    def unpack_entry(self, kind, entries):
        package = self.package_of(kind, entries)
        times = [self.reported("files", "unpack", package, self.fresh_folder("unpacked"))
                 for _ in range(max(1, 1000 // entries))]
        return sum(times) / len(times) / entries

    def remove_entry(self, entries):
        times = []
        for _ in range(max(1, 1000 // entries)):
            target = self.fresh_folder("unpacked")
            self.reported("files", "unpack", self.package_of("zip", entries), target)
            self.settle()
            times.append(self.reported("files", "remove", target))
        return sum(times) / len(times) / entries

    def at_depth(self, operation, depth):
        root = self.fresh_folder("deep")
        if operation.startswith("unpack"):
            folders = 100 if operation == "unpack-folders" else 0
            return self.reported("files", "unpack", self.deep_package(depth, folders), root)
        last = "/".join([str(root)] + ["d"] * depth)
        made = self.reported("files", "make-folders", last)
        arguments = {"copy-tree": [root, self.fresh("copied")], "remove": [root]}
        if operation == "make-folders":
            return made
        if operation == "describe":  # too short to measure once
            return statistics.median(self.reported("files", operation, last) for _ in range(9))
        return self.reported("files", operation, *arguments[operation])

    # == The small operations

    def small(self, name):
        """Seconds that one operation takes, averaged over many runs."""
        done = subprocess.run(
            [self.program("library"), f"--benchmark_filter=^{name}$", "--benchmark_min_time=0.03",
             "--benchmark_format=csv"],
            env=dict(self.environment, BENCH_LOG=str(self.folder / "bench.log")), check=True,
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        fields = done.stdout.splitlines()[-1].split(",")
        return float(fields[3]) * 1e-9  # name, iterations, real_time, cpu_time in ns
