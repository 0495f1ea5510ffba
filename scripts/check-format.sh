#!/usr/bin/env bash
# Fails when a tracked C++ file differs from what clang-format (Debian 12's
# version 14, the project's .clang-format) makes of it.
set -euo pipefail
cd "$(dirname "$0")/.."
git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format --dry-run -Werror
echo "format: every C++ file is formatted"
