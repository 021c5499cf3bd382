#!/usr/bin/env bash
# Fails when a C++ file changed since the tree was last formatted as a whole
# (the last commit in .git-blame-ignore-revs) does not follow .clang-format.
# Usage: scripts/check-format.sh [--fix]
set -euo pipefail
cd "$(dirname "$0")/.."
command -v clang-format >/dev/null || bash scripts/install-deps.sh format
base=$(grep -vE '^\s*(#|$)' .git-blame-ignore-revs | tail -n1)
if git cat-file -e "$base^{commit}" 2>/dev/null; then
  files=$( (git diff --name-only "$base" -- '*.cpp' '*.h'; git ls-files --others --exclude-standard -- '*.cpp' '*.h') | sort -u)
else
  files=$(git ls-files '*.cpp' '*.h') # history not at hand: check everything
fi
existing=()
for f in $files; do [ -f "$f" ] && existing+=("$f"); done
[ ${#existing[@]} -eq 0 ] && { echo "format: no changed C++ files"; exit 0; }
if [ "${1:-}" = --fix ]; then
  clang-format -i "${existing[@]}"
  echo "format: ${#existing[@]} files formatted"
else
  clang-format --dry-run -Werror "${existing[@]}"
  echo "format: ${#existing[@]} changed files follow .clang-format"
fi
