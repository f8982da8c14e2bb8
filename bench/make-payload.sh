#!/usr/bin/env bash
# Builds the reference payload for the upgrade benchmarks: a client bundle
# of 150 to 250 MB and 2,000 to 6,000 entries made of files none of us
# wrote (the system's Qt 5 libraries and plug-ins, ICU data, Qt
# translations, icon themes), with the demo UI, its Info.plist and INFO in
# place, packed by vpkpack as tar.zst, zip and tar.gz.
#
#   bench/make-payload.sh BUILD_DIR [OUT_DIR]
#
# BUILD_DIR is a configured and built tree (vpkpack and the demo UI);
# OUT_DIR defaults to BUILD_DIR/bench-payload and is replaced. It receives
#   Calderix.app/              the bundle
#   calderix.tar.zst.vpk, calderix.zip.vpk, calderix.tar.gz.vpk
#   INFO                       the launcher bundle's INFO for these packages
#   sources.txt                the Debian packages the files came from
#   manifest.txt               every entry with its type, mode and size
#   source-files.txt           the file each entry was copied from
#
# The same machine state gives the same bundle and the same packages: the
# file lists are sorted in the C locale, every entry gets a fixed mode and
# time, and vpkpack writes deterministic archives. Packages are named by
# their Debian versions in sources.txt so that two machines can be compared.
set -euo pipefail
export LC_ALL=C
umask 022

if [ $# -lt 1 ] || [ $# -gt 2 ]; then
  echo "usage: $0 BUILD_DIR [OUT_DIR]" >&2
  exit 2
fi
build=$(cd "$1" && pwd)
out=${2:-$build/bench-payload}

vpkpack=$build/tools/vpkpack/vpkpack
ui=$build/tools/demo-ui/calderix-drive-ui
for f in "$vpkpack" "$ui" "$build/tools/demo-ui/Info.plist" "$build/tools/demo-ui/INFO"; do
  if [ ! -f "$f" ]; then
    echo "make-payload: missing $f (build the tree first)" >&2
    exit 1
  fi
done

# The translations come from a Debian package that a build machine does not
# otherwise need.
needed=(qttranslations5-l10n adwaita-icon-theme hicolor-icon-theme libicu72)
"$(dirname "$0")/../scripts/install-deps.sh" "${needed[@]}"

lib=/usr/lib/x86_64-linux-gnu
rm -rf "$out"
mkdir -p "$out"
app=$out/Calderix.app
contents=$app/Contents
sources=$out/source-files.txt

# Copies a file's content (symbolic links followed) with a fixed mode:
# executable when the source is, so shared objects stay loadable.
put() {
  local src=$1 dst=$2 mode=0644
  if [ -x "$src" ]; then mode=0755; fi
  install -D -m "$mode" "$src" "$dst"
  echo "$src" >> "$sources"
}

# Qt libraries as macOS frameworks: QtCore.framework/Versions/5/QtCore with
# the relative links Versions/Current -> 5 and QtCore -> Versions/Current/QtCore.
while IFS= read -r so; do
  name=$(basename "$so")
  module=${name#libQt5}
  module=Qt${module%%.so*}
  fw=$contents/Frameworks/$module.framework
  put "$so" "$fw/Versions/5/$module"
  ln -s 5 "$fw/Versions/Current"
  ln -s "Versions/Current/$module" "$fw/$module"
done < <(find "$lib" -maxdepth 1 -name 'libQt5*.so.5' | sort)

# ICU data, as a versioned library with its link.
put "$lib/libicudata.so.72" "$contents/Frameworks/libicudata.so.72.1"
ln -s libicudata.so.72.1 "$contents/Frameworks/libicudata.so.72"

while IFS= read -r f; do
  put "$f" "$contents/PlugIns/${f#"$lib"/qt5/plugins/}"
done < <(find "$lib/qt5/plugins" \( -type f -o -type l \) | sort)

while IFS= read -r f; do
  put "$f" "$contents/Resources/translations/$(basename "$f")"
done < <(find /usr/share/qt5/translations -name '*.qm' \( -type f -o -type l \) | sort)

# The hicolor theme and part of Adwaita: all of Adwaita would pass the entry
# limit with its many small bitmaps.
while IFS= read -r f; do
  put "$f" "$contents/Resources/icons/${f#/usr/share/icons/}"
done < <(find /usr/share/icons/hicolor /usr/share/icons/Adwaita/index.theme \
           /usr/share/icons/Adwaita/scalable /usr/share/icons/Adwaita/16x16 \
           /usr/share/icons/Adwaita/32x32 /usr/share/icons/Adwaita/cursors \
           \( -type f -o -type l \) | sort)

put "$ui" "$contents/MacOS/calderix-drive-ui"
chmod 0755 "$contents/MacOS/calderix-drive-ui"
put "$build/tools/demo-ui/Info.plist" "$contents/Info.plist"
put "$build/tools/demo-ui/INFO" "$contents/Resources/INFO"

find "$app" -type d -exec chmod 0755 {} +
find "$app" -exec touch -h -d '2024-01-01 00:00:00 UTC' {} +

(cd "$app" && find . -mindepth 1 -printf '%y %m %s %P\n' | sort -k4) > "$out/manifest.txt"
# dpkg -S fails for the files it does not know (the demo UI's); the rest are listed.
{ grep '^/usr/' "$sources" | xargs dpkg -S 2>/dev/null || true; } | grep ': /' | cut -d: -f1 | tr ',' '\n' |
  tr -d ' ' | sort -u | xargs dpkg-query -W -f='${Package} ${Version}\n' > "$out/sources.txt"

bytes=$(find "$app" -type f -printf '%s\n' | awk '{s += $1} END {print s + 0}')
entries=$(find "$app" -mindepth 1 | wc -l)
links=$(find "$app" -type l | wc -l)
mb=$((bytes / 1000000))
echo "make-payload: $app: $mb MB in $entries entries ($links symbolic links)"

status=0
if [ "$bytes" -lt 150000000 ] || [ "$bytes" -gt 250000000 ]; then
  echo "make-payload: size $mb MB is outside 150 to 250 MB" >&2
  status=1
fi
if [ "$entries" -lt 2000 ] || [ "$entries" -gt 6000 ]; then
  echo "make-payload: $entries entries is outside 2,000 to 6,000" >&2
  status=1
fi
if [ $status -ne 0 ]; then
  exit $status
fi

for format in tar.zst zip tar.gz; do
  "$vpkpack" --format "$format" --info-out "$out/INFO" "$app" "$out/calderix.$format.vpk"
done
(cd "$out" && ls -l calderix.*.vpk | awk '{printf "make-payload: %-22s %6.1f MB\n", $9, $5 / 1000000}')
(cd "$out" && sha256sum calderix.*.vpk INFO > SHA256SUMS)
