#!/usr/bin/env python3
"""Our numbers beside those of other programs. Run by scripts/bench, which builds first.

bench.py --bin FOLDER --scratch FOLDER [--peers] [--runs N] [--scale X] [LETTER...]

A bench is a function that takes the Bench and gives rows; BENCHES lists them by letter.
"""

import argparse
import pathlib
import sys
import tempfile

import application
import discs
import trees
from measuring import Bench

BENCHES = {
    "a": application.bench_start,
    "b": application.bench_audio_job,
    "c": application.bench_adding,
    "d": application.bench_sorting,
    "e": application.bench_video_job,
    "f": trees.bench_staging,
    "g": discs.bench_data_disc,
    "h": trees.bench_measuring,
    "i": discs.bench_image,
    "j": discs.bench_processor,
}

HEADINGS = ["", "what", "unit", "ours", "beside", "theirs", "ratio", "goal", "", "our cpu s", "their cpu s"]
NUMBERS = {3, 5, 6, 9, 10}


def print_table(rows):
    lines = [HEADINGS, *rows]
    widths = [max(len(line[column]) for line in lines) for column in range(len(HEADINGS))]
    for line in lines:
        print("  ".join(cell.rjust(width) if column in NUMBERS else cell.ljust(width)
                        for column, (cell, width) in enumerate(zip(line, widths, strict=True))).rstrip())


def command_line():
    parser = argparse.ArgumentParser(description="Our numbers beside those of other programs.", prog="scripts/bench",
                                     formatter_class=argparse.RawDescriptionHelpFormatter,
                                     epilog="\n".join(function.__doc__.splitlines()[0] for function in BENCHES.values()))
    parser.add_argument("--bin", required=True, help=argparse.SUPPRESS)
    parser.add_argument("--scratch", metavar="FOLDER", help="where up to 14 GiB are needed for a while (default: a folder in the build folder)")
    parser.add_argument("--peers", action="store_true", help="(a) beside other disc programs, which are installed for it")
    parser.add_argument("--runs", type=int, default=3, metavar="N", help="measure N times, the least counts (default: 3)")
    parser.add_argument("--scale", type=float, default=1, metavar="X",
                        help="X times as much data, to try a bench out: the goals are for 1")
    parser.add_argument("letters", nargs="*", metavar="LETTER", help="the benches to run (default: all)")
    arguments = parser.parse_args()
    unknown = [letter for letter in arguments.letters if letter not in BENCHES]
    if unknown:
        parser.error(f"there is no bench {', '.join(unknown)}; they are {', '.join(BENCHES)}")
    if arguments.runs < 1 or arguments.scale <= 0:
        parser.error("--runs is at least 1, and --scale more than 0")
    return arguments


def main():
    arguments = command_line()
    base = pathlib.Path(arguments.scratch or pathlib.Path(arguments.bin).resolve().parent)
    base.mkdir(parents=True, exist_ok=True)
    rows, failed = [], False
    with tempfile.TemporaryDirectory(prefix="bench-", dir=base, ignore_cleanup_errors=True) as scratch:
        arguments.scratch = scratch
        bench = Bench(arguments)
        for letter in arguments.letters or BENCHES:
            bench.say(BENCHES[letter].__doc__.splitlines()[0])
            try:
                rows += [row.cells(letter) for row in BENCHES[letter](bench)]
            except (RuntimeError, OSError) as trouble:
                failed = True
                bench.say(f"bench {letter} could not be run: {trouble}")
    if rows:
        print_table(rows)
    return 1 if failed or any("MISSED" in row for row in rows) else 0


if __name__ == "__main__":
    sys.exit(main())
