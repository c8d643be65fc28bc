# shellcheck shell=bash
# Builds the guest of burner-vm from Debian packages that are only unpacked, never installed: a disk with
# the programs, a kernel and an initrd. Sourced by burner-vm; uses its lab, kept, die and say.

# kernel modules that the initrd loads before it can mount the disk
initrd_modules="virtio_pci virtio_blk ext4"
# left out: big, and of no use to a drive
dropped_modules="sound drivers/gpu drivers/media drivers/infiniband drivers/iio drivers/hwmon
  drivers/staging drivers/isdn drivers/mtd drivers/net/ethernet drivers/net/wireless drivers/input
  drivers/video fs/ocfs2 fs/ceph fs/xfs fs/btrfs fs/gfs2 fs/cifs fs/nfs fs/nfsd net/sctp net/netfilter
  net/mac80211"

# guest_packages: those of the group [guest].
guest_packages() {
    awk '{ sub(/#.*/, ""); gsub(/[ \t]/, "") }
        /^\[.*\]$/ { wanted = $0 == "[guest]"; next }
        wanted && length' "$lab/../../../scripts/packages.txt"
}

# guest_key: changes whenever another guest would be built.
guest_key() {
    { guest_packages; cat "$lab/guest-image.sh" "$lab/guest/initrd-init"; } | sha256sum | cut -c1-12
}

# guest_tool ROOT FILE NAME ARG...: run a program of the guest's tree on this machine.
guest_tool() {
    local tree=$1 file=$2 name=$3
    shift 3
    "$tree/lib64/ld-linux-x86-64.so.2" --library-path "$tree/usr/lib/x86_64-linux-gnu" \
        --argv0 "$name" "$tree/usr/bin/$file" "$@"
}

# unpack_packages FOLDER: fetch what the guest needs, with everything it depends on, and unpack it.
unpack_packages() {
    local folder=$1 tree=$1/root name apt packages
    mapfile -t packages < <(guest_packages)
    mkdir -p "$kept/debs/partial" "$folder/none/partial"
    : >"$folder/status"
    # An empty list of installed packages makes apt name everything, down to libc.
    apt=(apt-get -q -y -o "Dir::State::status=$folder/status" -o Debug::NoLocking=1
        -o APT::Install-Recommends=false -o "APT::Sandbox::User=$(id -un)")
    "${apt[@]}" -o "Dir::Cache::archives=$folder/none" --print-uris install "${packages[@]}" 2>"$folder/apt.err" |
        awk '/^\x27/ { print $2 }' >"$folder/debs.list"
    [ -s "$folder/debs.list" ] || { cat "$folder/apt.err" >&2; return 1; }
    "${apt[@]}" -o "Dir::Cache::archives=$kept/debs" --download-only install "${packages[@]}" \
        >"$folder/apt.log" 2>&1 || { tail -5 "$folder/apt.log" >&2; return 1; }
    for name in bin sbin lib lib64; do
        mkdir -p "$tree/usr/$name"
        ln -s "usr/$name" "$tree/$name"
    done
    while read -r name; do
        dpkg-deb --fsys-tarfile "$kept/debs/$name" |
            tar -x -C "$tree" --keep-directory-symlink --no-same-owner || return 1
    done <"$folder/debs.list"
}

# unpack_kernel FOLDER: the kernel that Debian would install, and its modules.
unpack_kernel() {
    local folder=$1 tree=$1/root package version module
    package=$(apt-cache depends linux-image-amd64 | awk '$1 == "Depends:" { print $2; exit }')
    [ -n "$package" ] || { say "there is no package linux-image-amd64; run apt-get update"; return 1; }
    if ! compgen -G "$kept/debs/${package}_*.deb" >/dev/null; then
        (cd "$kept/debs" && apt-get -q -o "APT::Sandbox::User=$(id -un)" download "$package") \
            >"$folder/kernel.log" 2>&1 || { tail -3 "$folder/kernel.log" >&2; return 1; }
    fi
    mkdir -p "$folder/kernel" "$tree/usr/lib/modules"
    dpkg-deb --fsys-tarfile "$(compgen -G "$kept/debs/${package}_*.deb" | tail -1)" |
        tar -x -C "$folder/kernel" --no-same-owner || return 1
    version=$(ls "$folder/kernel/lib/modules")
    cp "$folder/kernel/boot/vmlinuz-$version" "$folder/vmlinuz" || return 1
    for module in $dropped_modules; do rm -rf "$folder/kernel/lib/modules/$version/kernel/$module"; done
    mv "$folder/kernel/lib/modules/$version" "$tree/usr/lib/modules/"
    rm -rf "$folder/kernel"
    guest_tool "$tree" kmod depmod -b "$tree" "$version" || return 1
    echo "$version" >"$folder/version"
}

# add_user TREE NAME ID: what the package's own script would have done.
add_user() {
    printf '%s:x:%s:%s::/nonexistent:/usr/sbin/nologin\n' "$2" "$3" "$3" >>"$1/etc/passwd"
    printf '%s:x:%s:\n' "$2" "$3" >>"$1/etc/group"
}

# finish_tree TREE: what the packages' own scripts would have done.
finish_tree() {
    local tree=$1 group
    cp "$tree/usr/share/base-passwd/passwd.master" "$tree/etc/passwd"
    cp "$tree/usr/share/base-passwd/group.master" "$tree/etc/group"
    add_user "$tree" messagebus 101
    add_user "$tree" polkitd 102
    ln -sf mawk "$tree/usr/bin/awk"
    for group in kvm:993 render:992 input:994 sgx:991; do
        grep -q "^${group%%:*}:" "$tree/etc/group" || echo "${group%%:*}:x:${group##*:}:" >>"$tree/etc/group"
    done
    echo lab >"$tree/etc/hostname"
    echo '127.0.0.1 localhost lab' >"$tree/etc/hosts"
    mkdir -p "$tree"/{proc,sys,dev,run,tmp,lab,mnt,root} "$tree/etc/iscsi" "$tree/var/lib/tgt"
    echo 'InitiatorName=iqn.2000-01.test.lab:guest' >"$tree/etc/iscsi/initiatorname.iscsi"
    ln -sf /proc/mounts "$tree/etc/mtab"
    rm -rf "$tree/usr/share/doc" "$tree/usr/share/man" "$tree/usr/share/locale"
}

# make_initrd FOLDER: busybox and what it takes to see the disk.
make_initrd() {
    local folder=$1 tree=$1/root initrd=$1/initrd version module file
    version=$(cat "$folder/version")
    mkdir -p "$initrd"/{bin,proc,sys,dev,newroot,mod}
    cp "$tree/bin/busybox" "$initrd/bin/busybox"
    ln -s busybox "$initrd/bin/sh"
    : >"$initrd/mod/list"
    for module in $initrd_modules; do
        guest_tool "$tree" kmod modprobe -d "$tree" -S "$version" --show-depends "$module" |
            awk '$1 == "insmod" { print $2 }'
    done | awk '!seen[$0]++' | while read -r file; do
        cp "$file" "$initrd/mod/" && basename "$file" >>"$initrd/mod/list"
    done
    install -m 755 "$lab/guest/initrd-init" "$initrd/init"
    (cd "$initrd" && find . | "$tree/bin/busybox" cpio -o -H newc 2>/dev/null | gzip -1) >"$folder/initrd.gz"
}

# build_guest FOLDER: fill it with root.img, vmlinuz and initrd.gz.
build_guest() {
    local folder=$1
    unpack_packages "$folder" && unpack_kernel "$folder" && finish_tree "$folder/root" && make_initrd "$folder" || return 1
    mke2fs -q -t ext4 -O ^has_journal -m 0 -L labroot -E lazy_itable_init=1,root_owner=0:0 \
        -d "$folder/root" "$folder/root.img" 14G >/dev/null || return 1
    rm -rf "$folder/root" "$folder/initrd" "$folder/status" "$folder/none"
}
