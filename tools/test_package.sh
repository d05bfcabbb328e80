#!/usr/bin/env bash
# Installs the Debian package on a bare Debian 12 in a folder, with apt and without what is only
# recommended, starts the programs there as an ordinary user, and removes it all again. Needs root.
# With an argument: that package, else the one in build/package. Packages come from where this
# machine's own apt takes them.
[ $# -eq 0 ] || set -- "$(realpath "$1")"
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

release=bookworm
seconds=5  # that a window has to stay open

if [ "$(id -u)" -ne 0 ]; then
    echo "This needs root." >&2
    exit 1
fi
# Mounts made in a namespace of one's own vanish with it, however the script ends.
if [ -z "${VERANDIS_OWN_MOUNTS:-}" ]; then
    exec env VERANDIS_OWN_MOUNTS=1 unshare --mount --propagation private \
        "$project/tools/test_package.sh" "$@"
fi

deb="${1:-$(ls build/package/verandis_*.deb)}"
version="$(dpkg-deb --field "$deb" Version)"
need_packages debootstrap xvfb x11-utils

folder="$(mktemp -d)"
bare="$folder/debian"
screen=
tidy() {
    [ -z "$screen" ] || kill "$screen" 2>/dev/null || true
    umount "$bare/tmp/.X11-unix" "$bare/dev/shm" "$bare/proc" 2>/dev/null || true
    rm -rf --one-file-system "$folder"
}
trap tidy EXIT

fail() { printf 'FAILED: %s\n' "$*" >&2; exit 1; }
# Runs what only has to succeed, and shows its words when it does not.
quietly() { "$@" >"$folder/log" 2>&1 || { tail "$folder/log"; fail "$*"; }; }
done_in() { printf '%s: %s s\n' "$1" $((SECONDS - started)); }

# Runs a command on the bare machine, as root or as its ordinary user.
inside() { chroot "$bare" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 "$@"; }
as_user() {
    chroot --userspec=tester:tester "$bare" env -i -C /home/tester PATH=/usr/bin:/bin \
        LC_ALL=C.UTF-8 HOME=/home/tester USER=tester XDG_RUNTIME_DIR=/home/tester/run "$@"
}

say "A bare Debian 12"
started=$SECONDS
mirror="$(apt-get indextargets --format '$(RELEASE) $(SITE)' 'Created-By: Packages' |
    awk -v release=$release '$1 == release { print $2; exit }')"
[ -n "$mirror" ] || fail "this machine's apt has no source of $release"
include=()
case "$mirror" in https:*) include=(--include=ca-certificates) ;; esac
eval "$(apt-config shell http_proxy Acquire::http::Proxy)"
export http_proxy="${http_proxy:-}"
quietly debootstrap --variant=minbase "${include[@]}" $release "$bare" "$mirror"
mount -t proc proc "$bare/proc"
mount -t tmpfs tmpfs "$bare/dev/shm"
if [ -n "$http_proxy" ]; then
    echo "Acquire::http::Proxy \"$http_proxy\";" >"$bare/etc/apt/apt.conf.d/proxy"
fi
printf '#!/bin/sh\nexit 101\n' >"$bare/usr/sbin/policy-rc.d"  # no service starts in a folder
chmod +x "$bare/usr/sbin/policy-rc.d"
inside useradd --create-home tester
as_user mkdir -m 700 run
before="$(inside dpkg-query -W | wc -l)"
echo "$before packages, $(du -sm --one-file-system "$bare" | cut -f1) MB"
done_in "made"

say "Installing $(basename "$deb")"
started=$SECONDS
cp "$deb" "$bare/tmp/verandis.deb"
quietly inside DEBIAN_FRONTEND=noninteractive \
    apt-get install -y --no-install-recommends /tmp/verandis.deb
echo "$(($(inside dpkg-query -W | wc -l) - before)) packages came with it; its own size" \
    "$(inside dpkg-query -W -f='${Installed-Size}' verandis) kB," \
    "all $(du -sm --one-file-system "$bare" | cut -f1) MB"
for program in verandis verandis-cli verandis-climate; do
    lacking="$(inside ldd "/usr/bin/$program" | grep 'not found' || true)"
    [ -z "$lacking" ] || fail "$program misses $lacking"
done
for file in applications/verandis.desktop metainfo/verandis.metainfo.xml man/man1/verandis.1.gz \
    icons/hicolor/scalable/apps/verandis.svg icons/hicolor/48x48/apps/verandis.png; do
    [ -s "$bare/usr/share/$file" ] || fail "share/$file is missing"
done
done_in "installed"

say "Command line"
[ "$(as_user verandis-cli --version)" = "verandis-cli $version" ] ||
    fail "verandis-cli --version says $(as_user verandis-cli --version)"
as_user verandis-cli init /home/tester/verandis
as_user verandis-cli start
as_user verandis-cli run steady U1 O2 V3 I4 | tail -4
as_user QT_QPA_PLATFORM=offscreen verandis --version

say "Diagrams without a screen"
as_user QT_QPA_PLATFORM=offscreen verandis --pictures out U1 O2 V3 I4
(cd "$bare/home/tester/out" && du -b ./*.png)

say "Report without a screen, also when one is named that does not answer"
as_user DISPLAY=:77 verandis-cli report --pdf /home/tester/run.pdf U1 V3
[ -s "$bare/home/tester/run.pdf" ] || fail "no report"

# A window that fell would end sooner; only the time limit may end it.
stays_open() {
    local ending=0
    as_user "$@" timeout "$seconds" verandis >"$folder/log" 2>&1 || ending=$?
    [ "$ending" -eq 124 ] || { cat "$folder/log"; fail "the window ended with $ending"; }
    cat "$folder/log"
    echo "open for $seconds s"
}

say "Window without a screen"
stays_open QT_QPA_PLATFORM=offscreen
say "Window without a screen, at the first start"
stays_open QT_QPA_PLATFORM=offscreen VERANDIS_CONFIG_DIR=/home/tester/none

say "Window on a screen"
mkdir -p /tmp/.X11-unix "$bare/tmp/.X11-unix"
mount --bind /tmp/.X11-unix "$bare/tmp/.X11-unix"
mkfifo "$folder/number"
Xvfb -displayfd 3 -screen 0 1400x1000x24 -ac -nolisten tcp 3>"$folder/number" 2>/dev/null &
screen=$!
read -r number <"$folder/number"
stays_open DISPLAY=":$number" &
looking=$!
found=
for ((try = 0; try < seconds * 5 && ! ${#found}; ++try)); do
    sleep 0.2
    found="$(DISPLAY=":$number" xwininfo -root -tree | grep '("verandis" "Verandis")')" || true
done
wait "$looking" || fail "the window"
[ -n "$found" ] || fail "no window was shown"
echo "shown: $(echo "$found" | head -1 | xargs)"

say "Removing"
quietly inside apt-get purge -y verandis
left="$(find "$bare/usr" "$bare/etc" -xdev -iname '*verandis*')"
[ -z "$left" ] || fail "left behind: $left"
[ -e "$bare/home/tester/verandis/PROJECT/PROJECTS.LIB" ] || fail "the user's data went with it"
say "The package installs, starts and leaves nothing behind"
