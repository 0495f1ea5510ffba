#!/usr/bin/env bash
# Builds the Debian package from a build folder, unpacks it into a scratch
# root, validates its menu entry and metadata, and starts the program from
# there with a fresh home: its window must open, answer clicks and sound.
#   scripts/package-test.sh <build folder>
# Needs what scripts/flood-test.sh needs, and dpkg-dev, desktop-file-utils
# and appstream.
set -euo pipefail
build=$(cd "${1:?usage: $0 <build folder>}" && pwd)
here=$(cd "$(dirname "$0")" && pwd)
fail() {
    echo "package test: FAILED: $*" >&2
    exit 1
}

deb=$("$here/package.sh" "$build")
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
dpkg-deb -x "$deb" "$root"

depends=$(dpkg-deb -f "$deb" Depends)
for library in libqt5widgets5 libmpg123-0 libsndfile1 libpulse0; do
    grep -q "$library" <<<"$depends" || fail "the package does not depend on $library: $depends"
done
for desktop in "$root"/usr/share/applications/*.desktop; do
    desktop-file-validate "$desktop" || fail "$desktop"
done
for metainfo in "$root"/usr/share/metainfo/*.metainfo.xml; do
    appstreamcli validate --no-net --pedantic "$metainfo" >/dev/null || fail "$metainfo"
done
for size in 16 22 24 32 48 64 128 256 512; do
    [ -s "$root/usr/share/icons/hicolor/${size}x$size/apps/com.corvane.GuitarTonarium.png" ] || fail "no $size px icon"
done
[ -s "$root/usr/share/icons/hicolor/scalable/apps/com.corvane.GuitarTonarium.svg" ] || fail "no scalable icon"
[ -s "$root/usr/share/doc/tonarium/copyright" ] || fail "no copyright file"
[ ! -e "$root/usr/bin/Resources" ] || fail "a Resources folder in bin/"
[ -s "$root/usr/lib/tonarium/Resources/guitar_440_A4.mp3" ] || fail "no samples beside the program"
[ -s "$root/usr/lib/tonarium/Resources/TRXSlide0_de.jpg" ] || fail "no introduction slides beside the program"

# The command line of the installed program.
home=$(mktemp -d)
version=$(HOME=$home QT_QPA_PLATFORM=offscreen "$root/usr/bin/GuitarTonarium" --version 2>/dev/null)
[ "$version" = "GuitarTonarium 1.2" ] || fail "--version printed '$version'"
status=0
HOME=$home QT_QPA_PLATFORM=offscreen "$root/usr/bin/GuitarTonarium" --no-such-option >/dev/null 2>&1 || status=$?
[ "$status" = 2 ] || fail "an unknown option ended with $status, not 2"
rm -rf "$home"

# The installed program, started through its link in bin/.
"$here/flood-test.sh" "$root/usr/bin/GuitarTonarium" 10
echo "package test: $(basename "$deb") installs, validates and runs from a scratch root"
