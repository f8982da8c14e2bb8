#!/usr/bin/env bash
# Installs the Debian 12 packages the launcher needs to build, test and run,
# or, given package names, just those (the benchmark scripts' extras).
# Idempotent: it asks apt only for what is missing, and refreshes the
# package lists only when something has to be installed.
set -euo pipefail

default_packages=(
  cmake ninja-build g++ pkg-config
  qtbase5-dev qtbase5-dev-tools qttools5-dev qttools5-dev-tools
  libqt5svg5
  libarchive-dev libarchive-tools libicu-dev zstd libzstd-dev
  libgtest-dev libgmock-dev libbenchmark-dev valgrind
  patchelf
  xvfb xauth x11-utils
  python3
  clang libclang-rt-14-dev
  fonts-dejavu-core
)
if [ $# -gt 0 ]; then
  packages=("$@")
else
  packages=("${default_packages[@]}")
fi

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done

if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

echo "install-deps: installing ${missing[*]}"
sudo=""
if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
