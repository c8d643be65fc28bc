"""What every bench needs: running programs, what a run cost, and the lines of the table."""

import contextlib
import dataclasses
import os
import pathlib
import re
import resource
import select
import shutil
import subprocess
import sys
import tempfile
import time

MIB = 1 << 20


@dataclasses.dataclass
class Cost:
    """What a run took. `cpu` is of the program and all its children, `memory` in MiB of the program itself."""

    seconds: float
    cpu: float
    memory: float = 0
    output: str = ""


@dataclasses.dataclass
class Row:
    """One line of the table. `goal` is the highest ratio, or without `theirs` the highest value, that will do."""

    what: str
    unit: str
    ours: float
    beside: str = ""
    theirs: float | None = None
    goal: float | None = None
    our_cpu: float | None = None
    their_cpu: float | None = None

    @property
    def measured(self):
        return self.ours if self.theirs is None else self.ours / self.theirs

    def cells(self, letter):
        def number(value):
            return "" if value is None else f"{value:.3f}"

        ratio = "" if self.theirs is None else number(self.measured)
        goal = "" if self.goal is None else f"<= {self.goal:g}" + ("" if self.theirs is not None else f" {self.unit}")
        verdict = "" if self.goal is None else "met" if self.measured <= self.goal else "MISSED"
        return [letter, self.what, self.unit, number(self.ours), self.beside, number(self.theirs), ratio, goal, verdict,
                number(self.our_cpu), number(self.their_cpu)]


def time_row(what, ours, beside="", theirs=None, goal=None):
    """The line of two costs: their seconds, with the processor seconds at its end."""
    return Row(what, "s", ours.seconds, beside, theirs and theirs.seconds, goal, ours.cpu, theirs and theirs.cpu)


def memory_row(what, ours, beside, theirs, goal=None):
    """The same of their peak memory."""
    return Row(what, "MiB", ours.memory, beside, theirs.memory, goal)


def peak_memory(process_id):
    """The most memory that a process has had resident so far, in MiB; 0 when it has ended.

    The kernel's own account of an ended child would not do: it starts with what this program had at the fork.
    """
    with contextlib.suppress(OSError):
        status = pathlib.Path(f"/proc/{process_id}/status").read_text(encoding="utf-8")
        if found := re.search(r"^VmHWM:\s*(\d+) kB", status, re.M):
            return int(found.group(1)) / 1024
    return 0


def processor_time():
    """Seconds of all children that were waited for, with theirs."""
    usage = resource.getrusage(resource.RUSAGE_CHILDREN)
    return usage.ru_utime + usage.ru_stime


def watch(process):
    """Waits for a process, looking at its memory fifty times a second; answers the peak in MiB."""
    peak = 0
    ended = os.pidfd_open(process.pid)
    try:
        while not select.select([ended], [], [], 0.02)[0]:
            peak = max(peak, peak_memory(process.pid))
    finally:
        os.close(ended)
    process.wait()
    return peak


class Bench:
    """Programs, data, a scratch folder, and a home that is not the user's."""

    def __init__(self, arguments):
        self.bin = pathlib.Path(arguments.bin).resolve()
        self.scratch = pathlib.Path(arguments.scratch).resolve()
        self.peers = arguments.peers
        self.runs = arguments.runs
        self.scale = arguments.scale
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

    def scaled(self, size):
        """A number of rows, files or MiB as it is asked for on the command line."""
        return max(1, round(size * self.scale))

    def run(self, *command):
        """Runs a program to its end; a failure ends the bench with its words."""
        with tempfile.TemporaryFile() as output, tempfile.TemporaryFile() as errors:
            cpu, start = processor_time(), time.perf_counter()
            process = subprocess.Popen([str(word) for word in command], env=self.environment,
                                       stdin=subprocess.DEVNULL, stdout=output, stderr=errors)
            memory = watch(process)
            cost = Cost(time.perf_counter() - start, processor_time() - cpu, memory)
            printed = []
            for file in (output, errors):
                file.seek(0)
                printed.append(file.read().decode(errors="replace"))
        if process.returncode != 0:
            raise RuntimeError(f"{command[0]} ended with {process.returncode}:\n{printed[0][-1000:]}{printed[1][-2000:]}")
        cost.output = printed[0]
        return cost

    def work(self, *arguments):
        """A piece of the application's work, which measures itself; its result is the output."""
        seconds, cpu, result = self.run(self.bin / "corvalis-bench", *arguments).output.split()
        return Cost(float(seconds), float(cpu), output=result)

    def in_turns(self, **measures):
        """Calls each in turn and answers the least of its costs by name.

        What else the machine does can only make a run longer, so the shortest of several tells most. Each round begins
        with another one, so that none always finds what the same one has left behind.
        """
        taken = {name: [] for name in measures}
        for number in range(self.runs):
            names = list(measures)
            for name in names[number % len(names):] + names[:number % len(names)]:
                os.sync()
                taken[name].append(measures[name]())
            self.say(f"   run {number + 1} of {self.runs}, seconds (processor): "
                     + ", ".join(f"{name} {costs[-1].seconds:.3f} ({costs[-1].cpu:.3f})" for name, costs in taken.items()))
        return {name: Cost(min(cost.seconds for cost in costs), min(cost.cpu for cost in costs),
                           max(cost.memory for cost in costs)) for name, costs in taken.items()}

    def fresh(self, name):
        """An empty folder in the scratch folder."""
        folder = self.scratch / name
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir(parents=True)
        return folder

    def remove(self, *names):
        """Takes files and folders out of the scratch folder."""
        for path in (self.scratch / name for name in names):
            shutil.rmtree(path, ignore_errors=True) if path.is_dir() else path.unlink(missing_ok=True)

    def blank_disc(self, kind):
        """Recorder 1 with a blank disc of this kind and nothing else."""
        self.remove("recorders")
        self.run(self.bin / "drutil", "list")
        self.run(self.bin / "drutil", "insert", kind, "-drive", "1")
