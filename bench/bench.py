#!/usr/bin/env python3
"""Our numbers beside those of other programs. Run by scripts/bench, which builds first.

bench.py --bin FOLDER --scratch FOLDER [--peers] [--runs N] [LETTER...]

A bench is a function that takes the Bench and gives rows; BENCHES at the end lists them by letter. What is compared runs in
turns, so that a machine that is busy for a while is busy for both, and the median counts.
"""

import argparse
import contextlib
import dataclasses
import os
import pathlib
import re
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import time

import x11


@dataclasses.dataclass
class Row:
    """One line of the table. `goal` is the highest ratio, or without `theirs` the highest value, that will do."""

    what: str
    unit: str
    ours: float
    beside: str = ""
    theirs: float | None = None
    goal: float | None = None

    @property
    def measured(self):
        return self.ours if self.theirs is None else self.ours / self.theirs

    def cells(self, letter):
        ratio = "" if self.theirs is None else f"{self.measured:.3f}"
        goal = "" if self.goal is None else f"<= {self.goal:g}" + ("" if self.theirs is not None else f" {self.unit}")
        verdict = "" if self.goal is None else "met" if self.measured <= self.goal else "MISSED"
        theirs = "" if self.theirs is None else f"{self.theirs:.3f}"
        return [letter, self.what, self.unit, f"{self.ours:.3f}", self.beside, theirs, ratio, goal, verdict]


class Bench:
    """What every bench needs: programs, a scratch folder, and a home that is not the user's."""

    def __init__(self, arguments):
        self.bin = pathlib.Path(arguments.bin).resolve()
        self.scratch = pathlib.Path(arguments.scratch).resolve()
        self.peers = arguments.peers
        self.runs = arguments.runs
        self.home = self.scratch / "home"
        self.environment = dict(
            os.environ, HOME=str(self.home), LC_ALL="C.UTF-8", CORVALIS_VIRTUAL="only",
            CORVALIS_RECORDERS=str(self.scratch / "recorders"), XDG_RUNTIME_DIR=str(self.scratch / "runtime"),
            XDG_CONFIG_HOME=str(self.home / ".config"), XDG_DATA_HOME=str(self.home / ".local/share"),
            XDG_CACHE_HOME=str(self.home / ".cache"), XDG_DOCUMENTS_DIR=str(self.home / "Documents"))
        for name in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"):
            self.environment.pop(name, None)
        for folder in (self.home, self.scratch / "runtime"):
            folder.mkdir(parents=True, exist_ok=True)
            folder.chmod(0o700)

    def say(self, text):
        print(f"== {text}", file=sys.stderr, flush=True)

    def run(self, *command, **more):
        """Runs a program to its end and gives the seconds; a failure ends the bench with its words."""
        start = time.perf_counter()
        done = subprocess.run(
            [str(word) for word in command], env=self.environment, stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, errors="replace", check=False, **more)
        took = time.perf_counter() - start
        if done.returncode != 0:
            raise RuntimeError(f"{command[0]} ended with {done.returncode}:\n{done.stdout[-1000:]}{done.stderr[-2000:]}")
        return took, done.stdout

    def in_turns(self, *measures):
        """Medians of calling each in turn, after one round that does not count where there are more than two."""
        taken = [[] for _ in measures]
        for number in range(self.runs):
            for measure, values in zip(measures, taken, strict=True):
                os.sync()
                values.append(measure())
            self.say(f"   run {number + 1} of {self.runs}: " + ", ".join(f"{values[-1]:.3f}" for values in taken))
        return [statistics.median(values) for values in taken]

    def fresh(self, name):
        """An empty folder in the scratch folder."""
        folder = self.scratch / name
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir(parents=True)
        return folder

    def songs(self, count):
        """So many different names of a piece of three minutes, made once."""
        folder = self.scratch / "songs"
        folder.mkdir(exist_ok=True)
        source = folder / "song.mp3"
        if not source.exists():
            self.say("making a piece of three minutes")
            chord = "+".join(f"0.1*sin({n}*PI*110*t+3*sin(PI*t/{n}))" for n in range(2, 8))
            self.run("ffmpeg", "-v", "error", "-f", "lavfi", "-i", f"aevalsrc={chord}|{chord}:s=44100:d=180", "-b:a", "192k",
                     "-y", source)
        files = [folder / f"{number:03} song.mp3" for number in range(1, count + 1)]
        for file in files:
            if not file.exists():
                os.link(source, file)
        return files


def peak_memory(process_id):
    """The most memory that a process has had resident so far, in MiB."""
    status = pathlib.Path(f"/proc/{process_id}/status").read_text(encoding="utf-8")
    return int(re.search(r"^VmHWM:\s*(\d+) kB", status, re.M).group(1)) / 1024


@contextlib.contextmanager
def session_bus(bench):
    """A D-Bus session of its own, as a desktop has one: without it some programs wait for a time-out."""
    bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address=1"], env=bench.environment,
                           stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    try:
        yield bus.stdout.readline().strip()
    finally:
        bus.terminate()
        bus.wait()


def start_once(bench, display, bus, command):
    """Seconds from exec to the mapped main window, and the peak memory in MiB at that moment.

    Where there is no burner one of the others says so in a dialog first; it is closed without any delay.
    """
    environment = dict(bench.environment, DISPLAY=f":{display}", DBUS_SESSION_BUS_ADDRESS=bus)
    watcher = x11.Watcher(display)
    start = time.perf_counter()
    program = subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL, start_new_session=True)
    try:
        mapped = watcher.wait_for_window(400, 300, timeout=30)
        if mapped is None:
            raise RuntimeError(f"{command[0]} showed no window within 30 s")
        return mapped - start, peak_memory(program.pid)
    finally:
        watcher.close()
        with contextlib.suppress(ProcessLookupError):
            os.killpg(program.pid, signal.SIGKILL)
        program.wait()


def bench_start(bench):
    """(a) from exec to the mapped main window, and peak memory at that point."""
    programs = {"corvalis": [str(bench.bin / "corvalis")]}
    if bench.peers:
        programs |= {name: [name] for name in ("xfburn", "brasero")}
    taken = {name: [] for name in programs}
    with x11.virtual_display() as display, session_bus(bench) as bus:
        for number in range(max(10, bench.runs) + 1):
            for name, command in programs.items():
                once = start_once(bench, display, bus, command)
                if number > 0:  # the first fills the caches
                    taken[name].append(once)
    middle = {name: [statistics.median(column) for column in zip(*values, strict=True)] for name, values in taken.items()}
    seconds, memory = middle["corvalis"]
    if not bench.peers:
        return [Row("start to mapped window", "s", seconds), Row("peak memory there", "MiB", memory)]
    return [Row("start to mapped window", "s", seconds, "xfburn", middle["xfburn"][0], 0.5),
            Row("start to mapped window", "s", seconds, "brasero", middle["brasero"][0]),
            Row("peak memory there", "MiB", memory, "brasero", middle["brasero"][1], 1.0),
            Row("peak memory there", "MiB", memory, "xfburn", middle["xfburn"][1])]


def blank_disc(bench, kind):
    """Recorder 1 with a blank disc of this kind and nothing else."""
    shutil.rmtree(bench.scratch / "recorders", ignore_errors=True)
    bench.run(bench.bin / "drutil", "list")
    bench.run(bench.bin / "drutil", "insert", kind, "-drive", "1")


def bench_audio_job(bench):
    """(b) a whole audio job beside a shell loop of the same conversions and a plain writer."""
    songs = bench.songs(20)

    def ours():
        blank_disc(bench, "cd-r")
        return bench.run(bench.bin / "corvalis", "--burn", "Audio CD", "--", *songs)[0]

    def theirs():
        folder = bench.fresh("loop")
        loop = ('out=$1; shift; for song; do base=${song##*/}; '
                'ffmpeg -i "$song" -acodec pcm_s16le -ar 44100 -ac 2 "$out/${base%.*}.wav" </dev/null; done; '
                'cat "$out"/*.wav | xorriso -as cdrecord "dev=stdio:$out/disc.bin" -')
        took = bench.run("bash", "-e", "-o", "pipefail", "-c", loop, "loop", folder, *songs)[0]
        shutil.rmtree(folder)
        return took

    bench.say("audio job: 20 files of 3 minutes, ours and the loop in turns")
    mine, other = bench.in_turns(ours, theirs)
    shutil.rmtree(bench.scratch / "recorders", ignore_errors=True)
    return [Row("audio job, 20 x 3 min", "s", mine, "ffmpeg loop + xorriso", other, 1.05)]


def bench_adding(bench):
    """(c) listing 200 files beside a bare loop of the same probes."""
    songs = bench.songs(200)

    def ours():
        return float(bench.run(bench.bin / "corvalis-bench", "add", *songs)[1])

    def theirs():
        return bench.run("bash", "-c", 'for song; do ffmpeg -i "$song" </dev/null; done; true', "loop", *songs)[0]

    bench.say("adding 200 files, ours and the loop in turns")
    mine, other = bench.in_turns(ours, theirs)
    return [Row("adding 200 files", "s", mine, "loop of ffmpeg -i", other, 1.10)]


def bench_sorting(bench):
    """(d) sorting 100,000 rows by the worst column and refreshing the table."""
    values = [float(bench.run(bench.bin / "corvalis-bench", "sort", "100000")[1]) for _ in range(bench.runs)]
    return [Row("sorting 100,000 rows, refresh", "s", statistics.median(values), goal=0.5)]


BENCHES = {
    "a": bench_start,
    "b": bench_audio_job,
    "c": bench_adding,
    "d": bench_sorting,
}

HEADINGS = ["", "what", "unit", "ours", "beside", "theirs", "ratio", "goal", ""]


def print_table(rows):
    lines = [HEADINGS, *rows]
    widths = [max(len(line[column]) for line in lines) for column in range(len(HEADINGS))]
    numbers = {3, 5, 6}
    for line in lines:
        print("  ".join(cell.rjust(width) if column in numbers else cell.ljust(width)
                        for column, (cell, width) in enumerate(zip(line, widths, strict=True))).rstrip())


def main():
    parser = argparse.ArgumentParser(description="Our numbers beside those of other programs.", prog="scripts/bench",
                                     epilog="; ".join(function.__doc__.splitlines()[0] for function in BENCHES.values()))
    parser.add_argument("--bin", required=True, help=argparse.SUPPRESS)
    parser.add_argument("--scratch", help="where large files are made for a while (default: a folder in the build folder)")
    parser.add_argument("--peers", action="store_true", help="beside other disc programs, which are installed for it")
    parser.add_argument("--runs", type=int, default=3, metavar="N", help="measure N times, the median counts (default: 3)")
    parser.add_argument("letters", nargs="*", metavar="LETTER", help="the benches to run (default: all)")
    arguments = parser.parse_args()
    unknown = [letter for letter in arguments.letters if letter not in BENCHES]
    if unknown or arguments.runs < 1:
        parser.error(f"there is no bench {', '.join(unknown)}; they are {', '.join(BENCHES)}" if unknown else "--runs is at least 1")
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
    return 1 if failed or any(row[-1] == "MISSED" for row in rows) else 0


if __name__ == "__main__":
    sys.exit(main())
