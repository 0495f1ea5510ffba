#!/usr/bin/env bash
# Refreshes the message catalogues in translations/ from the sources: new
# texts arrive unfinished, vanished ones are dropped. Translate the new
# entries afterwards (Qt Linguist, or by hand in the .ts files).
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
lupdate=$(command -v lupdate || echo /usr/lib/qt5/bin/lupdate)
list=$(mktemp)
trap 'rm -f "$list"' EXIT

sources() { find "$@" \( -name tests -o -name '_*test*' \) -prune -o \( -name '*.cpp' -o -name '*.h' \) -print | sort; }

cd "$root"
sources libs platform >"$list"
"$lupdate" -silent -locations none -no-obsolete @"$list" -ts translations/libs_de.ts translations/libs_ru.ts
sources app >"$list"
"$lupdate" -silent -locations none -no-obsolete @"$list" -ts translations/GuitarTonarium_de.ts translations/GuitarTonarium_ru.ts
