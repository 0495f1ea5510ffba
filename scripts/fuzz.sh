#!/usr/bin/env bash
# Builds every libFuzzer target with clang and runs them one after the other, sharing
# the given number of seconds (600 by default) among them: the sample decoder, seeded
# with the project's own samples and small wave and AIFF files, and the loaders of the
# audio file library, seeded by its own writers. Each target's regression folder
# joins its seeds. Inputs that crash, leak or take longer than a second fail the run
# and are kept in the build folder (crash-*, leak-*, timeout-*).
#   FUZZ_TARGETS="WaveInput EBUInfo" limits the run to those targets.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
seconds=${1:-600}
build=${FUZZ_BUILD_DIR:-$root/build-fuzz}
fipaudio_targets=(WaveInput AiffInput GeneralFileInput EBUInfo EnvelopeFile LTCFile)
targets=(${FUZZ_TARGETS:-AudioFileDecoder ${fipaudio_targets[*]}})

CC=clang-14 CXX=clang++-14 cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DQM_FUZZ=ON -DQM_BENCH=OFF >/dev/null
cmake --build "$build" --parallel "$(nproc)" --target fuzz_FipAudioSeeds \
    "${targets[@]/#/fuzz_}"

# The sample decoder's seeds.
seeds=$build/fuzz-seeds
mkdir -p "$seeds"
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

# The audio file library's seeds, one folder per target.
fipaudio_seeds=$build/fuzz-seeds-fipaudio
"$build/bin/fuzz_FipAudioSeeds" "$fipaudio_seeds"

share=$((seconds / ${#targets[@]}))
[ "$share" -ge 1 ] || share=1
cd "$build"
for target in "${targets[@]}"; do
    corpus=$build/fuzz-corpus-$target
    mkdir -p "$corpus"
    if [ "$target" = AudioFileDecoder ]; then
        target_seeds=$seeds
    else
        target_seeds=$fipaudio_seeds/$target
        cp "$root/libs/cpp/QMMultiMedia/_FipAudio/fuzz/regressions/$target/"* "$target_seeds/" 2>/dev/null || true
    fi
    echo "== fuzz_$target for $share s"
    "./bin/fuzz_$target" -max_total_time="$share" -timeout=1 -rss_limit_mb=2048 -max_len=65536 \
        -print_final_stats=1 "$corpus" "$target_seeds"
done
