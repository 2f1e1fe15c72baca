#!/usr/bin/env bash
# Regenerates the notice chime (two short sine tones, 22.05 kHz mono) with sox.
set -euo pipefail
cd "$(dirname "$0")/../resources/sound_file"
sox -n -r 22050 -c 1 -b 16 notice.wav \
  synth 0.18 sine 880 fade q 0.005 0.18 0.09 : synth 0.32 sine 1318.5 fade q 0.005 0.32 0.25 vol 0.6
