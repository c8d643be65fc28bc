# shellcheck shell=bash disable=SC2154,SC2317
# What the processor does for each GiB that is burned, by drutil and by another program: told, not judged. Needs
# root and xorriso.

gibibyte=1073741824

# burn_counting NAME COMMAND...: the processor seconds for each GiB of f, user and system, go to the report.
burn_counting() {
    local name=$1 times TIMEFORMAT='%U %S'
    shift
    put_in dvd+r
    # The time of drive and disc is not counted, and neither is that of the kernel's own threads.
    { time "$@" >out 2>err; } 2>seconds || fail "$name: $(tail -1 err)"
    read -r -a times <seconds
    awk -v name="$name" -v user="${times[0]}" -v kernel="${times[1]}" -v size="$size" -v gib="$gibibyte" \
        'BEGIN { printf "# %s: %.2f s of processor time for each GiB burned\n", name, (user + kernel) * gib / size }' \
        >>"$scratch/processor"
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
    burn_counting "xorriso" xorriso -outdev "$device" -joliet on -map f / -commit
}
check processor-time count_processor_time
cat "$scratch/processor"
