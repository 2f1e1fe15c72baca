#!/usr/bin/env bash
# Builds and runs make-frames-art.cpp, which redraws the window-frame artwork in place.
set -euo pipefail
ROOT="$(cd "$(dirname "$0")/.." && pwd)"
tool="$(mktemp -d)/make-frames-art"
g++ -std=c++17 -fPIC -o "$tool" "$ROOT/scripts/make-frames-art.cpp" $(pkg-config --cflags --libs Qt5Gui)
QT_QPA_PLATFORM=offscreen "$tool" "$ROOT"
rm -rf "$(dirname "$tool")"
