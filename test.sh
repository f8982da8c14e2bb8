#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test with ctest: once in
# the normal build and once with AddressSanitizer and UndefinedBehaviorSanitizer.
#   CALDERIX_SKIP_SANITIZE=1 ./test.sh   skips the sanitizer pass
set -euo pipefail
cd "$(dirname "$0")"

./scripts/install-deps.sh

jobs=$(nproc)
run_suite() {
  local dir=$1
  shift
  cmake -S . -B "$dir" -G Ninja "$@" >/dev/null
  cmake --build "$dir" -j"$jobs"
  (cd "$dir" && ctest --output-on-failure --schedule-random -j"$jobs")
}

echo "== normal build"
run_suite build -DCMAKE_BUILD_TYPE=RelWithDebInfo
if [ "${CALDERIX_SKIP_SANITIZE:-0}" != 1 ]; then
  echo "== sanitizer build (ASan + UBSan)"
  run_suite build-asan -DCMAKE_BUILD_TYPE=Debug -DCALDERIX_SANITIZE=ON
fi
