#!/usr/bin/env bash
# Installs, only when missing, every Debian package that building the library, its tests,
# benchmarks and gallery needs. Machines run as root; elsewhere sudo is used when present.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config ccache python3
  qtbase5-dev qtbase5-dev-tools libqt5svg5-dev qttools5-dev qttools5-dev-tools
  qtmultimedia5-dev libqt5multimedia5-plugins libqt5texttospeech5-dev qtdeclarative5-dev
  libqrencode-dev libxcb1-dev libspdlog-dev
  xvfb xauth zbar-tools sox fonts-wqy-microhei
  g++-mingw-w64-i686-posix g++-mingw-w64-x86-64-posix
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=""
[ "$(id -u)" -ne 0 ] && command -v sudo >/dev/null && sudo=sudo
echo "Installing missing packages: ${missing[*]}"
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
