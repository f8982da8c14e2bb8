#!/usr/bin/env bash
# Installs what is missing, builds, assembles the demo bundle and runs the
# launcher from a copy of it against a demo home under build/demo (never
# your own home unless you ask for it with --home).
#
#   ./run.sh                 install the demo client, or just start its UI
#   ./run.sh --upgrade       rebuild the package with the next build number
#                            first, so that the launcher upgrades
#   ./run.sh --home DIR      use DIR as the home folder instead of build/demo/home
#   ./run.sh --offscreen     no window even when a display is there
set -euo pipefail
cd "$(dirname "$0")"

home="$PWD/build/demo/home"
upgrade=0
offscreen=0
while [ $# -gt 0 ]; do
  case "$1" in
    --upgrade) upgrade=1 ;;
    --home) home=$(realpath -m "$2"); shift ;;
    --offscreen) offscreen=1 ;;
    -h|--help) sed -n '2,12p' "$0"; exit 0 ;;
    *) echo "run.sh: unknown option '$1' (see --help)" >&2; exit 2 ;;
  esac
  shift
done

./scripts/install-deps.sh

config=(-DCMAKE_BUILD_TYPE=RelWithDebInfo)
if [ "$upgrade" = 1 ]; then
  installed="$home/.Calderix/Calderix.app/Contents/Resources/INFO"
  current=$(sed -n 's/^build_version=//p' "$installed" 2>/dev/null || true)
  if [ -z "$current" ] && [ -f build/CMakeCache.txt ]; then
    current=$(sed -n 's/^CALDERIX_DEMO_UI_BUILD:STRING=//p' build/CMakeCache.txt)
  fi
  next=$(( ${current:-1199} + 1 ))
  echo "== rebuilding the demo package as build $next"
  config+=("-DCALDERIX_DEMO_UI_BUILD=$next")
fi
cmake -S . -B build -G Ninja "${config[@]}" >/dev/null
cmake --build build -j"$(nproc)"

# The demo runs from a copy of the build's bundle, which stays as built, and
# shows what the launcher does: the copy's levels are switched on.
bundle="$PWD/build/demo/run/Calderix Drive.app"
rm -rf "$bundle"
mkdir -p "$(dirname "$bundle")" "$home"
cp -a "build/demo/Calderix Drive.app" "$bundle"
sed -i 's/^#\([a-z_]*_debug=\)7/\16/; s/^launcher_debug=6/launcher_debug=7/' "$bundle/log/launcher.debug"

# A real window when there is a display, offscreen otherwise; a headless demo
# UI quits by itself after a while instead of lingering unseen.
if [ "$offscreen" = 1 ] || { [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; }; then
  export QT_QPA_PLATFORM=offscreen
  export CALDERIX_DEMO_UI_EXIT_AFTER_MS=${CALDERIX_DEMO_UI_EXIT_AFTER_MS:-10000}
fi

echo "== running $bundle/Contents/MacOS/launcher with HOME=$home"
status=0
HOME="$home" "$bundle/Contents/MacOS/launcher" || status=$?
echo "== launcher exited with status $status"

app="$home/.Calderix/Calderix.app"
if [ -d "$app" ]; then
  echo "== installed: $app (build $(sed -n 's/^build_version=//p' "$app/Contents/Resources/INFO" 2>/dev/null))"
  (cd "$app" && find . -mindepth 1 | sort | sed 's/^\.\//   /')
fi
sleep 1
if [ -f "$home/.Calderix/ui.pid" ]; then
  echo "== the client UI runs: $(cat "$home/.Calderix/ui.pid")"
fi
log="$home/.Calderix/log/launcher.log"
if [ -f "$log" ]; then
  echo "== last lines of $log"
  tail -n 20 "$log"
fi
exit "$status"
