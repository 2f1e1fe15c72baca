# Shared by the scripts: configure and build one build folder with the project's settings.
# usage: configure_and_build BUILD_DIR [extra cmake arguments...]
set -euo pipefail
ROOT="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
# Paths relative to the checkout, so that ccache (when present) serves every clone and build folder.
export CCACHE_BASEDIR="${CCACHE_BASEDIR:-$ROOT}" CCACHE_NOHASHDIR="${CCACHE_NOHASHDIR:-1}"

configure_and_build() {
  local build_dir="$1"
  shift
  bash "$ROOT/scripts/install-deps.sh"
  cmake -S "$ROOT" -B "$build_dir" -G Ninja "$@"
  cmake --build "$build_dir" --parallel "$(nproc)"
}
