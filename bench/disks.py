"""Creates the file systems that the benchmarks use."""

import contextlib
import os
import pathlib
import subprocess
import tempfile

SIZE = 6 << 30  # bytes; only what is used occupies space
MAKERS = {"ext4": ["mkfs.ext4", "-q"], "btrfs": ["mkfs.btrfs", "-q"], "xfs": ["mkfs.xfs", "-q"]}
ALL = (*MAKERS, "tmpfs")


def mount(kind, root):
    """Mounts a new file system on a new folder below root."""
    disk = root / "disk"
    disk.mkdir()
    if kind == "tmpfs":
        subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={SIZE}", "tmpfs", disk], check=True)
        return disk
    image = root / "image"
    with open(image, "wb") as file:
        file.truncate(SIZE)
    subprocess.run([*MAKERS[kind], image], check=True, stdout=subprocess.DEVNULL)
    subprocess.run(["mount", "-o", "loop", image, disk], check=True)
    device = subprocess.run(["findmnt", "-no", "SOURCE", disk], check=True, capture_output=True,
                            text=True).stdout.strip()
    # Bypass the page cache for the image file, as if the file were a disk.
    subprocess.run(["losetup", "--direct-io=on", device], check=True)
    return disk


@contextlib.contextmanager
def own_disk(kind, folder):
    """Yields a folder to work in: in the given one or, without that, below build/. For root, the
    latter is a new file system, so that the age and the mount options of the machine's own file
    system don't influence the results."""
    with tempfile.TemporaryDirectory(dir=folder or pathlib.Path.cwd() / "build") as made:
        root = pathlib.Path(made)
        if folder or os.geteuid() != 0:
            yield root
            return
        disk = mount(kind, root)
        try:
            yield disk
        finally:
            subprocess.run(["umount", "-l", disk], check=True)
