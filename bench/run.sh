#!/usr/bin/env bash
# Side-by-side timings of the launcher against the floors it cannot beat,
# the commands alternating round by round so that a change in the machine's
# load hits all of them alike. Writes docs/PERFORMANCE.md.
#
#   bench/run.sh [--rounds N] [--start-rounds N] [--format tar.zst|zip|tar.gz]
#                [--label TEXT] [--no-micro] BUILD_DIR
#
# BUILD_DIR is a built tree (Release or RelWithDebInfo) with the demo bundle,
# bench_bare_app and calderix_bench. The payload comes from
# bench/make-payload.sh, made into BUILD_DIR/bench-payload when missing.
# Raw samples go to BUILD_DIR/bench-results. Everything else it makes (work
# folders in /dev/shm and /var/tmp, the users' homes, lock folders) is
# removed on exit, and every demo UI started from those homes is ended.
set -euo pipefail
export LC_ALL=C

here=$(cd "$(dirname "$0")" && pwd)
repo=$(cd "$here/.." && pwd)
rounds=10
start_rounds=20
format=tar.zst
label="preliminary (taken while the machine was busy)"
micro=1
while [ $# -gt 0 ]; do
  case $1 in
    --rounds) rounds=$2; shift 2 ;;
    --start-rounds) start_rounds=$2; shift 2 ;;
    --format) format=$2; shift 2 ;;
    --label) label=$2; shift 2 ;;
    --no-micro) micro=0; shift ;;
    -*) echo "run.sh: unknown option $1" >&2; exit 2 ;;
    *) break ;;
  esac
done
if [ $# -ne 1 ]; then
  sed -n '6,7p' "$0" | sed 's/^# *//' >&2
  exit 2
fi
build=$(cd "$1" && pwd)

# /usr/bin/time for peak RSS, bsdtar for the extraction floor.
needed=(time libarchive-tools)
"$repo/scripts/install-deps.sh" "${needed[@]}"

demo="$build/demo/Calderix Drive.app"
bare_exe=$build/bench/bench_bare_app
for f in "$demo/Contents/MacOS/launcher" "$bare_exe"; do
  if [ ! -x "$f" ]; then
    echo "run.sh: missing $f (build the tree first)" >&2
    exit 1
  fi
done
payload=$build/bench-payload
if [ ! -f "$payload/calderix.$format.vpk" ]; then
  "$here/make-payload.sh" "$build" "$payload"
fi
package=$payload/calderix.$format.vpk
expected_entries=$(wc -l < "$payload/manifest.txt")

results=$build/bench-results
rm -rf "$results"
mkdir -p "$results"

work_dirs=()
homes=()

# The demo UIs started from one of our homes: their executables lie inside it.
ui_pids() {
  local home=$1 p exe
  for p in /proc/[0-9]*; do
    exe=$(readlink "$p/exe" 2>/dev/null) || continue
    case $exe in "$home"/*) echo "${p#/proc/}" ;; esac
  done
}

# Waits for the UIs of a home to leave (they quit 1 ms after they start),
# ending them by pid after five seconds.
settle() {
  local home=$1 pids i
  for i in $(seq 50); do
    pids=$(ui_pids "$home")
    [ -z "$pids" ] && return 0
    sleep 0.1
  done
  # shellcheck disable=SC2086
  kill -TERM $pids 2>/dev/null || true
  sleep 1
  pids=$(ui_pids "$home")
  # shellcheck disable=SC2086
  [ -z "$pids" ] || kill -KILL $pids 2>/dev/null || true
}

cleanup() {
  local h d
  for h in "${homes[@]}"; do settle "$h"; done
  for d in "${work_dirs[@]}"; do rm -rf "$d"; done
}
trap cleanup EXIT
trap 'exit 130' INT TERM

# A launcher bundle like the demo one, carrying the payload; a bundle of
# the bare application holding only the offscreen plug-in; the payload
# extracted once, as the source of the copying floor.
assemble() {
  local w=$1
  cp -a "$demo" "$w/Calderix Drive.app"
  cp "$package" "$w/Calderix Drive.app/Contents/Resources/package/calderix.vpk"
  cp "$payload/INFO" "$w/Calderix Drive.app/Contents/Resources/INFO"
  mkdir -p "$w/Bare.app/Contents/MacOS" "$w/Bare.app/Contents/Frameworks/plugins/platforms"
  cp "$bare_exe" "$w/Bare.app/Contents/MacOS/bench_bare_app"
  cp "$demo/Contents/Frameworks/plugins/platforms/libqoffscreen.so" "$w/Bare.app/Contents/Frameworks/plugins/platforms/"
  mkdir -p "$w/extracted/Calderix.app" "$w/tmp"
  bsdtar -xf "$package" -C "$w/extracted/Calderix.app"
}

# The environment of every measured command: nothing from the caller's
# session, a fresh home, a private TMPDIR for the single-instance lock.
run_env() {
  local w=$1
  echo env -i PATH=/usr/bin:/bin LANG=C.UTF-8 HOME="$w/home" TMPDIR="$w/tmp" \
    QT_QPA_PLATFORM=offscreen CALDERIX_DEMO_UI_EXIT_AFTER_MS=1
}

# Runs one command, appending "<seconds> <peak RSS KiB>" to its sample file.
measure() {
  local name=$1; shift
  local t0 t1 rss
  t0=$EPOCHREALTIME
  /usr/bin/time -v -o "$results/$name.time" "$@" > /dev/null 2> "$results/$name.stderr" || {
    echo "run.sh: $name failed:" >&2
    cat "$results/$name.stderr" "$results/$name.time" >&2
    exit 1
  }
  t1=$EPOCHREALTIME
  rss=$(sed -n 's/.*Maximum resident set size (kbytes): //p' "$results/$name.time")
  echo "$t0 $t1 $rss" | awk '{printf "%.6f %d\n", $2 - $1, $3}' >> "$results/$name.samples"
}

# The installed copy must be complete, or the figure measures a failure.
check_installed() {
  local app=$1 name=$2 n
  if [ ! -x "$app/Contents/MacOS/calderix-drive-ui" ] || [ ! -f "$app/Contents/Resources/INFO" ]; then
    echo "run.sh: $name left no complete bundle in $app" >&2
    exit 1
  fi
  n=$(find "$app" -mindepth 1 | wc -l)
  if [ "$n" -ne "$expected_entries" ]; then
    echo "run.sh: $name left $n entries in $app, expected $expected_entries" >&2
    exit 1
  fi
}

fresh_home() {
  local w=$1
  settle "$w/home"
  rm -rf "$w/home"
  mkdir -p "$w/home/.Calderix/Calderix.app"
  rmdir "$w/home/.Calderix/Calderix.app" "$w/home/.Calderix"
  # Writing back the previous round's files is not this round's cost.
  sync
}

commands_md=$results/commands.md
: > "$commands_md"

bench_location() {
  local where=$1 base=$2 w e app launcher bare r i k name order ui_inode
  w=$(mktemp -d "$base/calderix-bench.XXXXXX")
  work_dirs+=("$w")
  homes+=("$w/home")
  assemble "$w"
  e=$(run_env "$w")
  app=$w/home/.Calderix/Calderix.app
  launcher="$w/Calderix Drive.app/Contents/MacOS/launcher"
  bare=$w/Bare.app/Contents/MacOS/bench_bare_app

  {
    echo "On $where (\`$w\`, $(findmnt -no FSTYPE -T "$w" | head -1)):"
    echo
    echo '```sh'
    echo "# every command runs as: $e COMMAND"
    echo "upgrade-launcher-$where: '$launcher'"
    echo "upgrade-bsdtar-$where:   bsdtar -xf $package -C $app   # after an untimed mkdir -p of $app"
    echo "upgrade-cp-$where:       cp -a $w/extracted/Calderix.app $w/home/.Calderix/   # after an untimed mkdir -p of $w/home/.Calderix"
    echo "start-launcher-$where:   '$launcher'   # the copy installed and current"
    echo "start-bare-$where:       $bare"
    echo '```'
    echo
  } >> "$commands_md"

  echo "run.sh: upgrade on $where, $rounds rounds"
  for r in $(seq 0 $((rounds - 1))); do
    # Each round starts with another command, so none always runs first.
    for k in 0 1 2; do
      i=$(((r + k) % 3))
      fresh_home "$w"
      case $i in
        0) name=upgrade-launcher-$where
           measure "$name" $e "$launcher" ;;
        1) name=upgrade-bsdtar-$where
           mkdir -p "$app"
           measure "$name" $e bsdtar -xf "$package" -C "$app" ;;
        2) name=upgrade-cp-$where
           mkdir -p "$w/home/.Calderix"
           measure "$name" $e cp -a "$w/extracted/Calderix.app" "$w/home/.Calderix/" ;;
      esac
      if [ "$r" -eq 0 ]; then check_installed "$app" "$name"; fi
    done
  done

  echo "run.sh: start with nothing to upgrade on $where, $start_rounds rounds"
  fresh_home "$w"
  $e "$launcher" > /dev/null 2> "$results/install-$where.stderr"
  check_installed "$app" "the installing launcher"
  ui_inode=$(stat -c %i "$app/Contents/MacOS/calderix-drive-ui")
  for r in $(seq 0 $((start_rounds - 1))); do
    order="launcher bare"
    if [ $((r % 2)) -eq 1 ]; then order="bare launcher"; fi
    for k in $order; do
      settle "$w/home"
      case $k in
        launcher) measure "start-launcher-$where" $e "$launcher" ;;
        bare) measure "start-bare-$where" $e "$bare" ;;
      esac
    done
  done
  if [ "$(stat -c %i "$app/Contents/MacOS/calderix-drive-ui")" != "$ui_inode" ]; then
    echo "run.sh: the launcher upgraded again although the copy was current" >&2
    exit 1
  fi
  settle "$w/home"
  rm -rf "$w"
}

started=$(date -u '+%Y-%m-%d %H:%M UTC')
load_before=$(cut -d' ' -f1-3 /proc/loadavg)
bench_location shm /dev/shm
bench_location disk /var/tmp
load_after=$(cut -d' ' -f1-3 /proc/loadavg)

median() {
  local col=$1 file=$2
  cut -d' ' -f"$col" "$file" | sort -g | awk '{v[NR] = $1} END {
    if (NR % 2) print v[(NR + 1) / 2]; else print (v[NR / 2] + v[NR / 2 + 1]) / 2 }'
}
ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f", a / b }'; }
ms() { awk -v s="$1" 'BEGIN { printf "%.1f", s * 1000 }'; }
mib() { awk -v k="$1" 'BEGIN { printf "%.1f", k / 1024 }'; }

table=$results/table.md
{
  echo "| Where | Command | Median time (ms) | Median peak RSS (MiB) | Time ratio |"
  echo "|---|---|---:|---:|---|"
  for where in shm disk; do
    tl=$(median 1 "$results/upgrade-launcher-$where.samples")
    tb=$(median 1 "$results/upgrade-bsdtar-$where.samples")
    tc=$(median 1 "$results/upgrade-cp-$where.samples")
    echo "| $where | upgrade: launcher | $(ms "$tl") | $(mib "$(median 2 "$results/upgrade-launcher-$where.samples")") | launcher/bsdtar $(ratio "$tl" "$tb"), launcher/cp $(ratio "$tl" "$tc") |"
    echo "| $where | upgrade: bsdtar -xf | $(ms "$tb") | $(mib "$(median 2 "$results/upgrade-bsdtar-$where.samples")") | bsdtar/cp $(ratio "$tb" "$tc") |"
    echo "| $where | upgrade: cp -a | $(ms "$tc") | $(mib "$(median 2 "$results/upgrade-cp-$where.samples")") | 1 |"
    sl=$(median 1 "$results/start-launcher-$where.samples")
    sb=$(median 1 "$results/start-bare-$where.samples")
    echo "| $where | start: launcher | $(ms "$sl") | $(mib "$(median 2 "$results/start-launcher-$where.samples")") | launcher/bare $(ratio "$sl" "$sb") |"
    echo "| $where | start: bare QApplication | $(ms "$sb") | $(mib "$(median 2 "$results/start-bare-$where.samples")") | 1 |"
  done
} > "$table"
cat "$table"

micro_md=$results/micro.txt
if [ $micro -eq 1 ] && [ -x "$build/bench/calderix_bench" ]; then
  echo "run.sh: microbenchmarks"
  "$build/bench/calderix_bench" --benchmark_repetitions=5 --benchmark_report_aggregates_only=true \
    2> /dev/null | grep -E '^(BM_|Benchmark|-)' | grep -v '_mean\|_stddev\|_cv' > "$micro_md" || true
fi

payload_bytes=$(awk '$1 == "f" {s += $3} END {print s + 0}' "$payload/manifest.txt")
package_bytes=$(stat -c %s "$package")
build_type=$(sed -n 's/^CMAKE_BUILD_TYPE:STRING=//p' "$build/CMakeCache.txt")

doc=$repo/docs/PERFORMANCE.md
{
  cat <<DOC
# Performance

How long the launcher takes, and how much memory, set against the floors it
cannot beat. The figures below are **$label**.

## Method

The payload is made by \`bench/make-payload.sh\` from files already on a
Debian 12 machine, none of them ours: the Qt 5 libraries (laid out as
frameworks, with \`Versions/Current\` links), the Qt plug-ins, the ICU data
library, the Qt translations and two icon themes, plus the demo UI with its
\`Info.plist\` and \`INFO\`. The lists are sorted and every entry gets a fixed
mode and time, so one machine state always gives the same bundle; the
Debian versions of the sources are in \`sources.txt\` beside it. vpkpack packs
it as tar.zst, zip and tar.gz.

\`bench/run.sh\` then measures, on /dev/shm and on the disk (/var/tmp):

- **upgrade**: the launcher from an assembled copy of the demo bundle that
  carries the payload's package and \`INFO\`, with a fresh, empty home, so it
  extracts the package and starts the installed UI; against \`bsdtar -xf\` of
  the same package into the same kind of folder (the extraction floor), and
  \`cp -a\` of the already extracted tree (the floor for writing the files).
  The launcher returns once the installed UI has been started (detached), so
  its time runs from the package to the started UI. The UI quits 1 ms after
  it starts (\`CALDERIX_DEMO_UI_EXIT_AFTER_MS=1\`) and the script waits for it
  before the next command.
- **start with nothing to upgrade**: the launcher with the copy installed and
  current, which still starts the UI, against a bare \`QApplication\` that is
  constructed and quits from its event loop (\`bench/bare_app.cpp\`), run from
  a bundle of the same shape that holds only the offscreen plug-in.

Every command runs offscreen in an empty environment (\`env -i\`) with its own
\`HOME\` and \`TMPDIR\`, under \`/usr/bin/time -v\` for the peak RSS; the wall
time is taken around it. The commands alternate within each round and each
round starts with another one, so a change in the machine's load touches
all of them; the home is rebuilt and \`sync\` run before each command, outside
the timing. The package is read from the page cache (it is read once while
the bundles are assembled). The tables show medians over $rounds upgrade
rounds and $start_rounds start rounds; ratios divide medians. Raw samples
stay in \`BUILD_DIR/bench-results\`.

The microbenchmarks (\`calderix_bench\`, Google Benchmark) time the library
calls the launcher makes most: ustring append, find and NFC of a path,
Config::read of the level file, Logger::LogMsg for a message its threshold
filters out and one it writes, TmpNameGen::getTmpName and FSRemove of a tree
of 5,000 files. Debian's libbenchmark is a debug build, which it reports; it
costs the loop, not the code measured.

To repeat:

\`\`\`sh
cmake -S . -B build-bench -G Ninja -DCMAKE_BUILD_TYPE=Release -DCALDERIX_BUILD_TESTS=OFF
cmake --build build-bench
bench/make-payload.sh build-bench
bench/run.sh --label "taken on a quiet machine" build-bench
\`\`\`

## Figures: $label

Taken $started with a $build_type build, package format $format
($((package_bytes / 1000000)) MB packed, $((payload_bytes / 1000000)) MB in
$expected_entries entries unpacked). Load average before: $load_before;
after: $load_after.

DOC
  cat "$table"
  echo
  if [ -s "$micro_md" ]; then
    echo "Microbenchmarks (medians of 5 repetitions):"
    echo
    echo '```'
    cat "$micro_md"
    echo '```'
    echo
  fi
  echo "### Commands"
  echo
  cat "$commands_md"
  echo "### Machine"
  echo
  echo '```'
  lscpu | grep -E '^(Architecture|CPU\(s\)|Model name|Thread|Core|Socket|CPU max MHz|L2|L3|Hypervisor)' || true
  free -m
  echo
  uname -srm
  grep PRETTY_NAME /etc/os-release
  echo "/dev/shm: $(findmnt -no FSTYPE -T /dev/shm | head -1); /var/tmp: $(findmnt -no SOURCE,FSTYPE -T /var/tmp | head -1)"
  echo '```'
} > "$doc"
echo "run.sh: wrote $doc"
