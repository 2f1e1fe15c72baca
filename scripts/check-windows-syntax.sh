#!/usr/bin/env bash
# Compiles every library source file, Windows code paths included, with the 32-bit MinGW
# compiler in syntax-only mode, so the Windows build keeps compiling without a Windows machine.
set -euo pipefail
ROOT="$(cd "$(dirname "$0")/.." && pwd)"
bash "$ROOT/scripts/install-deps.sh"

flags=(-std=c++17 -fsyntax-only -DNOMINMAX -Wno-attributes -DVORLIN_LIBRARY -DQT_MESSAGELOGCONTEXT
       $(pkg-config --cflags Qt5Core Qt5Gui Qt5Widgets Qt5Svg Qt5Xml Qt5Network Qt5Multimedia \
                             Qt5TextToSpeech Qt5Concurrent Qt5Qml libqrencode)
       -I"$ROOT/src" -I"$ROOT/src/platform")
# Third-party headers that sit in /usr/include, which MinGW does not search: offer just those.
third_party=$(mktemp -d)
trap 'rm -rf "$third_party"' EXIT
ln -s /usr/include/qrencode.h "$third_party/qrencode.h"
flags+=(-I"$third_party")
for family in app util frames buttons inputs display views; do
  flags+=(-I"$ROOT/src/$family")
done
export CHECK_FLAGS="${flags[*]}"

check_one() {
  # shellcheck disable=SC2086
  i686-w64-mingw32-g++-posix $CHECK_FLAGS "$1" || { echo "Windows syntax check failed: $1" >&2; return 1; }
}
export -f check_one

count=$(find "$ROOT/src" -name '*.cpp' | wc -l)
if find "$ROOT/src" -name '*.cpp' -print0 | sort -z | xargs -0 -n 1 -P "$(nproc)" bash -c 'check_one "$0"'; then
  echo "Windows syntax check: $count files, all passed"
else
  echo "Windows syntax check: $count files, some failed" >&2
  exit 1
fi
