"""Benches of the disc engine: images, and data discs in a virtual recorder."""

import functools

import data
from measuring import MIB, Row, memory_row, time_row


def trees(bench):
    """Names and folders of what is written: much in few files, and much in many."""
    return ((f"3 x {bench.scaled(700)} MiB", data.films(bench)),
            (f"{bench.scaled(50_000):,} small files", data.texts(bench)))


def bytes_in(folder):
    return sum(path.stat().st_size for path in folder.rglob("*") if path.is_file())


@functools.cache
def burned(bench, tree):
    """The costs of writing this folder to a disc."""
    def ours(*options):
        bench.blank_disc("dvd-r")
        cost = bench.run(bench.bin / "drutil", "burn", *options, tree, "-drive", "1")
        bench.remove("recorders")
        return cost

    def xorriso():
        image = bench.scratch / "out.iso"
        cost = bench.run("xorriso", "-outdev", f"stdio:{image}", "-joliet", "on", "-map", tree, "/", "-commit")
        image.unlink()
        return cost

    return bench.in_turns(ours=lambda: ours("-noverify"), verified=ours, xorriso=xorriso)


def bench_data_disc(bench):
    """(g) writing a data disc to a virtual recorder beside xorriso writing the same to a file."""
    rows = []
    for what, tree in trees(bench):
        cost = burned(bench, tree)
        rows += [time_row(f"data disc of {what}", cost["ours"], "xorriso", cost["xorriso"], 1.0),
                 time_row("the same, read back and compared", cost["verified"], "xorriso", cost["xorriso"], 1.0),
                 memory_row("peak memory", cost["ours"], "xorriso", cost["xorriso"], 0.7),
                 memory_row("the same, read back and compared", cost["verified"], "xorriso", cost["xorriso"], 0.7)]
    return rows


def bench_image(bench):
    """(i) making an image beside other programs, and beside cat of the same bytes as the limit."""
    rows = []
    image = bench.scratch / "out.iso"
    options = ("-quiet", "-iso-level", "3", "-J", "-joliet-long", "-o", image)

    def made(*command):
        cost = bench.run(*command)
        image.unlink()
        return cost

    for what, tree in trees(bench):
        cost = bench.in_turns(
            ours=lambda: made(bench.bin / "hdiutil", "makehybrid", "-o", image, tree, "-iso", "-joliet"),
            xorrisofs=lambda: made("xorrisofs", *options, tree),
            genisoimage=lambda: made("genisoimage", *options, tree),
            cat=lambda: made("sh", "-c", 'find "$1" -type f -print0 | xargs -0 cat >"$2"', "sh", tree, image))
        best = min(("xorrisofs", "genisoimage"), key=lambda name: cost[name].seconds)
        for beside in ("xorrisofs", "genisoimage", "cat"):
            rows.append(time_row(f"image of {what}", cost["ours"], beside, cost[beside], 0.95 if beside == best else None))
        rows.append(memory_row("peak memory", cost["ours"], "xorrisofs", cost["xorrisofs"], 1.0))
    return rows


def bench_processor(bench):
    """(j) processor seconds for each GiB burned."""
    rows = []
    for what, tree in trees(bench):
        cost = burned(bench, tree)
        per_gib = {name: each.cpu * 1024 * MIB / bytes_in(tree) for name, each in cost.items()}
        for name, disc in (("ours", f"disc of {what}"), ("verified", "the same, read back and compared")):
            rows.append(Row(f"processor, {disc}", "s/GiB", per_gib[name], "xorriso", per_gib["xorriso"]))
    return rows
