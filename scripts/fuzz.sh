#!/usr/bin/env bash
# Builds the sample decoder's libFuzzer target with clang and runs it for
# the given number of seconds (600 by default), seeded with the project's own
# samples and small wave and AIFF files. Inputs that crash, leak or take
# longer than a second fail the run and are kept in the build folder.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
seconds=${1:-600}
build=${FUZZ_BUILD_DIR:-$root/build-fuzz}
CC=clang-14 CXX=clang++-14 cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DQM_FUZZ=ON -DQM_BENCH=OFF >/dev/null
cmake --build "$build" --target fuzz_AudioFileDecoder --parallel "$(nproc)"

seeds=$build/fuzz-seeds
corpus=$build/fuzz-corpus
mkdir -p "$seeds" "$corpus"
if [ -z "$(ls -A "$seeds")" ]; then
    for sample in E2 A4 D6; do
        cp "${BUILD_DIR:-$root/build}/bin/Resources/guitar_440_$sample.mp3" "$seeds/" 2>/dev/null || true
    done
    sox -n -r 8000 -c 1 -b 16 "$seeds/tone16.wav" synth 0.05 sine 440
    sox -n -r 11025 -c 2 -b 24 "$seeds/tone24.wav" synth 0.05 sine 440
    sox -n -r 8000 -c 1 -e floating-point -b 32 "$seeds/float.wav" synth 0.05 sine 440
    sox -n -r 8000 -c 1 -b 8 "$seeds/tone8.aiff" synth 0.05 sine 440
    sox -n -r 8000 -c 2 -b 16 "$seeds/tone16.aiff" synth 0.05 sine 440
fi
cp "$root"/libs/cpp/QMMultiMedia/fuzz/regressions/* "$seeds/"
cd "$build"
./bin/fuzz_AudioFileDecoder -max_total_time="$seconds" -timeout=1 -rss_limit_mb=2048 -max_len=65536 \
    -print_final_stats=1 "$corpus" "$seeds"
