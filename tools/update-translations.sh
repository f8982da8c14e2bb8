#!/usr/bin/env bash
# Refreshes the translation sources in resources/ from the English texts of
# the string table. Existing translations are kept; new or reworded texts
# come in unfinished, and texts that left the table are dropped.
#
#   tools/update-translations.sh          all catalogues
#   tools/update-translations.sh deu fra  only these codes
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
lupdate="${LUPDATE:-lupdate}"
if ! command -v "$lupdate" >/dev/null 2>&1; then
  echo "update-translations: $lupdate not found (Debian package qttools5-dev-tools)" >&2
  exit 1
fi

# Codes and their locales come from the list the launcher is built from.
declare -A target=()
all=()
while read -r code lang; do
  target[$code]=$lang
  all+=("$code")
done < <(sed -n 's/^CALDERIX_LANGUAGE(\([a-z]*\), *\([A-Za-z_]*\)).*/\1 \2/p' "$root/libcommon/languages.def")
if [ ${#all[@]} -eq 0 ]; then
  echo "update-translations: no languages in libcommon/languages.def" >&2
  exit 1
fi
codes=("$@")
if [ ${#codes[@]} -eq 0 ]; then
  codes=("${all[@]}")
fi

for code in "${codes[@]}"; do
  lang="${target[$code]:-}"
  if [ -z "$lang" ]; then
    echo "update-translations: unknown language code '$code'" >&2
    exit 1
  fi
  "$lupdate" -silent -locations none -no-obsolete \
    -source-language en_US -target-language "$lang" \
    "$root/libcommon/strtable.cpp" -ts "$root/resources/$code.ts"
done
