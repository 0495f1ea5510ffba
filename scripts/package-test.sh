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
programs="GuitarTonarium UkuleleTonarium ViolinTonarium BassTonarium BalalaikaTonarium BanjoTonarium MandolinTonarium PianoTonarium Metronome Tuners Chords"
for program in $programs; do
    id=com.corvane.$program
    for size in 16 22 24 32 48 64 128 256 512; do
        [ -s "$root/usr/share/icons/hicolor/${size}x$size/apps/$id.png" ] || fail "no $size px icon of $program"
    done
    [ -s "$root/usr/share/icons/hicolor/scalable/apps/$id.svg" ] || fail "no scalable icon of $program"
    [ -s "$root/usr/share/applications/$id.desktop" ] || fail "no menu entry of $program"
    [ -s "$root/usr/share/metainfo/$id.metainfo.xml" ] || fail "no metadata of $program"
done
[ -s "$root/usr/share/doc/tonarium/copyright" ] || fail "no copyright file"
[ ! -e "$root/usr/bin/Resources" ] || fail "a Resources folder in bin/"
for sample in tick.wav bell.wav guitar_440_A4.mp3 ukulele_440_C4.mp3 violin_440_G3.mp3 bass_440_E1.mp3 \
    balalaika_440_E6.mp3 banjo_440_Cd6.mp3 mandolin_440_A6.mp3 piano_440_A0.mp3 piano_440_C8.mp3 \
    guitar_415_E2.mp3 violine_460_E5.mp3 dombra_440_D3.mp3; do
    [ -s "$root/usr/lib/tonarium/Resources/$sample" ] || fail "no $sample beside the programs"
done
for slides in "" UkuleleTonarium/ ViolinTonarium/ BassTonarium/ BalalaikaTonarium/ BanjoTonarium/ MandolinTonarium/ PianoTonarium/ Metronome/ Tuners/ Chords/; do
    [ -s "$root/usr/lib/tonarium/Resources/${slides}TRXSlide0_de.jpg" ] || fail "no introduction slides in Resources/$slides"
done

# The command line of the installed program.
home=$(mktemp -d)
for program in $programs; do
    version=$(HOME=$home QT_QPA_PLATFORM=offscreen "$root/usr/bin/$program" --version 2>/dev/null)
    [ "$version" = "$program 1.2" ] || fail "$program --version printed '$version'"
done
status=0
HOME=$home QT_QPA_PLATFORM=offscreen "$root/usr/bin/GuitarTonarium" --no-such-option >/dev/null 2>&1 || status=$?
[ "$status" = 2 ] || fail "an unknown option ended with $status, not 2"
rm -rf "$home"

# The installed programs, started through their links in bin/.
"$here/flood-test.sh" "$root/usr/bin/GuitarTonarium" 10
"$here/flood-test.sh" "$root/usr/bin/UkuleleTonarium" 10
echo "package test: $(basename "$deb") installs, validates and runs from a scratch root"
