#!/usr/bin/env bash
# Installs a build into a scratch prefix, then builds and runs the example host
# against the installed CMake package, as an outside project would.
# Usage: scripts/check-package.sh [5|6]   (the Qt major version of build/qt<N>)
set -euo pipefail
cd "$(dirname "$0")/.."
major="${1:-6}"
build="build/qt$major"
prefix="$PWD/$build/package-prefix"
rm -rf "$prefix" "$build/hello-host"
cmake --install "$build" --prefix "$prefix" >/dev/null
cmake -S examples/hello-host -B "$build/hello-host" -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$build/hello-host" -j "${ORRERY_JOBS:-2}" >/dev/null
QT_QPA_PLATFORM=offscreen "$build/hello-host/hello-host"

# A host built with the other Qt must be told so at configure time.
other=$(( major == 6 ? 5 : 6 ))
if out=$(cmake -S examples/hello-host -B "$build/hello-host-qt$other" -DCMAKE_PREFIX_PATH="$prefix" \
               -DQT_VERSION_MAJOR="$other" 2>&1); then
  echo "package: a Qt $other host was not refused" >&2; exit 1
fi
# CMake wraps long messages, at a point that depends on the prefix path.
tr -s "[:space:]" " " <<<"$out" | grep -q "was built with Qt $major" || { echo "$out" >&2; exit 1; }
echo "package: installed, found, linked and run; a Qt $other host is refused"

# The library's layers take the host's operations from the process, never from a link.
for layer in platform core framework prompts; do
  if readelf -d "$build/liborrery_$layer.so" | grep -q 'liborrery_host'; then
    echo "package: liborrery_$layer links the stand-in host" >&2; exit 1
  fi
done
echo "package: the library's layers link no host"
