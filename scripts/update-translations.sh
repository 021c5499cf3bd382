#!/usr/bin/env bash
# Refreshes translations/*.ts from the sources with lupdate: new texts appear
# unfinished, texts no longer used are dropped. Source locations are left out so
# that the files change only when a text does.
# Usage: scripts/update-translations.sh [lupdate arguments...]
set -euo pipefail
cd "$(dirname "$0")/.."
lupdate=""
for candidate in /usr/lib/qt6/bin/lupdate /usr/lib/qt5/bin/lupdate "$(command -v lupdate || true)"; do
  if [ -n "$candidate" ] && [ -x "$candidate" ]; then lupdate="$candidate"; break; fi
done
if [ -z "$lupdate" ]; then
  echo "lupdate not found; scripts/install-deps.sh installs it" >&2
  exit 1
fi
shopt -s nullglob
ts_files=(translations/*.ts)
[ ${#ts_files[@]} -gt 0 ] || ts_files=(translations/orrery_de.ts)
for ts in "${ts_files[@]}"; do
  lang="$(basename "$ts" .ts)"; lang="${lang#orrery_}"
  "$lupdate" -silent -locations none -no-obsolete -extensions cpp,h,ui -I . \
    -target-language "$lang" "$@" platform host core framework prompts plot demo -ts "$ts"
done
