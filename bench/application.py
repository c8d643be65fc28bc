"""Benches of the application as a person uses it."""

import contextlib
import os
import shutil
import signal
import statistics
import subprocess
import time

import data
import x11
from measuring import Row, peak_memory, time_row


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


def whole_job(bench, project, disc, files):
    bench.blank_disc(disc)
    cost = bench.run(bench.bin / "corvalis", "--burn", project, "--", *files)
    bench.remove("recorders")
    return cost


def shell_loop(bench, script, files):
    """What a script makes of the files in $@ in the folder $out."""
    folder = bench.fresh("loop")
    cost = bench.run("bash", "-e", "-o", "pipefail", "-c", f"out=$1; shift; {script}", "loop", folder, *files)
    shutil.rmtree(folder)
    return cost


def bench_audio_job(bench):
    """(b) a whole audio job beside a shell loop of the same conversions and a plain writer."""
    songs = data.songs(bench, bench.scaled(20))
    script = ('for song; do base=${song##*/}; '
              'ffmpeg -i "$song" -acodec pcm_s16le -ar 44100 -ac 2 "$out/${base%.*}.wav" </dev/null; done; '
              'cat "$out"/*.wav | xorriso -as cdrecord "dev=stdio:$out/disc.bin" -')
    cost = bench.in_turns(ours=lambda: whole_job(bench, "Audio CD", "cd-r", songs),
                          loop=lambda: shell_loop(bench, script, songs))
    return [time_row(f"audio job, {len(songs)} x 3 min", cost["ours"], "ffmpeg loop + xorriso", cost["loop"], 1.05)]


def bench_adding(bench):
    """(c) listing 200 files beside a bare loop of the same probes."""
    songs = data.songs(bench, bench.scaled(200))
    script = 'for song; do ffmpeg -i "$song" </dev/null || true; done'
    cost = bench.in_turns(ours=lambda: bench.work("add", *songs), loop=lambda: shell_loop(bench, script, songs))
    return [time_row(f"adding {len(songs)} files", cost["ours"], "loop of ffmpeg -i", cost["loop"], 1.10)]


def bench_sorting(bench):
    """(d) sorting 100,000 rows by the worst column and refreshing the table."""
    rows = bench.scaled(100_000)
    cost = bench.in_turns(ours=lambda: bench.work("sort", rows))
    return [time_row(f"sorting {rows:,} rows, refresh", cost["ours"], goal=0.5)]


def bench_video_job(bench):
    """(e) a whole video job, probes, disc and its verification included, beside the bare conversions."""
    clips = data.clips(bench, 8)
    script = ('for clip; do base=${clip##*/}; ffmpeg -i "$clip" -target ntsc-dvd -s 720x480 -r 29.97 -acodec ac3 '
              '-ar 48000 -ac 2 "$out/${base%.*}.mpg" </dev/null; done')
    cost = bench.in_turns(ours=lambda: whole_job(bench, "Video DVD", "dvd-r", clips),
                          loop=lambda: shell_loop(bench, script, clips))
    return [time_row(f"video job, {len(clips)} clips", cost["ours"], "ffmpeg loop", cost["loop"], 1.05)]
