#!/usr/bin/env bash
# Floods the real window of a finder program with clicks on its fingerboard, as an
# auto-clicker or a stuck mouse would, then checks that the window still
# answers and that one more press sounds at the sink.
#   scripts/flood-test.sh <program> [clicks]
# Needs Xvfb, xdotool, python3-xlib, SoX, and the PulseAudio server with the null
# sink that scripts/headless-sound.sh starts.
set -euo pipefail
program=$(realpath -s "${1:?usage: $0 <program> [clicks]}")
clicks=${2:-1000}
here=$(cd "$(dirname "$0")" && pwd)

if [ "${FLOOD_INNER:-}" != 1 ]; then
    FLOOD_INNER=1 exec xvfb-run -a -s "-screen 0 1280x800x24" "$here/flood-test.sh" "$program" "$clicks"
fi

name=$(basename "$program")
work=$(mktemp -d)
app_pid=""
recorder_pid=""
cleanup() {
    [ -n "$recorder_pid" ] && kill "$recorder_pid" 2>/dev/null || true
    [ -n "$app_pid" ] && kill "$app_pid" 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT
fail() {
    echo "flood test: FAILED: $*" >&2
    exit 1
}

# A fresh home whose settings skip the introduction.
export HOME=$work/home
mkdir -p "$HOME/Library/Application Support/$name"
printf '[%s]\nNeverShowItAgain=true\n' "$name" >"$HOME/Library/Application Support/$name/settings.plist"
unset QT_QPA_PLATFORM
"$program" &
app_pid=$!
window=$(timeout 20 xdotool search --sync --onlyvisible --name "^$name\$" | head -1) || fail "no window"
sleep 1

# A place on the board (the guitar's open A string, on the ukulele a fret
# of its C string), and the two mode buttons above the board.
board_x=300 board_y=514 training_x=447 training_y=427 find_x=351 find_y=427 panel_x=400 panel_y=210

start=$(date +%s%N)
xdotool mousemove --window "$window" "$board_x" "$board_y" click --repeat "$clicks" --delay 0 1
sent=$(date +%s%N)
kill -0 "$app_pid" 2>/dev/null || fail "the program ended during the flood"
rate=$((clicks * 1000000000 / (sent - start + 1)))

# Does the window answer? Switch to training and wait for its panel: this
# waits for the presses still queued too. Then back to Find Note.
drained=$("$here/window-answer.py" "$window" "$training_x" "$training_y" "$panel_x" "$panel_y") \
    || fail "the window did not answer within 20 s"
answer=$("$here/window-answer.py" "$window" "$find_x" "$find_y" "$panel_x" "$panel_y") \
    || fail "the window did not go back to Find Note"

# One more press must be heard at the sink.
parec -d null.monitor --format=s16le --rate=44100 --channels=1 --latency-msec=20 >"$work/heard.raw" &
recorder_pid=$!
sleep 0.5
xdotool mousemove --window "$window" "$board_x" "$board_y" click 1
sleep 2
kill "$recorder_pid"
wait "$recorder_pid" 2>/dev/null || true
recorder_pid=""
peak=$(sox -t raw -r 44100 -e signed -b 16 -c 1 "$work/heard.raw" -n stat 2>&1 | awk '/Maximum amplitude/ { print $3 }')
awk -v peak="$peak" 'BEGIN { exit !(peak > 0.05) }' || fail "the press after the flood was not heard (peak $peak)"

kill -0 "$app_pid" 2>/dev/null || fail "the program ended"
echo "flood test: $clicks clicks at $rate a second; worked off after ${drained} ms; then a click was answered" \
    "after ${answer} ms; the next press peaked at $peak"
