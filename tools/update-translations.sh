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

declare -A target=(
  [enu]=en_US [cht]=zh_TW [chs]=zh_CN [jpn]=ja_JP [deu]=de_DE
  [krn]=ko_KR [fra]=fr_FR [ita]=it_IT [esn]=es_ES [ptb]=pt_BR
  [rus]=ru_RU [dan]=da_DK [nor]=nb_NO [sve]=sv_SE [nld]=nl_NL
  [plk]=pl_PL [hun]=hu_HU [ptg]=pt_PT [trk]=tr_TR [csy]=cs_CZ
)
codes=("$@")
if [ ${#codes[@]} -eq 0 ]; then
  codes=(enu cht chs jpn deu krn fra ita esn ptb rus dan nor sve nld plk hun ptg trk csy)
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
