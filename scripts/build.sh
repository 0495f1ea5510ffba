#!/usr/bin/env bash
# Configures and builds the project into ./build (or $BUILD_DIR); extra CMake
# options come from $QM_CMAKE_ARGS.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build}
# shellcheck disable=SC2086
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=${BUILD_TYPE:-RelWithDebInfo} ${QM_CMAKE_ARGS:-}
cmake --build "$build" --parallel "$(nproc)"
