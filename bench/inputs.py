"""Makes the applications and packages for the benchmarks, the same in every run."""

import random
import shutil
import subprocess
import zipfile

SEED = 20
FILES, FOLDERS, BYTES = 3000, 60, 150_000_000
CLIENT = "Contents/MacOS/tarnwell-ui"
INFO = "Contents/Resources/INFO"
INFO_PLIST = ("<plist><dict><key>CFBundleExecutable</key><string>tarnwell-ui</string></dict>"
              "</plist>\n")


def info(build):
    return f"[Version]\nbuild_version={build}\n"


def make_application(root, client):
    """Makes an application of a realistic size, with few large files and many small ones. All are
    made of repeated words, which compress, but about half of the files begin with random bytes,
    which don't compress, up to the middle."""
    rng = random.Random(SEED)
    weights = [rng.lognormvariate(0, 1.9) for _ in range(FILES)]
    words = [rng.randbytes(rng.randint(2, 12)) for _ in range(4000)]

    def content(size):
        dense = rng.randbytes(size // 2 if rng.random() < 0.5 else 0)
        text = b"".join(rng.choices(words, cum_weights=range(1, 4001), k=max(1, size // 6)))
        return (dense + text * 2)[:size]

    for i, weight in enumerate(weights):
        add_file(root, i % FOLDERS, i, content(max(1, int(BYTES * weight / sum(weights)))))
    complete(root, client)


def make_small_application(root, client, entries, size):
    """Makes an application of that many files and folders: fifty files a folder, of one size."""
    rng = random.Random(SEED)
    for i in range(entries - entries // 51):
        add_file(root, i // 50, i, rng.randbytes(size))
    complete(root, client)


def add_file(root, folder, number, content):
    path = root / f"Contents/Resources/part{folder:04d}/file{number:06d}.bin"
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(content)


def complete(root, client):
    """Adds the files that the launcher and the packaging tool require."""
    (root / CLIENT).parent.mkdir()
    shutil.copy(client, root / CLIENT)
    (root / "Contents/Info.plist").write_text(INFO_PLIST)
    (root / INFO).write_text(info(2))


def pack(make_package, kind, application, package):
    """Packs an application with make-package, in the format kind."""
    subprocess.run([make_package, "--format", kind, application, package], check=True,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def pack_deep(package, depth, folders):
    """Makes a zip with a file at that depth and with entries for that many folders above it."""
    with zipfile.ZipFile(package, "w") as archive:
        for i in range(1, folders + 1):
            archive.writestr("d/" * (depth * i // folders), b"")
        archive.writestr("d/" * depth + "file", b"")
