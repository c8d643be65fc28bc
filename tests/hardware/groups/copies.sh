# shellcheck shell=bash disable=SC2154,SC2034,SC2317
# A disc in a drive that is mounted and copied block for block; a video disc as the kernel reads it. Needs root.

video_folder() {
    mkdir -p "$1/VIDEO_TS" "$1/JACKET_P"
    local name
    for name in VIDEO_TS.IFO VIDEO_TS.BUP VTS_01_0.IFO VTS_01_1.VOB VTS_01_0.BUP; do
        head -c $((RANDOM * 20 + 1)) /dev/urandom >"$1/VIDEO_TS/$name"
    done
    head -c 50000 /dev/urandom >"$1/JACKET_P/Ein Bild mit Ümläuten.mp2"
}

# The image is the disc, and goes with the folder of the case.
take_out() {
    umount "$point" || fail "the disc cannot be unmounted"
    put_in none
}

# What the kernel's driver for UDF shows of a video disc that was made as an image, and burned.
udf_by_the_kernel() {
    video_folder disc
    call hdiutil makehybrid -o i.iso disc -iso -joliet
    expect_status 0
    put_in i.iso
    mount -t udf -o ro "$device" "$point" || fail "the image does not mount as UDF"
    [ -d "$point/AUDIO_TS" ] || fail "no AUDIO_TS"
    mkdir disc/AUDIO_TS
    diff -r disc "$point" || fail "the UDF volume differs"
    umount "$point"
    rmdir disc/AUDIO_TS
    put_in dvd+r
    call drutil burn disc -drive "$number"
    expect_status 0
    mount -t udf -o ro "$device" "$point" || fail "the disc does not mount as UDF"
    mkdir disc/AUDIO_TS
    diff -r disc "$point" || fail "the UDF volume of the disc differs"
}
check video-disc-by-the-kernel udf_by_the_kernel

copied_exactly() {
    video_folder disc
    call hdiutil makehybrid -o i.iso disc -iso -joliet
    expect_status 0
    put_in i.iso
    mount -o ro "$device" "$point" || fail "mount"
    call hdiutil makehybrid -o copy.iso "$point" -iso -joliet
    expect_status 0
    [ "$(head -1 out)" = "Copying the disc in $device block for block." ] || fail "first line: $(head -1 out)"
    cmp -n "$(stat -c %s i.iso)" i.iso copy.iso || fail "the copy differs"
    # A folder of the disc is a folder.
    call hdiutil makehybrid -o part.iso "$point/VIDEO_TS" -iso -joliet
    expect_status 0
    [ "$(head -1 out)" = "Making an image of the folder \"$point/VIDEO_TS\"." ] || fail "first line: $(head -1 out)"
    take_out
}
check disc-copied-exactly copied_exactly

# Bytes before the volume descriptors are no file, and a disc boots by them.
boot_record_is_copied() {
    mkdir f
    head -c 3000000 /dev/urandom >f/file
    call hdiutil makehybrid -o i.iso f -iso -joliet
    expect_status 0
    printf 'boot me' | dd of=i.iso conv=notrunc status=none
    put_in i.iso
    mount -o ro "$device" "$point" || fail "mount"
    call hdiutil makehybrid -o copy.iso "$point" -iso -joliet
    expect_status 0
    cmp i.iso copy.iso || fail "the copy differs"
    take_out
}
check boot-record-is-copied boot_record_is_copied

as_fast_as_dd() {
    mkdir f
    head -c 200000000 /dev/urandom >f/file
    call hdiutil makehybrid -o i.iso f -iso -joliet
    expect_status 0
    put_in i.iso
    mount -o ro "$device" "$point" || fail "mount"
    local began dd_time=0 our_time=0 round
    for round in 1 2; do
        echo 3 >/proc/sys/vm/drop_caches
        began=$(date +%s%N)
        dd if="$device" of=plain.iso bs=1M count=190 status=none
        dd_time=$((dd_time + $(date +%s%N) - began))
        echo 3 >/proc/sys/vm/drop_caches
        began=$(date +%s%N)
        call hdiutil makehybrid -o "copy$round.iso" "$point" -iso -joliet
        our_time=$((our_time + $(date +%s%N) - began))
        expect_status 0
        rm "copy$round.iso"
    done
    take_out
    echo "dd $((dd_time / 2000000)) ms, copy $((our_time / 2000000)) ms"
    # Machines that are shared are uneven: half as slow again would be a fault.
    [ $((our_time * 2)) -lt $((dd_time * 3)) ] || fail "dd took $((dd_time / 2000000)) ms, the copy $((our_time / 2000000)) ms"
}
check copy-as-fast-as-dd as_fast_as_dd
