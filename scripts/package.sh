#!/usr/bin/env bash
# Builds the Debian package of every program from a build folder (build/ by
# default) with CPack and prints its path.
#   scripts/package.sh [build folder]
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "${1:-$root/build}" && pwd)
cmake --build "$build" >&2
(cd "$build" && cpack -G DEB >&2)
ls -t "$build"/tonarium_*.deb | head -1
