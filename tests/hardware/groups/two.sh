# shellcheck shell=bash disable=SC2154,SC2034,SC2317
# Two drives with a blank disc in each: numbers, and drives that come and go. For the guest only: it takes a
# drive away from the kernel and finds it again.

other=/dev/sr1
numbers() { sed -n '2,$s/^\(.\).*/\1/p' "$1" | paste -sd ' '; }

stable() {
    call drutil list
    cp out first
    [ "$(numbers first)" = "1 2" ] || fail "numbers $(numbers first)"
    for i in 1 2 3; do
        call drutil list
        cmp out first || fail "another list"
        call drutil status -drive $i
        [ $i = 3 ] || expect_out "Name: /dev/sr$((i - 1))$"
    done
    expect_refusal 3 'There is no drive "[23]"'
}
check numbers-are-stable stable

which_one() {
    small_folder f
    call drutil burn f
    expect_status 2
    expect_err 'There are 2 drives: say which one'
}
check which-of-two which_one

second_only() {
    odd_folder f
    call drutil burn f -drive 2
    expect_status 0
    call drutil status -drive 1
    expect_out 'appendable, blank'
    call drutil status -drive 2
    expect_out 'not writable'
    device=$other compare_disc f
}
check burn-on-the-second second_only

both_at_once() {
    put_in dvd+r 0
    put_in dvd+r 1
    odd_folder one
    odd_folder two
    drutil burn one -drive 1 >one.log 2>&1 &
    local first=$!
    call drutil burn two -drive 2
    expect_status 0
    wait $first || fail "the first: $(tail -1 one.log)"
    compare_disc one
    device=$other compare_disc two
}
check burn-on-both-at-once both_at_once

first_goes() {
    call drutil list
    cp out before
    echo 1 >/sys/block/sr0/device/delete
    until_true 10 test ! -e /sys/block/sr0 || fail "the kernel keeps the drive"
    call drutil list
    [ "$(numbers out)" = 1 ] || fail "numbers $(numbers out)"
    call drutil status
    expect_status 0
    expect_out 'Name: /dev/sr1$'
    call drutil status -drive 2
    expect_refusal 3 'There is no drive "[23]"'
    iscsiadm -m session --rescan
    until_true 20 test -b /dev/sr0 || fail "the drive did not come back"
    udevadm settle -t 10
    call drutil list
    cmp out before || fail "another list than before"
}
check drive-goes-and-comes first_goes
