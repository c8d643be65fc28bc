# shellcheck shell=bash disable=SC2154,SC2034,SC2317
# A machine without any drive.

none_listed() {
    call drutil list
    expect_status 0
    [ "$(wc -l <out)" = 1 ] || fail "$(wc -l <out) lines"
    call drutil status
    expect_refusal 3 'There is no drive: connect one'
    small_folder f
    call drutil burn f
    expect_refusal 3 'There is no drive: connect one'
}
check no-drive none_listed

virtual_instead() {
    export CORVALIS_VIRTUAL=auto
    call drutil list
    expect_out '^1 .*Virtual   Supported$'
}
check virtual-recorder-instead virtual_instead
