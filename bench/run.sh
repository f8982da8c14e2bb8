#!/usr/bin/env bash
# Side-by-side timings of the launcher against the floors it cannot beat,
# the commands alternating round by round so that a change in the machine's
# load hits all of them alike. Writes docs/PERFORMANCE.md.
#
#   bench/run.sh [--rounds N] [--start-rounds N] [--label TEXT] [--no-micro]
#                BUILD_DIR
#
# BUILD_DIR is a built tree (Release or RelWithDebInfo) with the demo bundle,
# bench_bare_app and calderix_bench. The payload comes from
# bench/make-payload.sh, made into BUILD_DIR/bench-payload when missing or
# older than vpkpack. The upgrade runs with vpkpack's default package
# (tar.zst) and with the same payload as a deflate zip, each against bsdtar
# of the same package.
# Raw samples go to BUILD_DIR/bench-results. Everything else it makes (work
# folders in /dev/shm and /var/tmp, the users' homes, lock folders) is
# removed on exit, and every demo UI started from those homes is ended.
set -euo pipefail
export LC_ALL=C

here=$(cd "$(dirname "$0")" && pwd)
repo=$(cd "$here/.." && pwd)
rounds=10
start_rounds=20
label="preliminary (taken while the machine was busy)"
micro=1
while [ $# -gt 0 ]; do
  case $1 in
    --rounds) rounds=$2; shift 2 ;;
    --start-rounds) start_rounds=$2; shift 2 ;;
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
formats=(tar.zst zip)
for f in "${formats[@]}"; do
  if [ ! -f "$payload/calderix.$f.vpk" ] || [ "$build/tools/vpkpack/vpkpack" -nt "$payload/calderix.$f.vpk" ]; then
    "$here/make-payload.sh" "$build" "$payload"
    break
  fi
done
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
  local w=$1 f
  for f in "${formats[@]}"; do
    mkdir -p "$w/$f"
    cp -a "$demo" "$w/$f/Calderix Drive.app"
    cp "$payload/calderix.$f.vpk" "$w/$f/Calderix Drive.app/Contents/Resources/package/calderix.vpk"
    cp "$payload/INFO" "$w/$f/Calderix Drive.app/Contents/Resources/INFO"
  done
  mkdir -p "$w/Bare.app/Contents/MacOS" "$w/Bare.app/Contents/Frameworks/plugins/platforms"
  cp "$bare_exe" "$w/Bare.app/Contents/MacOS/bench_bare_app"
  cp "$demo/Contents/Frameworks/plugins/platforms/libqoffscreen.so" "$w/Bare.app/Contents/Frameworks/plugins/platforms/"
  mkdir -p "$w/extracted/Calderix.app" "$w/tmp"
  bsdtar -xf "$payload/calderix.tar.zst.vpk" -C "$w/extracted/Calderix.app"
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
  local where=$1 base=$2 w e app launcher bare r i k name order ui_inode f
  local -a cmds
  w=$(mktemp -d "$base/calderix-bench.XXXXXX")
  work_dirs+=("$w")
  homes+=("$w/home")
  assemble "$w"
  e=$(run_env "$w")
  app=$w/home/.Calderix/Calderix.app
  bare=$w/Bare.app/Contents/MacOS/bench_bare_app
  launcher_of() { echo "$w/$1/Calderix Drive.app/Contents/MacOS/launcher"; }

  {
    echo "On $where (\`$w\`, $(findmnt -no FSTYPE -T "$w" | head -1)):"
    echo
    echo '```sh'
    echo "# every command runs as: $e COMMAND"
    for f in "${formats[@]}"; do
      echo "upgrade-launcher-$f-$where: '$(launcher_of "$f")'   # its bundle carries calderix.$f.vpk"
      echo "upgrade-bsdtar-$f-$where:   bsdtar -xf $payload/calderix.$f.vpk -C $app   # after an untimed mkdir -p of $app"
    done
    echo "upgrade-cp-$where:       cp -a $w/extracted/Calderix.app $w/home/.Calderix/   # after an untimed mkdir -p of $w/home/.Calderix"
    echo "start-launcher-$where:   '$(launcher_of tar.zst)'   # the copy installed and current"
    echo "start-bare-$where:       $bare"
    echo "start-window-$where:     $bare --window"
    echo '```'
    echo
  } >> "$commands_md"

  cmds=()
  for f in "${formats[@]}"; do cmds+=("launcher-$f" "bsdtar-$f"); done
  cmds+=(cp)
  echo "run.sh: upgrade on $where, $rounds rounds of ${#cmds[@]} commands"
  for r in $(seq 0 $((rounds - 1))); do
    # Each round starts with another command, so none always runs first.
    for k in $(seq 0 $((${#cmds[@]} - 1))); do
      i=$(((r + k) % ${#cmds[@]}))
      name=upgrade-${cmds[$i]}-$where
      fresh_home "$w"
      case ${cmds[$i]} in
        launcher-*) measure "$name" $e "$(launcher_of "${cmds[$i]#launcher-}")" ;;
        bsdtar-*) mkdir -p "$app"
           measure "$name" $e bsdtar -xf "$payload/calderix.${cmds[$i]#bsdtar-}.vpk" -C "$app" ;;
        cp) mkdir -p "$w/home/.Calderix"
           measure "$name" $e cp -a "$w/extracted/Calderix.app" "$w/home/.Calderix/" ;;
      esac
      if [ "$r" -eq 0 ]; then check_installed "$app" "$name"; fi
    done
  done

  echo "run.sh: start with nothing to upgrade on $where, $start_rounds rounds"
  fresh_home "$w"
  $e "$(launcher_of tar.zst)" > /dev/null 2> "$results/install-$where.stderr"
  check_installed "$app" "the installing launcher"
  ui_inode=$(stat -c %i "$app/Contents/MacOS/calderix-drive-ui")
  for r in $(seq 0 $((start_rounds - 1))); do
    case $((r % 3)) in
      0) order="launcher bare window" ;;
      1) order="bare window launcher" ;;
      *) order="window launcher bare" ;;
    esac
    for k in $order; do
      settle "$w/home"
      case $k in
        launcher) measure "start-launcher-$where" $e "$(launcher_of tar.zst)" ;;
        bare) measure "start-bare-$where" $e "$bare" ;;
        window) measure "start-window-$where" $e "$bare" --window ;;
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
targets=$results/targets.md
{
  echo "| Where | Command | Median time (ms) | Median peak RSS (MiB) |"
  echo "|---|---|---:|---:|"
  for where in shm disk; do
    for name in launcher-tar.zst bsdtar-tar.zst launcher-zip bsdtar-zip cp; do
      echo "| $where | upgrade: $name | $(ms "$(median 1 "$results/upgrade-$name-$where.samples")") | $(mib "$(median 2 "$results/upgrade-$name-$where.samples")") |"
    done
    for name in launcher bare window; do
      echo "| $where | start: $name | $(ms "$(median 1 "$results/start-$name-$where.samples")") | $(mib "$(median 2 "$results/start-$name-$where.samples")") |"
    done
  done
} > "$table"
# One row per target: the measured ratio (or difference) and the limit.
t() { median 1 "$results/$1-$2.samples"; }
m() { median 2 "$results/$1-$2.samples"; }
verdict() { awk -v v="$1" -v l="$2" 'BEGIN { print (v <= l ? "met" : "missed") }'; }
{
  echo "| Target | shm | disk | Limit |"
  echo "|---|---:|---:|---:|"
  row() {
    local text=$1 limit=$2 a b
    a=$3
    b=$4
    echo "| $text | $a ($(verdict "$a" "$limit")) | $b ($(verdict "$b" "$limit")) | $limit |"
  }
  row "upgrade, zip: launcher / bsdtar" 1.10 \
    "$(ratio "$(t upgrade-launcher-zip shm)" "$(t upgrade-bsdtar-zip shm)")" \
    "$(ratio "$(t upgrade-launcher-zip disk)" "$(t upgrade-bsdtar-zip disk)")"
  row "upgrade, tar.zst: launcher / bsdtar" 1.70 \
    "$(ratio "$(t upgrade-launcher-tar.zst shm)" "$(t upgrade-bsdtar-tar.zst shm)")" \
    "$(ratio "$(t upgrade-launcher-tar.zst disk)" "$(t upgrade-bsdtar-tar.zst disk)")"
  row "upgrade: launcher with tar.zst / bsdtar of the deflate zip" 0.65 \
    "$(ratio "$(t upgrade-launcher-tar.zst shm)" "$(t upgrade-bsdtar-zip shm)")" \
    "$(ratio "$(t upgrade-launcher-tar.zst disk)" "$(t upgrade-bsdtar-zip disk)")"
  row "start: launcher / bare QApplication" 1.30 \
    "$(ratio "$(t start-launcher shm)" "$(t start-bare shm)")" \
    "$(ratio "$(t start-launcher disk)" "$(t start-bare disk)")"
  for f in "${formats[@]}"; do
    row "peak RSS of the $f upgrade over the bare QApplication with a window (MiB)" 16.0 \
      "$(awk -v a="$(m upgrade-launcher-$f shm)" -v b="$(m start-window shm)" 'BEGIN { printf "%.1f", (a - b) / 1024 }')" \
      "$(awk -v a="$(m upgrade-launcher-$f disk)" -v b="$(m start-window disk)" 'BEGIN { printf "%.1f", (a - b) / 1024 }')"
  done
} > "$targets"
cat "$targets" "$table"

micro_md=$results/micro.txt
if [ $micro -eq 1 ] && [ -x "$build/bench/calderix_bench" ]; then
  echo "run.sh: microbenchmarks"
  "$build/bench/calderix_bench" --benchmark_repetitions=5 --benchmark_report_aggregates_only=true \
    2> /dev/null | grep -E '^(BM_|Benchmark|-)' | grep -v '_mean\|_stddev\|_cv' > "$micro_md" || true
fi

payload_bytes=$(awk '$1 == "f" {s += $3} END {print s + 0}' "$payload/manifest.txt")
build_type=$(sed -n 's/^CMAKE_BUILD_TYPE:STRING=//p' "$build/CMakeCache.txt")

# The figures replace what stands between the two markers of
# docs/PERFORMANCE.md; the method and the analysis around them are prose.
figures=$results/figures.md
{
  echo "## Figures: $label"
  echo
  echo "Taken $started with a $build_type build. Payload: $((payload_bytes / 1000000)) MB in"
  echo "$expected_entries entries; packed by vpkpack as tar.zst $(($(stat -c %s "$payload/calderix.tar.zst.vpk") / 1000000)) MB,"
  echo "as zip $(($(stat -c %s "$payload/calderix.zip.vpk") / 1000000)) MB. Load average before: $load_before; after: $load_after."
  echo "Medians of $rounds upgrade rounds and $start_rounds start rounds; ratios divide medians."
  echo
  cat "$targets"
  echo
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
} > "$figures"

doc=$repo/docs/PERFORMANCE.md
begin='<!-- bench/run.sh: figures begin -->'
end='<!-- bench/run.sh: figures end -->'
if grep -qF "$begin" "$doc" 2>/dev/null && grep -qF "$end" "$doc"; then
  awk -v begin="$begin" -v end="$end" -v figures="$figures" '
    $0 == begin { print; while ((getline line < figures) > 0) print line; skip = 1; next }
    $0 == end { skip = 0 }
    !skip' "$doc" > "$doc.new"
  mv "$doc.new" "$doc"
else
  { echo "# Performance"; echo; echo "$begin"; cat "$figures"; echo "$end"; } > "$doc"
fi
echo "run.sh: wrote $doc"
