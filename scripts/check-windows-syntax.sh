#!/usr/bin/env bash
# Compiles every library source file, Windows code paths included, with the 32-bit MinGW
# compiler in syntax-only mode, so the Windows build keeps compiling without a Windows machine.
set -euo pipefail
ROOT="$(cd "$(dirname "$0")/.." && pwd)"
bash "$ROOT/scripts/install-deps.sh"
CXX=i686-w64-mingw32-g++-posix

qt_flags=$(pkg-config --cflags Qt5Core Qt5Gui Qt5Widgets Qt5Svg Qt5Xml Qt5Network Qt5Multimedia Qt5TextToSpeech Qt5Concurrent Qt5Qml)
includes=(-I"$ROOT/src" -I"$ROOT/src/platform")
for family in app util frames buttons inputs display views; do
  includes+=(-I"$ROOT/src/$family")
done
qrencode_flags=$(pkg-config --cflags libqrencode)

failed=0
count=0
while IFS= read -r -d '' source; do
  count=$((count + 1))
  if ! $CXX -std=c++17 -fsyntax-only -DNOMINMAX -Wno-attributes -DVORLIN_LIBRARY -DQT_MESSAGELOGCONTEXT \
       $qt_flags $qrencode_flags "${includes[@]}" "$source"; then
    echo "Windows syntax check failed: ${source#$ROOT/}" >&2
    failed=$((failed + 1))
  fi
done < <(find "$ROOT/src" -name '*.cpp' -print0 | sort -z)

echo "Windows syntax check: $count files, $failed failed"
[ "$failed" -eq 0 ]
