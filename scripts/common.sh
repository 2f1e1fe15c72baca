# Shared by the scripts: configure and build one build folder with the project's settings.
# usage: configure_and_build BUILD_DIR [extra cmake arguments...]
set -euo pipefail
ROOT="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"

configure_and_build() {
  local build_dir="$1"
  shift
  bash "$ROOT/scripts/install-deps.sh"
  cmake -S "$ROOT" -B "$build_dir" -G Ninja "$@"
  cmake --build "$build_dir" --parallel "$(nproc)"
}
