# shellcheck shell=bash disable=SC2154,SC2034,SC2317
# What goes wrong with drives: others who use them, missing permission, stopped and killed writes, sources
# that change, cables. Needs root and write-once discs.

# next_run_works: the run after a fault writes and compares as if nothing had been.
next_run_works() {
    put_in dvd+r
    small_folder next
    call drutil burn next -drive "$number"
    expect_status 0
    compare_disc next
}

no_permission() {
    as_user
    call "${user[@]}" drutil list
    expect_status 0
    expect_out 'Supported$'
    call "${user[@]}" drutil status -drive "$number"
    expect_refusal 1 "You may not use $device .*log in at this machine itself, .*group $(stat -c %G "$device")"
    small_folder f
    call "${user[@]}" drutil burn f -drive "$number"
    expect_refusal 1 "You may not use $device"
    call "${user[@]}" drutil tray eject -drive "$number"
    expect_refusal 1 "You may not use $device"
}
put_in dvd+r
check no-permission no_permission

held_by_other() {
    mkfifo pipe
    xorriso -outdev "$device" -dialog on <pipe >xorriso.log 2>&1 &
    local holder=$!
    exec 7>pipe
    until_true 20 grep -q 'enter option' xorriso.log || fail "xorriso: $(tail -1 xorriso.log)"
    small_folder f
    call drutil burn f -drive "$number"
    expect_refusal 1 "$device .* is busy with another program"
    call drutil tray eject -drive "$number"
    expect_refusal 1 "is busy with another program"
    call drutil status -drive "$number"
    expect_refusal 1 "is busy with another program"
    call drutil list
    expect_status 0
    echo -rollback_end >&7
    exec 7>&-
    wait $holder
    expect_medium 'appendable, blank'
}
check held-by-another-program held_by_other

second_writer() {
    put_in dvd+r
    big_folder f 8
    in_background drutil burn f -drive "$number"
    until_writing
    small_folder g
    call drutil burn g -drive "$number"
    expect_refusal 1 "is busy with another program; wait until that has ended"
    call drutil tray eject -drive "$number"
    expect_refusal 1 "is busy"
    end_of_job 240
    expect_status 0
    compare_disc f
}
check second-writer second_writer

stopped() { # SIGNAL STATUS
    put_in dvd+r
    big_folder f 64
    in_background drutil burn f -drive "$number"
    until_writing
    kill "-$1" "$job"
    end_of_job 180
    expect_refusal "$2" 'Stopped\. The disc in drive . is spoilt\.'
    call drutil status -drive "$number"
    expect_status 0
    call drutil tray eject -drive "$number"
    expect_status 0
    next_run_works
}
terminated() { stopped TERM 143; }
interrupted() { stopped INT 130; }
check sigterm-in-mid-burn terminated
check sigint-in-mid-burn interrupted

two_signals() {
    put_in dvd+r
    big_folder f 64
    in_background drutil burn f -drive "$number"
    until_writing
    kill -TERM "$job"
    sleep 0.2
    kill -INT "$job"
    kill -TERM "$job"
    end_of_job 180
    expect_refusal 143 'Stopped\. The disc in drive . is spoilt'
    next_run_works
}
check two-signals two_signals

killed() {
    put_in dvd+r
    big_folder f 64
    in_background drutil burn f -drive "$number"
    until_writing
    kill -KILL "$job"
    end_of_job 180
    [ "$status" = 137 ] || fail "exit status $status"
    call drutil status -drive "$number"
    expect_status 0
    # What a drive says of a disc that was left like this differs; a disc that it calls blank has to work.
    if grep -q blank out; then
        small_folder same
        call drutil burn same -drive "$number"
        expect_status 0
        compare_disc same
    else
        call drutil burn f -drive "$number"
        expect_refusal 1 'insert a blank'
    fi
    call drutil tray eject -drive "$number"
    expect_status 0
    next_run_works
}
check sigkill-in-mid-burn killed

hangup() {
    put_in dvd+r
    big_folder f 4
    in_background drutil burn f -drive "$number"
    until_writing
    kill -HUP "$job"
    end_of_job 240
    expect_status 0
    compare_disc f
}
check terminal-closed-in-mid-burn hangup

shrinking() {
    put_in dvd+r
    big_folder f 64
    in_background drutil burn f -drive "$number"
    until_writing
    truncate -s 1M f/big.bin
    end_of_job 180
    expect_refusal 1 'big\.bin.*The disc in drive . is spoilt'
    next_run_works
}
check source-shrinks shrinking

# What is added meanwhile is not on the disc, and the disc is whole.
growing() {
    put_in dvd+r
    big_folder f 8
    cp -r f before
    in_background drutil burn f -drive "$number"
    until_writing
    head -c 1M /dev/urandom >>f/big.bin
    end_of_job 240
    expect_status 0
    compare_disc before
}
check source-grows growing

vanishing() {
    put_in dvd+r
    mkdir f
    for i in 1 2 3 4 5 6 7 8; do head -c 8M /dev/zero >f/part$i; done
    in_background drutil burn f -drive "$number"
    until_writing
    rm -r f
    end_of_job 180
    expect_refusal 1 'part[0-9].*The disc in drive . is spoilt'
}
check source-vanishes vanishing

pulled() {
    put_in dvd+r
    big_folder f 64
    in_background drutil burn f -drive "$number"
    until_writing
    pull_drive
    end_of_job 180
    expect_refusal 1 'The connection to drive . was lost during the write; check its cable'
    call drutil list
    expect_status 0
    expect_no_out '^[1-9a-z]'
    call drutil status -drive "$number"
    expect_status 3
    expect_err 'There is no drive'
}
check pulled-in-mid-burn pulled

plugged() {
    plug_drive || fail "the drive did not come back"
    call drutil list
    expect_out 'Supported$'
    next_run_works
}
check plugged-in-again plugged
