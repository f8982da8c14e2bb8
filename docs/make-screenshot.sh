#!/usr/bin/env bash
# Takes docs/images/progress-dialog.png: the real launcher, under Xvfb,
# upgrading to a package large enough for its dialog to stay up a moment.
#   docs/make-screenshot.sh [BUILD_DIR]    (default: build)
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
bundle_src="$PWD/$build/demo/Calderix Drive.app"
[ -x "$bundle_src/Contents/MacOS/launcher" ] || { echo "build first: ./run.sh or cmake --build $build" >&2; exit 1; }
if ! command -v import >/dev/null || ! command -v xvfb-run >/dev/null || ! command -v twm >/dev/null; then
  apt-get install -y -qq --no-install-recommends imagemagick xvfb xauth twm >/dev/null
fi

work=$(mktemp -d)
trap 'pkill -f "$work/" 2>/dev/null || true; rm -rf "$work"' EXIT
cp -a "$bundle_src" "$work/Calderix Drive.app"
bundle="$work/Calderix Drive.app"
client="$work/client/Calderix.app"
cp -a "$PWD/$build/demo/client" "$work/client"
# Bulk that takes a couple of seconds to write: 3,000 files of 64 KiB.
for d in $(seq 1 30); do
  mkdir -p "$client/Contents/Resources/data/$d"
  for f in $(seq 1 100); do head -c 65536 /dev/urandom > "$client/Contents/Resources/data/$d/$f.bin"; done
done
"$PWD/$build/tools/vpkpack/vpkpack" --format zip --info-out "$bundle/Contents/Resources/INFO" \
  "$client" "$bundle/Contents/Resources/package/calderix.vpk" >/dev/null
mkdir -p "$work/home"

# A burst of frames while the launcher works (twm draws the title bar); the
# frame kept is the one in the middle of those that show the dialog.
xvfb-run -a -s "-screen 0 560x240x24" bash -c '
  twm >/dev/null 2>&1 &
  sleep 0.5
  HOME="$1/home" CALDERIX_DEMO_UI_EXIT_AFTER_MS=1000 "$2/Contents/MacOS/launcher" >/dev/null 2>&1 &
  launcher=$!
  n=0
  while kill -0 "$launcher" 2>/dev/null && [ "$n" -lt 60 ]; do
    import -window root "$1/frame-$(printf %02d "$n").png"
    n=$((n + 1))
  done
  wait "$launcher"
' _ "$work" "$bundle"
frames=()
for f in "$work"/frame-*.png; do
  # Frames with the dialog hold its light grey background, the others are black.
  if [ "$(convert "$f" -format "%[fx:mean>0.08]" info:)" = 1 ]; then frames+=("$f"); fi
done
[ ${#frames[@]} -gt 0 ] || { echo "no frame showed the dialog" >&2; exit 1; }
out="$PWD/docs/images/progress-dialog.png"
convert "${frames[$(( ${#frames[@]} / 2 ))]}" -trim +repage -bordercolor white -border 1 "$out"
echo "wrote $out (frame $(( ${#frames[@]} / 2 + 1 )) of ${#frames[@]} with the dialog)"
