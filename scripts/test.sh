#!/usr/bin/env bash
# Installs what is needed, builds and runs every check headless: the format
# check, the test suite (offscreen Qt, a private PulseAudio null sink), a
# flood of clicks on the real window under Xvfb, the Debian package built,
# unpacked and started from a scratch root, a short fuzzing run of the
# sample decoder, and the test suite again in a build with AddressSanitizer
# and UndefinedBehaviorSanitizer.
#   --quick      the format check and the plain suite only
#   --sanitize   the sanitizer build and its suite only
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
mode=${1:-all}
case "$mode" in
all | --quick | --sanitize) ;;
*)
    echo "usage: $0 [--quick | --sanitize]" >&2
    exit 2
    ;;
esac

"$root/scripts/install-deps.sh"
export QT_QPA_PLATFORM=offscreen
# shellcheck source=headless-sound.sh
source "$root/scripts/headless-sound.sh"
headless_sound_start
trap headless_sound_stop EXIT

plain_suite() {
    "$root/scripts/check-format.sh"
    "$root/scripts/build.sh"
    (cd "${BUILD_DIR:-$root/build}" && ctest --output-on-failure --timeout 300)
}

sanitized_suite() {
    local build=${SANITIZE_BUILD_DIR:-$root/build-asan}
    BUILD_DIR=$build BUILD_TYPE=RelWithDebInfo QM_CMAKE_ARGS="-DQM_SANITIZE=ON -DQM_BENCH=OFF" "$root/scripts/build.sh"
    (
        cd "$build"
        export ASAN_OPTIONS=halt_on_error=1:detect_leaks=1:abort_on_error=0
        export LSAN_OPTIONS=suppressions=$root/scripts/sanitizers/lsan.supp:print_suppressions=0
        export UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
        # Tests that hear the sink in real time run in the plain suite only:
        # the sanitizers slow the listening thread beyond its timing.
        ctest --output-on-failure --timeout 600 --label-exclude realtime
    )
}

case "$mode" in
--quick) plain_suite ;;
--sanitize) sanitized_suite ;;
all)
    plain_suite
    "$root/scripts/flood-test.sh" "${BUILD_DIR:-$root/build}/bin/GuitarTonarium"
    "$root/scripts/package-test.sh" "${BUILD_DIR:-$root/build}"
    "$root/scripts/fuzz.sh" 30
    sanitized_suite
    ;;
esac
