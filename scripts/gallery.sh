#!/usr/bin/env bash
# Builds and starts the gallery. Without a display it renders every page to PNG files
# (in ./gallery-pages, or the folder given) and says where.
source "$(dirname "$0")/common.sh"
build_dir="$ROOT/build"
configure_and_build "$build_dir" -DVORLIN_BUILD_TESTS=OFF -DVORLIN_BUILD_BENCH=OFF
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  folder="${1:-$PWD/gallery-pages}"
  QT_QPA_PLATFORM=offscreen "$build_dir/bin/vorlin-gallery" --render "$folder"
else
  exec "$build_dir/bin/vorlin-gallery"
fi
