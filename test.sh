#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test with ctest: once in
# the normal build and once with AddressSanitizer and UndefinedBehaviorSanitizer.
# Last, each fuzz target runs briefly over its corpus (scripts/fuzz.sh runs
# them longer).
#   CALDERIX_SKIP_SANITIZE=1 ./test.sh   skips the sanitizer pass
#   CALDERIX_SKIP_FUZZ=1 ./test.sh       skips the fuzz smoke run
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
if [ "${CALDERIX_SKIP_FUZZ:-0}" != 1 ]; then
  echo "== fuzz smoke run"
  scripts/fuzz.sh --smoke
fi
