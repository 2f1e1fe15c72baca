#!/usr/bin/env bash
# Builds the library with its tests and runs the whole suite.
# usage: scripts/test.sh [BUILD_DIR [extra cmake arguments...]]
source "$(dirname "$0")/common.sh"
build_dir="${1:-$ROOT/build}"
[ $# -gt 0 ] && shift
configure_and_build "$build_dir" "$@"
cd "$build_dir"
ctest --output-on-failure --parallel "$(nproc)"
