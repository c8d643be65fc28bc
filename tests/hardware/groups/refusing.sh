# shellcheck shell=bash disable=SC2154,SC2034,SC2317
# A drive that refuses RESERVE TRACK, and with it disc at once: another way of writing is taken.

fall_back() {
    odd_folder f
    call drutil burn f -drive "$number"
    expect_status 0
    [ ! -s err ] || fail "messages: $(cat err)"
    compare_disc f
    expect_medium 'not writable'
}
check falls-back-to-another-write-mode fall_back
