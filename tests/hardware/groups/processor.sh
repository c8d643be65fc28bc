# shellcheck shell=bash disable=SC2154,SC2317
# What the processor does for each GiB that is burned, by drutil and by another program, and for reading it back in the
# plainest way: told, not judged. Needs root and xorriso; without xxhsum the last is left out.

gibibyte=1073741824

# counting NAME COMMAND...: the processor seconds for each GiB of f, user and system, go to the report.
counting() {
    local name=$1 times TIMEFORMAT='%U %S'
    shift
    # The time of drive and disc is not counted, and neither is that of the kernel's own threads.
    { time "$@" >out 2>err; } 2>seconds || fail "$name: $(tail -1 err)"
    read -r -a times <seconds
    awk -v name="$name" -v user="${times[0]}" -v kernel="${times[1]}" -v size="$size" -v gib="$gibibyte" \
        'BEGIN { printf "# %s: %.2f s of processor time for each GiB\n", name, (user + kernel) * gib / size }' \
        >>"$scratch/processor"
}

# burn_counting NAME COMMAND...: the same for a burn of f to a new disc.
burn_counting() {
    put_in dvd+r
    counting "$@"
    # Without this the kernel does not see what a program that leaves the tray closed has written.
    { eject "$device"; eject -t "$device"; } >/dev/null 2>&1
    compare_disc f
}

count_processor_time() {
    local file size
    mkdir f
    head -c 40M /dev/urandom >f/large
    for file in $(seq 500); do head -c 8192 /dev/urandom >"f/small $file"; done
    size=$(du -sb f | cut -f 1)
    burn_counting "drutil, with the comparison" drutil burn f -drive "$number"
    burn_counting "drutil" drutil burn f -drive "$number" -noverify
    # What is behind the comparison: the difference of the two above.
    ! command -v xxhsum >/dev/null || counting "cat and xxhsum" bash -c "set -o pipefail; cat $device | xxhsum"
    burn_counting "xorriso" xorriso -outdev "$device" -joliet on -map f / -commit
}
check processor-time count_processor_time
cat "$scratch/processor"
