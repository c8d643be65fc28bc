# shellcheck shell=bash
# What the groups of cases share. Sourced by suite.

device=${CORVALIS_TEST_DEVICE:-/dev/sr0}
programs=${CORVALIS_BIN:-$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)/build/bin}
export PATH=$programs:$PATH:/usr/sbin:/sbin
# A virtual recorder would take the place of a drive that is not seen.
export CORVALIS_VIRTUAL=off LC_ALL=C.UTF-8
scratch=$(mktemp -d "${TMPDIR:-/tmp}/corvalis-hardware.XXXXXX")
chmod 755 "$scratch"
export HOME=$scratch
point=$scratch/mnt
mkdir -p "$point"
passed=0 failed=0
trap 'mountpoint -q "$point" && umount "$point"; rm -rf "$scratch"' EXIT

in_lab() { command -v lab-media >/dev/null; }

# fail WHY...: end the case.
fail() {
    printf '%s' "$*" | tr '\n' '|' >"$work/why"
    exit 1
}

# check NAME FUNCTION: run one case in a subshell, in a folder of its own. A program of ours that is left
# running fails it, and so does a disc that is left mounted.
check() {
    local name=$1 why began=$SECONDS left
    work=$scratch/$name
    mkdir -p "$work"
    chmod 755 "$work"
    (cd "$work" && "$2") </dev/null >"$work/log" 2>&1 || [ -s "$work/why" ] ||
        echo "ended with an error: $(tail -1 "$work/log")" >"$work/why"
    left=$(pgrep -x drutil; pgrep -x hdiutil; pgrep -x corvalis)
    if [ -n "$left" ]; then
        [ -s "$work/why" ] || echo "left running: ${left//$'\n'/ }" >"$work/why"
        # shellcheck disable=SC2086 # process numbers
        kill -9 $left
    fi
    if mountpoint -q "$point"; then umount -l "$point"; fi
    if [ -s "$work/why" ]; then
        why=$(cat "$work/why")
        failed=$((failed + 1))
        echo "not ok $name: $why"
        sed 's/^/#   /' "$work/log" | tail -20
    else
        passed=$((passed + 1))
        echo "ok $name ($((SECONDS - began)) s)"
        [ -z "${CORVALIS_TEST_VERBOSE:-}" ] || sed 's/^/#   /' "$work/log"
    fi
    rm -rf "$work"
}

# call COMMAND...: run it for at most five minutes; its exit status and its two outputs are what
# expect_* looks at.
call() {
    echo "\$ $*"
    timeout -k 10 300 "$@" >out 2>err
    status=$?
    tail -n 12 out
    cat err
}

expect_status() { [ "$status" = "$1" ] || fail "exit status $status instead of $1: $(tail -1 err)"; }
# What is expected is an extended regular expression.
expect_out() { grep -Eq -- "$1" out || fail "no '$1' in the output: $(tail -1 out)"; }
expect_err() { grep -Eq -- "$1" err || fail "no '$1' in the message: $(cat err)"; }
expect_no_out() { ! grep -Eq -- "$1" out || fail "'$1' in the output"; }
# expect_refusal STATUS TEXT: one sentence on standard error that has TEXT.
expect_refusal() {
    expect_status "$1"
    expect_err "$2"
    [ "$(wc -l <err)" = 1 ] || fail "more than one line of message: $(cat err)"
}
# expect_medium TEXT...: the report about the medium has each of these.
expect_medium() {
    local text
    call drutil status -drive "$number"
    expect_status 0
    for text; do expect_out "$text"; done
}

# number_of DEVICE: the character under which drutil lists it.
number_of() {
    local place=0 name
    for name in $(find /sys/class/block -name 'sr*' -printf '%f\n' | sort -V); do
        place=$((place + 1))
        [ "/dev/$name" != "$1" ] || { echo $place; return; }
    done
    return 1
}
number=$(number_of "$device") || number=1

# put_in dvd+r|none|FILE [DRIVE]: change the disc. DRIVE counts from 0.
put_in() {
    if in_lab; then
        lab-media "$@"
    else
        case $1 in
        none) printf 'Take the disc out of %s, close the tray, press Enter: ' "$device" ;;
        dvd+r) printf 'Put a blank write-once disc into %s, press Enter: ' "$device" ;;
        *) printf 'Put a pressed or closed disc into %s, press Enter: ' "$device" ;;
        esac >/dev/tty
        read -r </dev/tty
    fi
}

# pull_drive, plug_drive: as a cable does.
pull_drive() {
    if in_lab; then iscsiadm -m node --logout
    else printf 'Pull the cable of %s now, press Enter: ' "$device" >/dev/tty; read -r </dev/tty; fi
}
plug_drive() {
    if in_lab; then iscsiadm -m node --login
    else printf 'Plug %s in again, press Enter: ' "$device" >/dev/tty; read -r </dev/tty; fi
    until_true 90 test -b "$device"
    udevadm settle -t 10
}

# until_true SECONDS COMMAND...: try again until it succeeds.
until_true() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        [ $SECONDS -lt $end ] || return 1
        sleep 0.1
    done
}

# in_background COMMAND...: start it; its number is $job, its outputs are the files job.out and job.err.
in_background() {
    echo "\$ $* &"
    "$@" >job.out 2>job.err &
    job=$!
}
# until_writing [Erasing]: the job in the background has told a percentage.
until_writing() {
    local n
    for ((n = 0; n < 1800; n++)); do
        ! grep -Eq "^${1:-Writing}: [0-9]" job.out || return 0
        kill -0 "$job" 2>/dev/null || fail "the write ended early: $(tail -1 job.out) $(cat job.err)"
        sleep 0.1
    done
    fail "nothing was done within three minutes: $(tail -1 job.out)"
}
# end_of_job SECONDS: wait for the job; what it did is then in $status, out and err.
end_of_job() {
    local end=$((SECONDS + $1))
    while kill -0 "$job" 2>/dev/null; do
        [ $SECONDS -lt $end ] || fail "still running after $1 s: $(tail -1 job.out)"
        sleep 0.1
    done
    wait "$job"
    status=$?
    mv job.out out
    mv job.err err
    tail -n 5 out
    cat err
}

# as_user [GROUP]: the start of a command line that runs as nobody, in this group only or in none.
as_user() {
    user=(env HOME=/tmp setpriv --reuid=65534 --regid=65534)
    if [ $# = 0 ]; then user+=(--clear-groups); else user+=(--groups "$1"); fi
}

# small_folder NAME; big_folder NAME MEBIBYTES
small_folder() {
    mkdir -p "$1"
    echo "from $1" >"$1/note.txt"
}
big_folder() {
    small_folder "$1"
    head -c "${2}M" /dev/zero >"$1/big.bin"
}

# odd_folder NAME: what people really have on their disks.
odd_folder() {
    mkdir -p "$1/sub folder/deeper" "$1/empty folder"
    head -c 3000000 /dev/urandom >"$1/random.bin"
    : >"$1/nothing"
    head -c 2048 /dev/urandom >"$1/one block"
    head -c 2049 /dev/urandom >"$1/sub folder/one block more"
    echo a >"$1/-rf"
    echo b >"$1/quo'te\"s"
    echo c >"$1/sub folder/line"$'\n'"break"
    echo d >"$1/sub folder/latin"$'\xe9\xff'"1"
    echo e >"$1/sub folder/deeper/Größe – 日本語.txt"
    echo f >"$1/$(printf 'n%.0s' $(seq 250))"
    ln -s "random.bin" "$1/link to a file"
}

# digests FOLDER: of every file, by name, with links followed.
digests() { (cd "$1" && find -L . -type f -print0 | sort -z | xargs -0 sha256sum -z | tr '\0\n' '\n ' ); }

# compare_disc FOLDER: mount the disc and compare each file.
compare_disc() {
    mount -o ro "$device" "$point" || fail "the disc cannot be mounted"
    digests "$1" >sent
    digests "$point" >found
    umount "$point" || fail "the disc cannot be unmounted"
    [ -s sent ] || fail "nothing was sent"
    cmp sent found || fail "other files on the disc: $(diff sent found | head -3)"
}

# tray_unlocked: the drive itself opens when it is told to. udev locks it on its own account as soon as it
# sees a disc, so it must not look during the case: pause_udev before.
tray_unlocked() { sg_start --eject "$device" || fail "the drive does not open: its tray is locked"; }
pause_udev() { udevadm control --stop-exec-queue; }
resume_udev() { udevadm control --start-exec-queue; udevadm settle -t 10; }
