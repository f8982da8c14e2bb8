#!/usr/bin/env bash
# Takes the progress dialog's pictures in docs/images/: the real launcher,
# under Xvfb, upgrading to a package large enough for its dialog to stay up a
# moment; once in English (progress-dialog.png) and once each in German,
# Japanese and Russian (progress-dialog-deu.png, -jpn.png, -rus.png).
#   docs/make-screenshot.sh [BUILD_DIR]    (default: build)
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
bundle_src="$PWD/$build/demo/Calderix Drive.app"
[ -x "$bundle_src/Contents/MacOS/launcher" ] || { echo "build first: ./run.sh or cmake --build $build" >&2; exit 1; }
# The Japanese picture needs a CJK font; only the pictures do, so it is not
# among the packages every build installs.
scripts/install-deps.sh imagemagick xvfb xauth twm fonts-noto-cjk

# The demo UI the launcher starts quits by itself after a second
# (CALDERIX_DEMO_UI_EXIT_AFTER_MS) and with its display at the latest, so
# nothing is left running in the folder removed here.
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
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

# shoot LOCALE OUT: runs the launcher against a fresh home with LOCALE as the
# user's locale (the launcher picks its catalogue from it) and writes the
# picture of the dialog to OUT.
shoot() {
  local locale=$1 out=$2 home="$work/home-${1%%.*}" frames=() f
  mkdir -p "$home"
  rm -f "$work"/frame-*.png
  # A burst of frames while the launcher works (twm draws the title bar); the
  # frame kept is the one in the middle of those that show the dialog.
  xvfb-run -a -s "-screen 0 560x240x24" bash -c '
    twm >/dev/null 2>&1 &
    sleep 0.5
    HOME="$3" LANG="$4" LC_ALL="$4" CALDERIX_DEMO_UI_EXIT_AFTER_MS=1000 \
      "$2/Contents/MacOS/launcher" >/dev/null 2>&1 &
    launcher=$!
    n=0
    while kill -0 "$launcher" 2>/dev/null && [ "$n" -lt 60 ]; do
      import -window root "$1/frame-$(printf %02d "$n").png"
      n=$((n + 1))
    done
    wait "$launcher"
  ' _ "$work" "$bundle" "$home" "$locale"
  for f in "$work"/frame-*.png; do
    # Frames with the dialog hold its light grey background, the others are black.
    if [ "$(convert "$f" -format "%[fx:mean>0.08]" info:)" = 1 ]; then frames+=("$f"); fi
  done
  [ ${#frames[@]} -gt 0 ] || { echo "$locale: no frame showed the dialog" >&2; exit 1; }
  convert "${frames[$(( ${#frames[@]} / 2 ))]}" -trim +repage -bordercolor white -border 1 "$out"
  echo "wrote $out (frame $(( ${#frames[@]} / 2 + 1 )) of ${#frames[@]} with the dialog)"
}

shoot en_US.UTF-8 "$PWD/docs/images/progress-dialog.png"
shoot de_DE.UTF-8 "$PWD/docs/images/progress-dialog-deu.png"
shoot ja_JP.UTF-8 "$PWD/docs/images/progress-dialog-jpn.png"
shoot ru_RU.UTF-8 "$PWD/docs/images/progress-dialog-rus.png"
