"""What is upgraded, unpacked and copied: applications and packages, the same in every run."""

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
    """An application of a real one's size: few large files, many small ones, half of them code and
    text, which shrink to a half and less, half of them pictures and the like, which don't."""
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
    """An application of so many files and folders, fifty files in a folder, all of one size."""
    rng = random.Random(SEED)
    for i in range(entries - entries // 51):
        add_file(root, i // 50, i, rng.randbytes(size))
    complete(root, client)


def add_file(root, folder, number, content):
    path = root / f"Contents/Resources/part{folder:04d}/file{number:06d}.bin"
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(content)


def complete(root, client):
    """Adds what the launcher and the packaging tool look for."""
    (root / CLIENT).parent.mkdir()
    shutil.copy(client, root / CLIENT)
    (root / "Contents/Info.plist").write_text(INFO_PLIST)
    (root / INFO).write_text(info(2))


def pack(make_package, kind, application, package):
    """As scripts/make-package does it, in the format kind."""
    subprocess.run([make_package, "--format", kind, application, package], check=True,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def pack_deep(package, depth, folders):
    """A zip of one file so deep, and so many folders on the way: it grows with the depth only."""
    with zipfile.ZipFile(package, "w") as archive:
        for i in range(1, folders + 1):
            archive.writestr("d/" * (depth * i // folders), b"")
        archive.writestr("d/" * depth + "file", b"")
