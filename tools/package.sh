#!/usr/bin/env bash
# Builds the Debian package in build/package (or $VERANDIS_BUILD), checks its desktop files and
# prints its name. $DEBFULLNAME and $DEBEMAIL name who answers for it.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

need_packages g++ cmake ninja-build gzip dpkg-dev desktop-file-utils appstream \
    "${window_packages[@]}"
build="${VERANDIS_BUILD:-build/package}"

say "Checking the desktop files"
desktop-file-validate packaging/verandis.desktop
# The program has no web domain that its name could be made from.
appstreamcli validate --no-net --override=cid-desktopapp-is-not-rdns=info \
    packaging/verandis.metainfo.xml

say "Building in $build"
export DEB_BUILD_MAINT_OPTIONS=hardening=+bindnow
flags() { dpkg-buildflags --get "$1"; }
options=(-DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr -DBUILD_TESTING=OFF)
options+=("-DCMAKE_CXX_FLAGS=$(flags CPPFLAGS) $(flags CXXFLAGS)"
    "-DCMAKE_EXE_LINKER_FLAGS=$(flags LDFLAGS)")
if [ -n "${DEBEMAIL:-}" ]; then
    options+=("-DVERANDIS_MAINTAINER=${DEBFULLNAME:-Verandis maintainers} <$DEBEMAIL>")
fi
cmake -G Ninja -B "$build" "${options[@]}" >/dev/null
cmake --build "$build" --parallel 2
rm -f "$build"/verandis_*.deb
(cd "$build" && cpack)

deb="$(ls "$build"/verandis_*.deb)"
say "$deb"
dpkg-deb --info "$deb" control
du -h "$deb" | cut -f1
if command -v lintian >/dev/null 2>&1; then
    lintian "$deb" || true
fi
