# shellcheck shell=bash disable=SC2154,SC2034,SC2317
# A burner and write-once discs: what is reported, written and read back. Needs root.

list_columns() {
    call drutil list
    expect_status 0
    [ "$(head -1 out)" = "   Vendor   Product           Rev   Bus       SupportLevel" ] || fail "other header: $(head -1 out)"
    [ "$(wc -l <out)" -ge 2 ] || fail "no drive"
    ! grep -Eqv '^.{30,}$' out || fail "a line of less than 30 characters"
    local line field=/sys/class/block/${device##*/}/device
    line=$(sed -n "$((number + 1))p" out)
    [ "${line:0:1}" = "$number" ] || fail "number '${line:0:1}'"
    [ "$(xargs <<<"${line:3:8}")" = "$(xargs <"$field/vendor")" ] || fail "vendor '${line:3:8}'"
    [ "$(xargs <<<"${line:12:16}")" = "$(xargs <"$field/model")" ] || fail "product '${line:12:16}'"
    [ "$(xargs <<<"${line:30:4}")" = "$(xargs <"$field/rev")" ] || fail "revision '${line:30:4}'"
    [ -n "$(xargs <<<"${line:36:8}")" ] || fail "no bus"
    [ "${line:46}" = Supported ] || fail "support level '${line:46}'"
}
check list-columns list_columns

status_blank() {
    put_in dvd+r
    expect_medium 'Type: DVD\+R ' "Name: $device$" 'Writability: appendable, blank, overwritable' \
        'Space Used: +00:00:00 +blocks: +0 /'
    expect_no_out 'LAB|VIRTUAL'
    [ "$(wc -l <out)" = 5 ] || fail "$(wc -l <out) lines"
}
check status-blank status_blank

nothing_in() {
    put_in none
    call drutil status -drive "$number"
    expect_status 0
    [ "$(xargs <out)" = "Type: No Media Inserted" ] || fail "not 'No Media Inserted' alone: $(cat out)"
}
check status-empty nothing_in

burn_empty() {
    small_folder f
    call drutil burn f -drive "$number"
    expect_refusal 3 'no disc in drive'
    call drutil erase quick -drive "$number"
    expect_refusal 3 'no disc in drive'
}
check burn-without-disc burn_empty

too_large() {
    put_in dvd+r
    mkdir f
    truncate -s 5G f/huge
    call drutil burn f -drive "$number"
    expect_refusal 1 'need 5[0-9.]+ MB \(26[0-9]{5} blocks\), .* room for [0-9.]+ MB \(2[0-9]{6} blocks\)'
    expect_medium 'appendable, blank, overwritable'
}
check medium-too-small too_large

unreadable_source() {
    call drutil burn "nothing here" -drive "$number"
    expect_refusal 1 'nothing here'
    expect_medium 'appendable, blank, overwritable'
}
check no-such-folder unreadable_source

burn_and_mount() {
    odd_folder "Odd names"
    call drutil burn "Odd names" -drive "$number"
    expect_status 0
    expect_out '^Writing: [0-9.]+ %, [0-9.]+x, buffer [0-9]+ %'
    expect_out '^Verifying: '
    expect_out 'is written and was compared'
    # No eject in between: the kernel knows the new size and content by itself.
    compare_disc "Odd names"
    udevadm settle -t 10
    udevadm info -q property "$device" | grep -q '^ID_FS_LABEL=ODD_NAMES\|^ID_FS_LABEL=Odd.names' ||
        fail "udev does not know the new volume: $(udevadm info -q property "$device" | grep LABEL)"
}
check burn-and-mount burn_and_mount

phases_in_order() {
    put_in dvd+r
    small_folder f
    call drutil burn f -drive "$number"
    expect_status 0
    sed 's/[:,. ].*//' out | uniq | paste -sd ' ' >phases
    [ "$(cat phases)" = "Burning Preparing Writing Closing Verifying Done" ] || fail "phases: $(cat phases)"
}
check phases-in-order phases_in_order

status_written() {
    expect_medium 'Type: DVD' 'Space Free: +00:00:00 +blocks: +0 /' 'Writability: not writable'
}
check status-written status_written

burn_again() {
    small_folder f
    call drutil burn f -drive "$number"
    expect_refusal 1 'cannot be written any more: insert a blank or rewritable disc'
    call drutil erase quick -drive "$number"
    expect_refusal 1 'cannot be erased: insert a rewritable disc'
    call drutil burn -audio f -drive "$number"
    expect_refusal 1 'cannot be written any more'
}
check burn-closed-disc burn_again

status_mounted() {
    mount -o ro "$device" "$point" || fail "mount"
    expect_medium 'Type: DVD' 'not writable'
    mountpoint -q "$point" || fail "a status unmounted the disc"
}
check status-while-mounted status_mounted

# The kernel or udev locks the tray over a mounted disc; whoever only looks leaves that so.
mounted_tray() {
    pause_udev
    mount -o ro "$device" "$point" || fail "mount"
    sg_prevent "$device" || fail "the drive has no lock"
    call drutil status -drive "$number"
    expect_status 0
    ! sg_start --eject "$device" || fail "the tray of the mounted disc opens"
}
check status-keeps-mounted-tray-locked mounted_tray
resume_udev

mounted_in_use() {
    mount -o ro "$device" "$point" || fail "mount"
    (cd "$point" && exec sleep 100) &
    local holder=$!
    sleep 0.5
    call drutil tray eject -drive "$number"
    kill $holder
    wait $holder
    expect_refusal 1 "mounted at .*mnt.* and cannot be unmounted: close the programs"
    mountpoint -q "$point" || fail "not mounted any more"
}
check eject-mounted-in-use mounted_in_use

mounted_eject() {
    mount -o ro "$device" "$point" || fail "mount"
    call drutil tray eject -drive "$number"
    expect_status 0
    ! mountpoint -q "$point" || fail "still mounted"
    call drutil status -drive "$number"
    expect_out 'No Media Inserted'
}
check eject-unmounts mounted_eject

load() {
    call drutil tray close -drive "$number"
    expect_status 0
    expect_medium 'Type: DVD' 'not writable'
    mount -o ro "$device" "$point" || fail "mount"
}
check load load

read_only_medium() {
    small_folder f
    xorriso -as mkisofs -quiet -o "$scratch/rom.iso" f || fail "xorriso"
    put_in "$scratch/rom.iso"
    expect_medium 'Type: DVD-ROM' 'not writable'
    call drutil burn f -drive "$number"
    expect_refusal 1 'cannot be written any more: insert a blank'
}
check read-only-medium read_only_medium

audio_needs_cd() {
    put_in dvd+r
    mkdir f
    { printf 'RIFF\xa4\x89\x15\x00WAVEfmt \x10\0\0\0\x01\0\x02\0\x44\xac\0\0\x10\xb1\x02\0\x04\0\x10\0data\x80\x89\x15\x00'
        head -c 1411200 /dev/zero; } >f/1.wav
    call drutil burn -audio f -drive "$number"
    expect_refusal 1 'An audio disc needs a CD'
    expect_medium 'appendable, blank, overwritable'
}
check audio-needs-cd audio_needs_cd

tray_free() {
    small_folder f
    pause_udev
    call drutil burn f -drive "$number"
    expect_status 0
    call drutil status -drive "$number"
    tray_unlocked
}
check tray-not-locked tray_free
resume_udev

group_member() {
    put_in dvd+r
    odd_folder f
    chmod -R a+rX f
    as_user "$(stat -c %g "$device")"
    call "${user[@]}" drutil status -drive "$number"
    expect_status 0
    expect_out 'appendable, blank, overwritable'
    call "${user[@]}" drutil burn f -drive "$number"
    expect_status 0
    compare_disc f
}
check burn-without-root group_member
