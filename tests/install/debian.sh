#!/usr/bin/env bash
# usage: debian.sh ROOM PACKAGE...   (as root)
# The packages in a Debian that has nothing yet, of the release that runs here and from where this system takes its
# packages: they are installed, found by CMake and pkg-config, and removed without a trace. ROOM is a folder for it.
set -euo pipefail

gkcntr=$(realpath "$(dirname "$0")/../..")
mkdir -p "$1"
debian=$(realpath "$1")/debian
shift
release=$(. /etc/os-release && echo "$VERSION_CODENAME")
mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' "Codename: $release" | sed -n 1p)

leave() {
    ! mountpoint -q "$debian/proc" || umount "$debian/proc"
    rm -rf --one-file-system "$debian"
}
leave
trap leave EXIT
debootstrap --variant=minbase "$release" "$debian" "$mirror" >"$debian.log" 2>&1 || { tail "$debian.log"; exit 1; }
rm -rf "$debian/etc/apt"
cp -r /etc/apt "$debian/etc/"
echo 'APT::Get::Assume-Yes "true"; APT::Install-Recommends "false";' >"$debian/etc/apt/apt.conf.d/98answers"
cp /etc/resolv.conf /etc/hosts "$debian/etc/"
mount -t proc proc "$debian/proc"

inside() { chroot "$debian" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/ DEBIAN_FRONTEND=noninteractive "$@" </dev/null; }
traces() { inside find / -xdev \( -path /gkcntr -o -path /packages -o -path /tmp \) -prune -o -name '*gkcntr*' -print; }
lines() { inside bash -euo pipefail -c "$@" >"$debian.log" 2>&1 || { tail "$debian.log"; exit 1; }; }

mkdir -p "$debian/packages" "$debian/gkcntr/docs" "$debian/gkcntr/tests"
cp "$@" "$debian/packages/"
cp "$gkcntr/docs/install.md" "$debian/gkcntr/docs/"
cp -r "$gkcntr/tests/install" "$debian/gkcntr/tests/"

lines 'apt-get update && apt-get install cmake ninja-build g++ pkg-config'
traces >"$debian.before"
lines "cd /packages; $("$gkcntr/tests/install/block.sh" apt-get)"
inside dpkg-query --show 'libgkcntr*'
inside /gkcntr/tests/install/packaged.sh /tmp/room
lines "apt-get purge $(inside dpkg-query --show --showformat '${Package} ' 'libgkcntr*')"
traces | diff "$debian.before" -
echo "removed without a trace"
