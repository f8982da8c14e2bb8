#!/usr/bin/env bash
# Figures for shipping a client, printed as Markdown for docs/PERFORMANCE.md:
# the installed launcher bundle's size, the release archive's size, the
# installed launcher's start against the build tree's, and vpkpack's
# packing time for the reference payload with one thread, with its default
# number of threads, and at a low level.
#
#   bench/release.sh BUILD_DIR [START_ROUNDS] [PACK_ROUNDS]
#
# BUILD_DIR is a built tree (the release preset's build-release, for
# figures that match what ships). Starts alternate between the two
# launchers, with the user's copy installed and current, offscreen, each
# waiting for the demo UI it starts to quit; packings alternate too.
# Medians are quoted; the load average is printed beside them.
set -euo pipefail
export LC_ALL=C

if [ $# -lt 1 ] || [ $# -gt 3 ]; then
  echo "usage: $0 BUILD_DIR [START_ROUNDS] [PACK_ROUNDS]" >&2
  exit 2
fi
build=$(cd "$1" && pwd)
start_rounds=${2:-20}
pack_rounds=${3:-3}
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d /var/tmp/calderix-release.XXXXXX)
trap 'rm -rf "$work"' EXIT

median() { sort -n | awk '{a[NR] = $1} END {print (NR % 2) ? a[(NR + 1) / 2] : (a[NR / 2] + a[NR / 2 + 1]) / 2}'; }

cmake --install "$build" --prefix "$work/prefix" >/dev/null
installed="$work/prefix/Calderix Drive.app"
frameworks=$(find "$installed/Contents/Frameworks" -maxdepth 1 -type f | wc -l)
bundle_bytes=$(du -sb "$installed" | cut -f1)
(cd "$build" && cpack >/dev/null)
archive=$(ls -t "$build"/calderix-drive-*.tar.xz | head -n 1)
archive_bytes=$(stat -c %s "$archive")

echo "## Shipping figures"
echo
echo "Taken $(date -u '+%Y-%m-%d %H:%M') UTC from $(basename "$build"); load average before: $(cut -d' ' -f1-3 /proc/loadavg)."
echo
echo "| What | Size |"
echo "|---|---:|"
mb() { awk -v b="$1" 'BEGIN {printf "%.1f", b / 1000000}'; }
echo "| installed bundle ($frameworks libraries in Contents/Frameworks) | $(mb "$bundle_bytes") MB |"
echo "| release archive $(basename "$archive") | $(mb "$archive_bytes") MB |"

# Start with nothing to upgrade: the UI it starts quits after 1 ms.
declare -A launcher=([build-tree]="$build/demo/Calderix Drive.app/Contents/MacOS/launcher"
                     [installed]="$installed/Contents/MacOS/launcher")
run() {
  env -i PATH=/usr/bin:/bin LANG=C.UTF-8 HOME="$work/home-$1" TMPDIR="$work/tmp" QT_QPA_PLATFORM=offscreen \
    CALDERIX_DEMO_UI_EXIT_AFTER_MS=1 "${launcher[$1]}" >/dev/null 2>&1
}
settle() {
  for _ in $(seq 500); do
    [ -f "$work/home-$1/.Calderix/ui.pid" ] || return 0
    sleep 0.01
  done
}
mkdir -p "$work/tmp"
for k in build-tree installed; do
  mkdir -p "$work/home-$k"
  run "$k"
  sleep 1
  settle "$k"
done
for _ in $(seq "$start_rounds"); do
  for k in build-tree installed; do
    t0=$(date +%s%N)
    run "$k"
    t1=$(date +%s%N)
    echo "$k $(( (t1 - t0) / 1000 ))" >> "$work/starts"
    sleep 0.2
    settle "$k"
  done
done
echo
echo "| Start with nothing to upgrade ($start_rounds rounds) | Median (ms) |"
echo "|---|---:|"
for k in build-tree installed; do
  printf '| %s launcher | %.1f |\n' "$k" "$(awk -v k="$k" '$1 == k {print $2 / 1000}' "$work/starts" | median)"
done

payload=$build/bench-payload
if [ ! -d "$payload/Calderix.app" ]; then
  "$here/make-payload.sh" "$build" "$payload" >/dev/null
fi
vpkpack=$build/tools/vpkpack/vpkpack
configs=("--threads 1" "default" "--level 9")
for _ in $(seq "$pack_rounds"); do
  for i in "${!configs[@]}"; do
    args=()
    [ "${configs[$i]}" = default ] || read -r -a args <<< "${configs[$i]}"
    /usr/bin/time -f "$i %e %U %M" -a -o "$work/packs" \
      "$vpkpack" "${args[@]}" "$payload/Calderix.app" "$work/out.vpk" >/dev/null
    stat -c %s "$work/out.vpk" > "$work/size-$i"
  done
done
echo
echo "| Packing the payload as tar.zst ($pack_rounds rounds) | Median wall (s) | Median CPU (s) | Peak RSS (MiB) | Package (MB) |"
echo "|---|---:|---:|---:|---:|"
for i in "${!configs[@]}"; do
  printf '| vpkpack %s | %.1f | %.1f | %.0f | %s |\n' "${configs[$i]}" \
    "$(awk -v i="$i" '$1 == i {print $2}' "$work/packs" | median)" \
    "$(awk -v i="$i" '$1 == i {print $3}' "$work/packs" | median)" \
    "$(awk -v i="$i" '$1 == i {print $4 / 1024}' "$work/packs" | median)" \
    "$(mb "$(cat "$work/size-$i")")"
done
echo
echo "Load average after: $(cut -d' ' -f1-3 /proc/loadavg); $(nproc) processors."
