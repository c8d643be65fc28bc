# shellcheck shell=bash disable=SC2154,SC2034,SC2317
# A DVD-RAM, which is overwritten in place; the drive of the guest refuses SET STREAMING and FORMAT UNIT.

status_fresh() { expect_medium 'Type: DVD-RAM ' 'Writability: erasable, overwritable' "Name: $device$"; }
check ram-status status_fresh

first_burn() {
    odd_folder f
    call drutil burn f -drive "$number"
    expect_status 0
    [ ! -s err ] || fail "messages: $(cat err)"
    compare_disc f
    expect_medium 'erasable, overwritable' 'Space Used: +[0-9:]+ +blocks: +[1-9]'
}
check ram-burn-and-mount first_burn

second_burn() {
    small_folder second
    mount -o ro "$device" "$point" || fail "mount"
    call drutil burn second -drive "$number"
    expect_status 0
    expect_out 'not blank; it is erased first'
    compare_disc second
}
check ram-burn-over-mounted-disc second_burn

in_use() {
    mount -o ro "$device" "$point" || fail "mount"
    (cd "$point" && exec sleep 100) &
    local holder=$!
    sleep 0.5
    small_folder third
    call drutil burn third -drive "$number"
    kill $holder
    wait $holder
    expect_refusal 1 'mounted at .*cannot be unmounted: close the programs'
    [ -f "$point/note.txt" ] || fail "the disc was changed"
}
check ram-mounted-in-use in_use

erase_quick() {
    call drutil erase quick -drive "$number"
    expect_status 0
    expect_medium 'Space Used: +00:00:00 +blocks: +0 /'
    ! mount -o ro "$device" "$point" || fail "there is still a volume"
}
check ram-erase-quick erase_quick

too_large() {
    mkdir f
    truncate -s 5G f/huge
    call drutil burn f -drive "$number"
    expect_refusal 1 'need 5[0-9.]+ MB \(26[0-9]{5} blocks\), .* room for [0-9.]+ MB \(2[0-9]{6} blocks\)'
}
check ram-too-small too_large

stopped() { # SIGNAL STATUS
    big_folder f 256
    in_background drutil burn f -drive "$number"
    until_writing
    kill "-$1" "$job"
    end_of_job 180
    [ "$status" = "$2" ] || fail "exit status $status"
    expect_medium 'erasable, overwritable'
    small_folder next
    call drutil burn next -drive "$number"
    expect_status 0
    compare_disc next
}
terminated() {
    stopped TERM 143
}
killed() { stopped KILL 137; }
check ram-sigterm-in-mid-burn terminated
check ram-sigkill-in-mid-burn killed

erase_full_stopped() {
    in_background drutil erase full -drive "$number"
    until_writing Erasing
    kill -TERM "$job"
    end_of_job 180
    expect_refusal 143 'Stopped\. What the disc in drive . holds is incomplete; it can be written again'
    expect_medium 'erasable, overwritable'
}
check ram-erase-full-stopped erase_full_stopped
