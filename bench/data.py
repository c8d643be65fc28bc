"""The data that the benches work on. Each is made once in a run of scripts/bench."""

import os
import random

from measuring import MIB


def read_once(bench, folder):
    """So that it lies in memory for whoever comes first."""
    bench.run("sh", "-c", 'find "$1" -type f -print0 | xargs -0 cat >/dev/null', "sh", folder)
    return folder


def same_under_many_names(folder, source, count, suffix):
    files = [folder / f"{number:03} {source.stem}{suffix}" for number in range(1, count + 1)]
    for file in files:
        if not file.exists():
            os.link(source, file)
    return files


def songs(bench, count):
    """So many different names of a piece of three minutes."""
    folder = bench.scratch / "songs"
    folder.mkdir(exist_ok=True)
    source = folder / "song.mp3"
    if not source.exists():
        bench.say("making a piece of three minutes")
        chord = "+".join(f"0.1*sin({n}*PI*110*t+3*sin(PI*t/{n}))" for n in range(2, 8))
        bench.run("ffmpeg", "-v", "error", "-f", "lavfi", "-i", f"aevalsrc={chord}|{chord}:s=44100:d=180", "-b:a", "192k",
                  "-y", source)
    return same_under_many_names(folder, source, count, ".mp3")


def clips(bench, count):
    """So many different names of a film of a minute, as a camera makes it."""
    folder = bench.scratch / "clips"
    folder.mkdir(exist_ok=True)
    source = folder / "clip.mp4"
    if not source.exists():
        bench.say("making a film of a minute")
        bench.run("ffmpeg", "-v", "error", "-f", "lavfi", "-i", "testsrc2=s=1280x720:r=30,noise=alls=8:allf=t",
                  "-f", "lavfi", "-i", "sine=330:r=48000", "-t", bench.scaled(60), "-c:v", "libx264", "-preset", "veryfast",
                  "-pix_fmt", "yuv420p", "-c:a", "aac", "-y", source)
    return same_under_many_names(folder, source, count, ".mp4")


def write_large(file, mebibytes):
    piece = bytearray(os.urandom(MIB))
    with open(file, "wb") as out:
        for number in range(mebibytes):
            piece[:8] = number.to_bytes(8, "little")
            out.write(piece)


def films(bench):
    """A folder with three files of 700 MiB."""
    folder = bench.scratch / "films"
    if not folder.exists():
        bench.say("making three files of 700 MiB")
        folder.mkdir()
        for number in range(3):
            write_large(folder / f"film {number}.bin", bench.scaled(700))
    return read_once(bench, folder)


def large_file(bench):
    """A folder with one file of 4 GiB."""
    folder = bench.scratch / "large"
    if not folder.exists():
        bench.say("making a file of 4 GiB")
        folder.mkdir()
        write_large(folder / "large.bin", bench.scaled(4096))
    return read_once(bench, folder)


def texts(bench):
    """50,000 files of up to 16 KiB in 500 folders."""
    folder = bench.scratch / "texts"
    if not folder.exists():
        bench.say("making 50,000 small files")
        sizes = random.Random(1)
        for number in range(bench.scaled(50_000)):
            place = folder / f"folder {number % 500:03}"
            place.mkdir(parents=True, exist_ok=True)
            (place / f"file {number:06}.txt").write_bytes(os.urandom(sizes.randint(0, 16384)))
    return read_once(bench, folder)


def many_files(bench):
    """200,000 empty files and some links in 2,000 folders."""
    folder = bench.scratch / "many"
    if not folder.exists():
        bench.say("making 200,000 files")
        for number in range(bench.scaled(200_000)):
            place = folder / f"part {number % 20:02}" / f"folder {number // 20 % 100:03}"
            name = f"a name of middling length {number:06}"
            if number < 2000:
                place.mkdir(parents=True)
                (place / "link").symlink_to(name)
            (place / name).touch()
    return folder
