#!/usr/bin/env bash
# Installs what is needed, builds and runs every test headless: offscreen Qt
# and a private PulseAudio null sink for the audio tests.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build}
"$root/scripts/install-deps.sh"
"$root/scripts/build.sh"
export QT_QPA_PLATFORM=offscreen
# shellcheck source=headless-sound.sh
source "$root/scripts/headless-sound.sh"
headless_sound_start
trap headless_sound_stop EXIT
cd "$build"
ctest --output-on-failure --timeout 300
