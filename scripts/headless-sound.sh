#!/usr/bin/env bash
# Sourced by the test command: starts a private PulseAudio with a null sink
# when no server answers, so that the audio tests have somewhere to play.
headless_sound_start() { :; }
headless_sound_stop() { :; }
