#!/usr/bin/env bash
# Installs what is missing, builds, assembles the demo bundle and runs the
# launcher from it against a demo home under build/demo (never your own home).
set -euo pipefail
cd "$(dirname "$0")"

./scripts/install-deps.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j"$(nproc)"

bundle="$PWD/build/demo/Calderix Drive.app"
home="$PWD/build/demo/home"
mkdir -p "$home"

# A real window when there is a display, offscreen otherwise.
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  export QT_QPA_PLATFORM=offscreen
fi

echo "== running $bundle/Contents/MacOS/launcher with HOME=$home"
status=0
HOME="$home" "$bundle/Contents/MacOS/launcher" || status=$?
echo "== launcher exited with status $status"
log="$home/.Calderix/log/launcher.log"
if [ -f "$log" ]; then
  echo "== last lines of $log"
  tail -n 20 "$log"
fi
exit "$status"
