"""What is measured: the rows of the tables, as data.

An operation is the name of a method of Workbench, with its arguments. The method returns
seconds, or bytes if the row's unit is "B".
"""

import dataclasses

SHIPPED = "tar.zst"  # what scripts/make-package writes unless told otherwise


@dataclasses.dataclass(frozen=True)
class Row:
    what: str
    ours: tuple
    beside: str
    peer: tuple
    limit: float  # of the ratio, ours divided by the peer's
    unit: str = "s"


@dataclasses.dataclass(frozen=True)
class Part:
    """Rows that are measured in turn. --only selects parts by name."""

    name: str
    rounds: int
    rows: tuple


BY_HAND = "`mv`, `bsdtar`, `sync -f`, `rm -rf`"
FLOOR = "the floor: decompress, write, `syncfs`, remove"
EMPTY = "an empty Qt program"

AS_PACKED = Row("upgrade, as we pack the client", ("upgrade", SHIPPED),
                f"the same files as zip: {BY_HAND}", ("by_hand", "zip"), 0.70)
ZIP = Row("upgrade, zip", ("upgrade", "zip"), f"the same by hand: {BY_HAND}", ("by_hand", "zip"),
          0.95)
REMOVE = Row("`FSRemove` of the application", ("remove",), "`rm -rf`", ("remove_by_hand",), 1.00)
COPY_LARGE = Row("`FSCopy` of 1 GiB", ("copy_large",), "`cp`, `sync FILE`",
                 ("copy_large_by_hand",), 1.00)
COPY_SMALL = Row("`FSCopy` of 4 KiB, 100 times", ("copy_small",), "`cp`, `sync FILE`",
                 ("copy_small_by_hand",), 1.00)
COPY_TREE = Row("`FSCopyPath` of the application", ("copy_tree",), "`cp -r`, `sync` of all files",
                ("copy_tree_by_hand",), 1.00)

PARTS = (
    Part("upgrade", 15, (
        AS_PACKED,
        Row("upgrade, tar.zst", ("upgrade", SHIPPED), f"the same by hand: {BY_HAND}",
            ("by_hand", SHIPPED), 1.30),
        Row("upgrade, tar.zst", ("upgrade", SHIPPED), FLOOR, ("floor", SHIPPED), 1.25),
    )),
    Part("upgrade", 15, (
        ZIP,
        Row("upgrade, zip", ("upgrade", "zip"), FLOOR, ("floor", "zip"), 1.25),
    )),
    Part("upgrade", 9, (  # each run takes over a second
        Row("upgrade, tar.gz", ("upgrade", "tar.gz"), f"the same by hand: {BY_HAND}",
            ("by_hand", "tar.gz"), 1.65),
        Row("upgrade, tar.gz", ("upgrade", "tar.gz"), FLOOR, ("floor", "tar.gz"), 1.25),
    )),
    Part("start", 41, (
        Row("nothing to do, until the client is started", ("start_client", "launcher"),
            f"{EMPTY} that builds a progress dialog and starts the client",
            ("start_client", "empty"), 1.12),
    )),
    Part("start", 21, (
        Row("upgrade, until the window's first frame", ("first_frame", "launcher"),
            f"{EMPTY}'s progress dialog", ("first_frame", "empty"), 1.20),
    )),
    Part("memory", 5, (
        Row("peak memory, an upgrade", ("peak_memory", "launcher"),
            f"{EMPTY} that shows a progress dialog", ("peak_memory", "empty"), 1.30, "B"),
    )),
    Part("remove", 15, (REMOVE,)),
    Part("copy", 15, (COPY_LARGE,)),
    Part("copy", 15, (COPY_SMALL,)),
    Part("copy", 7, (COPY_TREE,)),  # each run takes seconds
    Part("small", 25, (
        Row("NFC of a path", ("small", "Compose"), "ICU's own calls", ("small", "Compose/icu"),
            1.05),
        Row("a string from UTF-8", ("small", "FromUtf8"), "`QString`",
            ("small", "FromUtf8/QString"), 1.00),
        Row("joining a path", ("small", "Join"), "`QString`", ("small", "Join/QString"), 1.00),
        Row("a log line that is written", ("small", "LogWritten"), "spdlog",
            ("small", "LogWritten/spdlog"), 1.00),
        Row("a log line that is dropped", ("small", "LogDropped"), "a mutex and a map lookup",
            ("small", "LogDropped/lookup"), 1.50),
    )),
)

# What --disks measures on every file system.
DISK_PARTS = tuple(
    Part("disks", rounds, tuple(dataclasses.replace(row, limit=1.10) for row in rows))
    for rounds, rows in ((15, (AS_PACKED, ZIP)), (15, (REMOVE,)), (15, (COPY_LARGE,)),
                         (15, (COPY_SMALL,)), (5, (COPY_TREE,))))


@dataclasses.dataclass(frozen=True)
class Series:
    """An operation that is measured at increasing sizes."""

    what: str
    operation: tuple  # with the size as its last argument
    limit: float | None  # of the ratio that Table defines
    unit: str = "s"


@dataclasses.dataclass(frozen=True)
class Table:
    """Series of the same sizes. The ratio is the last size's value by that of size `beside`."""

    name: str
    noun: str  # what the size counts
    sizes: tuple
    beside: int
    rounds: int
    series: tuple


GROWTH = Table("growth", "entries", (100, 1000, 10_000, 100_000), 100, 3, (
    Series("unpack an entry, tar.zst", ("unpack_entry", SHIPPED), 1.30),
    Series("unpack an entry, zip", ("unpack_entry", "zip"), 1.30),
    Series("remove an entry", ("remove_entry",), 1.30),
    Series("peak memory of an upgrade, tar.zst", ("peak_of_entries", SHIPPED), 1.05, "B"),
    Series("peak memory of an upgrade, zip", ("peak_of_entries", "zip"), None, "B"),
))
# The ratio is for twice the depth: 2 means linear growth, 4 quadratic.
DEPTH = Table("depth", "folders deep", (250, 500, 1000), 500, 15, tuple(
    Series(what, ("at_depth", operation), 2.60) for what, operation in (
        ("make the folders", "make-folders"),
        ("describe the last one", "describe"),
        ("copy the folders", "copy-tree"),
        ("remove the folders", "remove"),
        ("unpack one file", "unpack"),
        ("unpack a hundred folders on the way", "unpack-folders"),
    )))
