#!/usr/bin/env bash
# Builds the fuzz targets (fuzz/, clang with libFuzzer, ASan and UBSan) and
# runs each over its seed corpus.
#   scripts/fuzz.sh [SECONDS]     each target for SECONDS (default 300)
#   scripts/fuzz.sh --smoke       each target for about 10 seconds
#   scripts/fuzz.sh ... TARGET... only the named targets
# The seeds in fuzz/corpus are copied into a scratch corpus first, so the
# repository's corpus stays small. Exits non-zero when any target finds a
# crash; the crash file's path is printed (libFuzzer's "Test unit written
# to ..." line and a summary at the end).
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD

seconds=300
targets=()
for arg in "$@"; do
  case $arg in
    --smoke) seconds=10 ;;
    ''|*[!0-9]*) targets+=("$arg") ;;
    *) seconds=$arg ;;
  esac
done
if [ ${#targets[@]} -eq 0 ]; then
  targets=(fuzz_config fuzz_ustring fuzz_version fuzz_pidfile)
fi

build=${CALDERIX_FUZZ_BUILD:-$root/build-fuzz}
for tool in clang clang++ cmake ninja; do
  command -v "$tool" >/dev/null || { echo "fuzz.sh: $tool is missing (scripts/install-deps.sh installs it)" >&2; exit 2; }
done
cmake -S fuzz -B "$build" -G Ninja -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ >/dev/null
cmake --build "$build" -j"$(nproc)"

# The kept findings and the seeds first: they are quick and deterministic.
echo "== replaying fuzz/corpus and fuzz/regressions"
(cd "$build" && ctest -L fuzz --output-on-failure -j"$(nproc)") || { echo "fuzz.sh: a replayed input fails" >&2; exit 1; }

work=$build/runs
mkdir -p "$work"
# Fuzzing runs as root in CI: libFuzzer writes its crash files here, and the
# targets' scratch folders go below a TMPDIR that is removed afterwards.
# Every input is written to a file: on a memory file system that costs a
# hundredth of what a disk costs.
base=${TMPDIR:-/tmp}
if [ -d /dev/shm ] && [ -w /dev/shm ]; then
  base=/dev/shm
fi
scratch=$(mktemp -d "$base/calderix-fuzz-run.XXXXXX")
trap 'rm -rf "$scratch"' EXIT

export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1:abort_on_error=0:strict_string_checks=1:allocator_may_return_null=0}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}
export QT_QPA_PLATFORM=offscreen

failed=()
summary=()
for target in "${targets[@]}"; do
  corpus=$work/corpus-$target
  artifacts=$work/artifacts-$target/
  mkdir -p "$corpus" "$artifacts"
  cp -n fuzz/corpus/"$target"/* "$corpus"/ 2>/dev/null || true
  log=$work/$target.log
  echo "== $target: ${seconds}s over $corpus"
  extra=()
  # QSettings keeps every INI file it read in a process-wide cache, so each
  # input's count of allocations and frees differs and libFuzzer would run
  # a full leak scan after every input (fifty times slower).
  [ "$target" = fuzz_version ] && extra+=(-detect_leaks=0)
  status=0
  TMPDIR=$scratch "$build/$target" -max_total_time="$seconds" -timeout=25 -rss_limit_mb=2560 \
    -max_len=4096 -print_final_stats=1 -artifact_prefix="$artifacts" \
    ${extra[@]+"${extra[@]}"} "$corpus" >"$log" 2>&1 || status=$?
  execs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -n1)
  speed=$(sed -n 's/^stat::average_exec_per_sec: *//p' "$log" | tail -n1)
  cov=$(grep -o 'cov: [0-9]*' "$log" | tail -n1 || true)
  line="$target: ${execs:-?} executions (${speed:-?}/s), ${cov:-cov: ?}, corpus $(ls "$corpus" | wc -l) files"
  if [ "$status" -ne 0 ]; then
    tail -n 60 "$log"
    crash=$(sed -n 's/.*Test unit written to \(.*\)$/\1/p' "$log" | tail -n1)
    line="$line, FAILED (status $status), reproducer: ${crash:-see $log}"
    failed+=("$target")
  fi
  echo "$line"
  summary+=("$line")
done

echo "== summary"
printf '%s\n' "${summary[@]}"
if [ ${#failed[@]} -ne 0 ]; then
  echo "fuzz.sh: findings in ${failed[*]}" >&2
  exit 1
fi
