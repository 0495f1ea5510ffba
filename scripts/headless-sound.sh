#!/usr/bin/env bash
# Sourced by the test command: starts a private PulseAudio with a null sink
# when no server answers, so that the audio tests have somewhere to play.
#
# Debian 12's null sink renders up to 2 s ahead while nothing plays and then
# stalls new streams for as long. A loopback from a second null sink keeps one
# low-latency stream connected, and the start waits until the sink's latency
# has come down. The server is stopped by its PID at the end.

headless_sound_pid=""
headless_sound_dir=""

headless_sound_null_latency_usec() {
    pactl list sinks 2>/dev/null | awk '
        /^Sink #/ { in_null = 0 }
        /^[[:space:]]*Name: null$/ { in_null = 1 }
        in_null && /^[[:space:]]*Latency:/ { print $2; exit }'
}

headless_sound_start() {
    command -v pulseaudio >/dev/null 2>&1 || return 0
    if pactl info >/dev/null 2>&1; then
        return 0
    fi
    if [ -z "${XDG_RUNTIME_DIR:-}" ] || [ ! -w "${XDG_RUNTIME_DIR}" ]; then
        XDG_RUNTIME_DIR=$(mktemp -d /tmp/headless-sound.XXXXXX)
        headless_sound_dir=$XDG_RUNTIME_DIR
    fi
    chmod 700 "$XDG_RUNTIME_DIR"
    export XDG_RUNTIME_DIR
    export PULSE_SERVER="unix:$XDG_RUNTIME_DIR/pulse/native"

    pulseaudio --daemonize=yes --exit-idle-time=-1 --disallow-exit --log-level=error -n \
        --load="module-null-sink sink_name=null" \
        --load="module-null-sink sink_name=keepalive" \
        --load="module-loopback source=keepalive.monitor sink=null latency_msec=20" \
        --load="module-native-protocol-unix auth-anonymous=1" || return 0

    local i
    for i in $(seq 1 50); do
        pactl info >/dev/null 2>&1 && break
        sleep 0.1
    done
    headless_sound_pid=$(cat "$XDG_RUNTIME_DIR/pulse/pid" 2>/dev/null || true)
    pactl set-default-sink null >/dev/null 2>&1 || true

    local latency
    for i in $(seq 1 100); do
        latency=$(headless_sound_null_latency_usec || true)
        if [ -n "$latency" ] && [ "$latency" -lt 100000 ]; then
            break
        fi
        sleep 0.1
    done
}

headless_sound_stop() {
    if [ -n "$headless_sound_pid" ]; then
        kill "$headless_sound_pid" 2>/dev/null || true
        local i
        for i in $(seq 1 50); do
            kill -0 "$headless_sound_pid" 2>/dev/null || break
            sleep 0.1
        done
        headless_sound_pid=""
    fi
    if [ -n "$headless_sound_dir" ]; then
        rm -rf "$headless_sound_dir"
        headless_sound_dir=""
    fi
}
