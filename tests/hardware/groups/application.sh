# shellcheck shell=bash disable=SC2154,SC2034,SC2317
# The application itself, without a window, through whole jobs on the drive.

sine() { ffmpeg -nostdin -loglevel error -f lavfi -i "sine=frequency=$2:duration=$3" "./$1"; }
ffmpeg=$programs/../libexec/corvalis/ffmpeg
ffmpeg() { "$ffmpeg" "$@"; }

data_job() {
    put_in dvd+r
    mkdir both
    odd_folder "both/First folder"
    # The application names a folder as a person sees it, and only UTF-8 can be seen.
    rm both/*/*/latin*
    small_folder "both/second"
    call corvalis --burn "Data DVD" "both/First folder" both/second
    expect_status 0
    expect_out 'Operation complete'
    compare_disc both
    expect_medium 'not writable'
}
check application-data-dvd data_job

mp3_job() {
    put_in dvd+r
    sine "A tone.wav" 440 6
    sine "-Another.m4a" 660 5
    call corvalis --burn "MP3 DVD" "A tone.wav" "$PWD/-Another.m4a"
    expect_status 0
    expect_out 'Operation complete'
    mount -o ro "$device" "$point" || fail "the disc cannot be mounted"
    find "$point" -type f | sort
    local file count=0
    for file in "$point"/*; do
        case $file in *.mp3) ;; *) fail "on the disc: $file" ;; esac
        ffmpeg -nostdin -v error -i "$file" -f null - || fail "$file does not play"
        count=$((count + 1))
    done
    [ $count = 2 ] || fail "$count files on the disc"
}
check application-mp3-dvd mp3_job

refused_job() {
    small_folder f
    call corvalis --burn "Data DVD" f
    expect_status 1
    [ -s err ] || fail "no message"
}
check application-refuses-closed-disc refused_job

copy_job() {
    put_in dvd+r
    odd_folder original
    rm original/*/latin* original/link*
    call drutil burn original -drive "$number"
    expect_status 0
    mount -o ro "$device" "$point" || fail "mount"
    call corvalis_copy_disc "$point" "$(declare -f put_in in_lab); device=$device; put_in dvd+r"
    expect_status 0
    expect_out 'asked: Insert a writable media'
    compare_disc original
}
check application-copies-disc copy_job

image_burn() {
    put_in dvd+r
    odd_folder "My image"
    call hdiutil makehybrid -o image.iso "My image" -iso -joliet
    expect_status 0
    call hdiutil burn image.iso
    expect_status 0
    compare_disc "My image"
    cmp -n "$(stat -c %s image.iso)" image.iso "$device" || fail "the disc differs from the image"
    call hdiutil burn image.iso
    expect_refusal 3 'No drive holds a disc that can be written'
}
check image-made-and-burned image_burn
