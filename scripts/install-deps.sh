#!/usr/bin/env bash
# Installs the Debian packages the build, the application and the tests need.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
sudo=""
[ "$(id -u)" -eq 0 ] || sudo=sudo
mapfile -t packages < <(grep -v '^\s*\(#\|$\)' "$here/debian-packages.txt")
missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
    $sudo apt-get update -q
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -q --no-install-recommends "${missing[@]}"
fi
