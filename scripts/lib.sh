# shellcheck shell=bash
# What the scripts share. Sourced, never run.

# shellcheck disable=SC2034 # used by whoever sources this
root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)

# say TEXT...: one line to the person, on standard error so that a program's own output stays clean.
say() { printf '%s\n' "== $*" >&2; }

# die TEXT...: say why and end with 1.
die() { printf '%s\n' "$(basename -- "$0"): $*" >&2; exit 1; }

# cores: how many jobs to run at once.
cores() { printf '%s' "${CORVALIS_JOBS:-$(nproc)}"; }

# usage: the comment at the head of the running script is its help.
usage() { sed -n '2,/^[^#]/{/^#/!d;s/^# \{0,1\}//;p}' -- "$0"; }
