#!/usr/bin/env bash
# Guards the public ABI of the library's shared objects against the reference in
# abi/ (abigail's abidw output, compressed). An incompatible change fails unless
# the library's SOVERSION was raised in the same change; a compatible change
# (an added function) passes. After a deliberate change, write the
# new reference with `scripts/check-abi.sh update` and commit it.
# Usage: scripts/check-abi.sh [check|update|self-test]   (on build/qt6)
set -euo pipefail
cd "$(dirname "$0")/.."
mode="${1:-check}"
build=build/qt6
layers=(platform core framework prompts)
bash scripts/install-deps.sh abi

dump() { abidw --no-show-locs --type-id-style hash --headers-dir "$2" "$1"; }

# abi_check <reference.xz> <library> <headers dir>: 0 when compatible, 1 when not.
# Both sides are dumped the same way (public headers only); whatever removes or
# changes a public function, variable or type is incompatible, additions are not.
abi_check() {
  local ref=$1 lib=$2 headers=$3 tmp rc=0 old new
  tmp=$(mktemp)
  xz -dc "$ref" >"$tmp"
  dump "$lib" "$headers" >"$tmp.new"
  abidiff --no-show-locs --no-added-syms "$tmp" "$tmp.new" >"$tmp.report" 2>&1 || rc=$?
  rm -f "$tmp.new"
  old=$(sed -n "s/.*soname='\([^']*\)'.*/\1/p" "$tmp" | head -n1)
  new=$(readelf -d "$lib" | sed -n 's/.*(SONAME).*\[\(.*\)\]/\1/p')
  rm -f "$tmp"
  if (( rc & 3 )); then
    cat "$tmp.report" >&2; rm -f "$tmp.report"
    echo "abi: abidiff could not compare $lib" >&2; return 2
  fi
  if (( rc & 12 )); then
    if [ "$old" != "$new" ]; then
      echo "abi: $new changes the ABI of $old incompatibly, with a new SOVERSION: accepted; update the reference"
      rm -f "$tmp.report"; return 0
    fi
    cat "$tmp.report" >&2; rm -f "$tmp.report"
    echo "abi: $new changes its ABI incompatibly without raising the SOVERSION" >&2; return 1
  fi
  rm -f "$tmp.report"; return 0
}

case "$mode" in
  update)
    mkdir -p abi
    for layer in "${layers[@]}"; do
      lib="$build/liborrery-$layer-qt6.so"
      dump "$lib" "$layer" | xz -9 -T2 >"abi/$(basename "$lib").abi.xz"
    done
    echo "abi: references written to abi/" ;;
  check)
    bad=0
    for layer in "${layers[@]}"; do
      lib="$build/liborrery-$layer-qt6.so"
      abi_check "abi/$(basename "$lib").abi.xz" "$lib" "$layer" || bad=1
    done
    [ "$bad" -eq 0 ] && echo "abi: ${layers[*]} keep the reference ABI"
    exit "$bad" ;;
  self-test)
    # Builds a small library plainly and with each incompatible change, and
    # expects the check to refuse the change unless the SOVERSION was raised.
    dir=$(mktemp -d)
    trap 'rm -rf "$dir"' EXIT
    fixture=scripts/abi-fixture
    build_fixture() { # <out> <change> <soversion>
      g++ -g -shared -fPIC -DFIXTURE_CHANGE="$2" -Wl,-soname,libwidget.so."$3" \
          "$fixture/Widget.cpp" -o "$dir/$1"
    }
    build_fixture plain.so 0 1
    dump "$dir/plain.so" "$fixture" | xz >"$dir/plain.abi.xz"
    abi_check "$dir/plain.abi.xz" "$dir/plain.so" "$fixture" >/dev/null || { echo "abi: an unchanged library was refused" >&2; exit 1; }
    for change in "1:a removed virtual function" "2:a changed member"; do
      build_fixture changed.so "${change%%:*}" 1
      if abi_check "$dir/plain.abi.xz" "$dir/changed.so" "$fixture" >/dev/null 2>&1; then
        echo "abi: ${change#*:} was not refused" >&2; exit 1
      fi
      build_fixture raised.so "${change%%:*}" 2
      abi_check "$dir/plain.abi.xz" "$dir/raised.so" "$fixture" >/dev/null || { echo "abi: ${change#*:} with a raised SOVERSION was refused" >&2; exit 1; }
    done
    echo "abi: the check refuses a removed virtual function and a changed member, unless the SOVERSION is raised" ;;
  *) echo "usage: $0 [check|update|self-test]" >&2; exit 2 ;;
esac
