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

# sanitizer_options: every finding of a sanitizer ends the program, so that nothing found goes unseen; what is
# known of libraries is left out. Options set by hand win.
sanitizer_options() {
    local lists=$root/cmake/sanitizers
    export ASAN_OPTIONS="abort_on_error=1:detect_stack_use_after_return=1:strict_string_checks=1:check_initialization_order=1${ASAN_OPTIONS:+:$ASAN_OPTIONS}"
    export UBSAN_OPTIONS="halt_on_error=1:abort_on_error=1:print_stacktrace=1:suppressions=$lists/ubsan.supp${UBSAN_OPTIONS:+:$UBSAN_OPTIONS}"
    export LSAN_OPTIONS="suppressions=$lists/lsan.supp:print_suppressions=0${LSAN_OPTIONS:+:$LSAN_OPTIONS}"
    export TSAN_OPTIONS="halt_on_error=1:die_after_fork=0:second_deadlock_stack=1:suppressions=$lists/tsan.supp${TSAN_OPTIONS:+:$TSAN_OPTIONS}"
}
