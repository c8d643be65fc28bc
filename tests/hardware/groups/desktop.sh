# shellcheck shell=bash disable=SC2154,SC2034,SC2317
# UDisks2, which mounts discs on a desktop, is asked to unmount them. Needs a system bus and UDisks2.

# In the guest nobody is logged in, so that UDisks2 serves an ordinary user only by a rule.
allow_users() {
    mkdir -p /etc/polkit-1/rules.d
    chmod 755 /etc/polkit-1/rules.d
    cat >/etc/polkit-1/rules.d/90-corvalis-test.rules <<'RULE'
polkit.addRule(function(action, subject) {
    if (action.id.indexOf("org.freedesktop.udisks2.") == 0 && subject.user == "nobody") return polkit.Result.YES;
});
RULE
}
! in_lab || allow_users

services=()
# serve NAME PROGRAM: start a service of the system bus where none runs.
serve() {
    ! pgrep -x "$1" >/dev/null || return 0
    "$2" >"$scratch/$1.log" 2>&1 &
    services+=($!)
}
serve polkitd /usr/lib/polkit-1/polkitd
serve udisksd /usr/libexec/udisks2/udisksd
until_true 20 udisksctl status >/dev/null 2>&1

through_udisks() {
    put_in dvd+r
    small_folder f
    call drutil burn f -drive "$number"
    expect_status 0
    udisksctl mount -b "$device" >mounted || fail "UDisks2 does not mount: $(cat "$scratch/udisksd.log")"
    # With nothing but udisksctl to be found, umount cannot have been it.
    mkdir only
    ln -s "$(command -v udisksctl)" only/
    local program
    program=$(command -v drutil)
    PATH=$work/only "$program" tray eject -drive "$number" >out 2>err
    status=$?
    expect_status 0
    ! findmnt -n -S "$device" || fail "still mounted"
}
check eject-through-udisks through_udisks

udisks_in_use() {
    call drutil tray close -drive "$number"
    # The kernel asks the drive for news every two seconds.
    until_true 15 udisksctl mount -b "$device" || fail "UDisks2 does not mount"
    local place
    place=$(findmnt -n -o TARGET -S "$device")
    (cd "$place" && exec sleep 100) &
    local holder=$!
    sleep 0.5
    call drutil tray eject -drive "$number"
    kill $holder
    wait $holder
    udisksctl unmount -b "$device"
    expect_refusal 1 'mounted at .* cannot be unmounted: close the programs'
}
check udisks-volume-in-use udisks_in_use
# What UDisks2 mounted for an ordinary user, only UDisks2 takes away for that user.
as_a_person() {
    call drutil tray close -drive "$number"
    as_user "$(stat -c %g "$device")"
    until_true 15 "${user[@]}" udisksctl mount -b "$device" || fail "UDisks2 does not mount for a user"
    findmnt -n -S "$device" || fail "not mounted"
    call "${user[@]}" drutil tray eject -drive "$number"
    expect_status 0
    ! findmnt -n -S "$device" || fail "still mounted"
    call drutil status -drive "$number"
    expect_out 'No Media Inserted'
}
! in_lab || check eject-as-a-person-through-udisks as_a_person

burn_over_mounted() {
    put_in dvd+r
    odd_folder f
    chmod -R a+rX f
    as_user "$(stat -c %g "$device")"
    call "${user[@]}" drutil burn f -drive "$number"
    expect_status 0
    until_true 15 udisksctl mount -b "$device" || fail "UDisks2 does not mount what was just written"
    place=$(findmnt -n -o TARGET -S "$device")
    digests f >sent
    digests "$place" >found
    udisksctl unmount -b "$device"
    cmp sent found || fail "other files on the disc: $(diff sent found | head -3)"
}
check desktop-mounts-what-was-written burn_over_mounted
[ ${#services[@]} = 0 ] || { kill "${services[@]}"; wait "${services[@]}"; } 2>/dev/null
