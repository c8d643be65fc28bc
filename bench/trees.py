"""Benches of what the application does to folder trees."""

import data
from measuring import time_row


def staging_row(bench, what, source):
    """The row of copying this folder.

    The copies are taken away together at the end: a file system may search long for the place of a new file while it
    keeps those of files that were deleted a moment ago free, as ext4 does.
    """
    copies = []

    def copied(measure):
        copies.append(f"copy {len(copies)}")
        return measure(bench.fresh(copies[-1]))

    cost = bench.in_turns(ours=lambda: copied(lambda folder: bench.work("stage", source, folder)),
                          cp=lambda: copied(lambda folder: bench.run("cp", "-a", source, folder)))
    bench.remove(*copies)
    return time_row(f"staging {what}", cost["ours"], "cp -a", cost["cp"], 1.1)


def bench_staging(bench):
    """(f) gathering folders for a data disc beside cp -a."""
    small = staging_row(bench, f"{bench.scaled(50_000):,} small files", data.texts(bench))
    large = staging_row(bench, f"one file of {bench.scaled(4096)} MiB", data.large_file(bench))
    bench.remove("large")
    return [small, large]


def bench_measuring(bench):
    """(h) measuring a tree beside du."""
    tree = data.many_files(bench)
    # du adds the folder that was named; the list counts what is in it.
    folder_itself = tree.stat().st_size
    told = int(bench.work("size", tree).output)
    du = int(bench.run("du", "-sbL", tree).output.split()[0]) - folder_itself
    if told != du:
        raise RuntimeError(f"the folder was measured as {told} bytes, and du says {du}")
    cost = bench.in_turns(ours=lambda: bench.work("size", tree), du=lambda: bench.run("du", "-sbL", tree))
    return [time_row(f"measuring {bench.scaled(200_000):,} files", cost["ours"], "du -sbL", cost["du"], 1.0)]
