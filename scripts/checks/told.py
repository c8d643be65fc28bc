"""What the programs tell of themselves: verbs and options in --help and in the man pages."""

import re
import subprocess

# Where each program lies in a build.
PROGRAMS = {"corvalis": "bin/corvalis", "drutil": "bin/drutil", "hdiutil": "bin/hdiutil"}
# An option as it stands in a text: not within a word, and with a letter behind the dashes.
OPTION = re.compile(r"(?<![\w$./-])--?[a-z](?:[a-z-]*[a-z])?(?![\w-])")


def run(command):
    return subprocess.run(command, check=True, capture_output=True, text=True,
                          env={"PATH": "/usr/bin:/bin", "LC_ALL": "C.UTF-8", "HOME": "/nonexistent", "MANWIDTH": "200",
                               "MAN_KEEP_FORMATTING": "", "QT_QPA_PLATFORM": "offscreen"}).stdout


def help_text(build, program):
    return run([f"{build}/{PROGRAMS[program]}", "--help"])


def man_sections(program):
    """The page as text without bold and italics: {heading: lines}."""
    page = run(["man", "-E", "UTF-8", "-l", f"packaging/man/{program}.1"])
    page = re.sub(".\b", "", page).replace("\u2010", "-").replace("\u2212", "-")
    sections, lines = {}, []
    for line in page.splitlines():
        if re.match(r"[A-Z]", line):
            lines = sections.setdefault(line.strip(), [])
        else:
            lines.append(line)
    return sections


def help_interface(build, program):
    """(verbs, options) that --help tells."""
    text = help_text(build, program)
    verbs = set(re.findall(r"^  ([a-z]+)\b", text, re.M)) if program != "corvalis" else set()
    return verbs, set(OPTION.findall(text))


def man_interface(program):
    """(verbs, options) of the synopsis and of what the sections of verbs and options begin their paragraphs with."""
    sections = man_sections(program)
    synopsis = sections["SYNOPSIS"]
    heads = [line for name in ("VERBS", "OPTIONS") for line in sections.get(name, []) if re.match(r" {7}\S", line)]
    verbs = set()
    if program != "corvalis":
        verbs = set(re.findall(rf"^ +{program} ([a-z]+)", "\n".join(synopsis), re.M)) - {"help"}
    return verbs, set(OPTION.findall("\n".join(synopsis + heads)))
