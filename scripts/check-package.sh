#!/usr/bin/env bash
# Checks what a host project gets from a build, as an outside project would:
#  1. `cmake --install` into a scratch prefix; the example hosts are built with CMake and run:
#     hello-host on the stand-in, tiny-host on its own host operations, built with hidden
#     visibility as hosts often are;
#  2. the Debian packages (cpack) are unpacked into a scratch root (dpkg-deb -x, nothing is
#     installed on the machine) and the examples are built against them with CMake and with
#     pkg-config; when the other Qt major version's packages were made too (build/qt<M>),
#     they are unpacked into the same root and the examples are built against each;
#  3. the packages are as Debian expects: libraries in the multiarch folder, stripped, their
#     debug symbols in a -dbgsym package, no empty folder installed;
#  4. a variant or version that is not there is refused with CMake's and pkg-config's
#     ordinary messages, and the library's layers link no host.
# Usage: scripts/check-package.sh [5|6]   (the Qt major version of build/qt<N>)
set -euo pipefail
cd "$(dirname "$0")/.."
major="${1:-6}"
other=$(( major == 6 ? 5 : 6 ))
build="build/qt$major"
scratch="$PWD/$build/package-check"
rm -rf "$scratch"
mkdir -p "$scratch"
jobs="${ORRERY_JOBS:-2}"
# libdir <qt major>: where that build installs its libraries (lib/<multiarch triplet>).
libdir() { sed -n 's/^CMAKE_INSTALL_LIBDIR:[A-Z]*=//p' "build/qt$1/CMakeCache.txt"; }

# run <library dir> <program>: runs offscreen, showing its messages only when it fails.
run() {
  LD_LIBRARY_PATH="$1" QT_QPA_PLATFORM=offscreen "$2" >"$scratch/run.log" 2>&1 || { cat "$scratch/run.log" >&2; exit 1; }
}

# build_example <name> <prefix> <qt major>: both example hosts with CMake, run offscreen.
build_example() {
  local example
  for example in hello-host tiny-host; do
    cmake -S "examples/$example" -B "$scratch/$1/$example" -DCMAKE_PREFIX_PATH="$2" -DORRERY_QT_MAJOR="$3" >/dev/null
    cmake --build "$scratch/$1/$example" -j "$jobs" >/dev/null
    run "$2/$(libdir "$3")" "$scratch/$1/$example/$example"
  done
}

# build_with_pkgconfig <root> <qt major>: both examples without CMake; the tiny host
# links no stand-in and hides its symbols.
build_with_pkgconfig() {
  local flags
  local lib="$1/usr/$(libdir "$2")"
  export PKG_CONFIG_PATH="$lib/pkgconfig"
  flags=$(pkg-config --cflags --libs "orrery-prompts-qt$2" "orrery-host-qt$2")
  # shellcheck disable=SC2086 # the flags are words
  g++ -std=c++17 -fPIC examples/hello-host/main.cpp $flags -o "$scratch/hello-pc-qt$2"
  run "$lib" "$scratch/hello-pc-qt$2"
  flags=$(pkg-config --cflags --libs "orrery-prompts-qt$2")
  # shellcheck disable=SC2086 # the flags are words
  g++ -std=c++17 -fPIC -fvisibility=hidden -fvisibility-inlines-hidden examples/tiny-host/main.cpp \
      examples/tiny-host/TinyHost.cpp $flags -o "$scratch/tiny-pc-qt$2"
  run "$lib" "$scratch/tiny-pc-qt$2"
  unset PKG_CONFIG_PATH
}

# expect_refusal <what> <pattern> <command...>: the command fails with a message matching pattern.
expect_refusal() {
  local what=$1 pattern=$2 out
  shift 2
  if out=$("$@" 2>&1); then echo "package: $what was not refused" >&2; exit 1; fi
  # CMake wraps long messages at a point that depends on the paths.
  tr -s "[:space:]" " " <<<"$out" | grep -q "$pattern" || { echo "$out" >&2; exit 1; }
}

cmake --install "$build" --prefix "$scratch/prefix" >/dev/null
build_example install "$scratch/prefix" "$major"
# What the tiny host's dialogs answered.
LD_LIBRARY_PATH="$scratch/prefix/$(libdir "$major")" QT_QPA_PLATFORM=offscreen "$scratch/install/tiny-host/tiny-host" 2>/dev/null | sed 's/^/  /'
echo "package: installed, found, linked and run: the stand-in's example and the tiny host"

# The plot library alone plots a CSV file: a picture with something drawn on it.
cmake -S examples/plot-csv -B "$scratch/plot-csv" -DCMAKE_PREFIX_PATH="$scratch/prefix" -DORRERY_QT_MAJOR="$major" >/dev/null
cmake --build "$scratch/plot-csv" -j "$jobs" >/dev/null
LD_LIBRARY_PATH="$scratch/prefix/$(libdir "$major")" QT_QPA_PLATFORM=offscreen \
  "$scratch/plot-csv/plot-csv" examples/plot-csv/waves.csv "$scratch/plot-csv/waves.png"
[ "$(head -c 4 "$scratch/plot-csv/waves.png" | tail -c 3)" = PNG ] || { echo "package: plot-csv wrote no PNG" >&2; exit 1; }
echo "package: the plot library alone plots a CSV file"

rm -rf "$build/packages"
(cd "$build" && cpack -G DEB -B "$PWD/packages" >/dev/null)
root="$scratch/root"
for deb in "$build"/packages/*.deb; do dpkg-deb -x "$deb" "$root"; done

# Debian's expectations: multiarch, stripped, symbols apart, nothing empty.
lib="$root/usr/$(libdir "$major")"
[[ "$(libdir "$major")" == lib/*-* ]] || { echo "package: libraries in $(libdir "$major"), not the multiarch folder" >&2; exit 1; }
for so in "$lib"/liborrery-*.so.*.*; do
  if readelf -S "$so" | grep -q '\.debug_info'; then echo "package: $(basename "$so") is not stripped" >&2; exit 1; fi
done
symbols="$scratch/dbgsym"
for ddeb in "$build"/packages/*.ddeb; do dpkg-deb -x "$ddeb" "$symbols"; done
if ! find "$symbols/usr/lib/debug" -name '*.debug' 2>/dev/null | grep -q .; then
  echo "package: no debug symbols package" >&2; exit 1
fi
for tree in "$scratch/prefix" "$root" "$symbols"; do
  if empty=$(find "$tree" -type d -empty | grep .); then echo "package: empty folders installed: $empty" >&2; exit 1; fi
done
echo "package: libraries in $(libdir "$major"), stripped ($(du -sh "$lib" | cut -f1)), debug symbols apart ($(du -sh "$symbols" | cut -f1)), nothing empty"
build_example deb "$root/usr" "$major"
build_with_pkgconfig "$root" "$major"
echo "package: $(cd "$build/packages" && ls ./*.deb | tr '\n' ' ')unpacked; the examples build with CMake and pkg-config"

expect_refusal "a Qt $other variant that is not there" "OrreryPromptsQt$other" \
  cmake -S examples/hello-host -B "$scratch/missing" -DCMAKE_PREFIX_PATH="$root/usr" -DORRERY_QT_MAJOR="$other"
expect_refusal "a pkg-config variant that is not there" "orrery-prompts-qt$other" \
  env PKG_CONFIG_PATH="$lib/pkgconfig" pkg-config --exists --print-errors "orrery-prompts-qt$other"
mkdir -p "$scratch/newer-src"
# With a language, so that CMake knows the multiarch folder and looks there.
printf 'cmake_minimum_required(VERSION 3.25)\nproject(Newer CXX)\nfind_package(OrreryPromptsQt%s 9.0 CONFIG REQUIRED)\n' \
  "$major" >"$scratch/newer-src/CMakeLists.txt"
expect_refusal "a version newer than installed" "version: 0.1" \
  cmake -S "$scratch/newer-src" -B "$scratch/newer" -DCMAKE_PREFIX_PATH="$root/usr"
expect_refusal "a host using the other Qt" "was built with Qt $major" \
  cmake -S examples/hello-host -B "$scratch/mixed" -DCMAKE_PREFIX_PATH="$root/usr" \
        -DORRERY_QT_MAJOR="$major" -DQT_VERSION_MAJOR="$other"
echo "package: a missing variant, a newer version and a host of the other Qt are refused"

if ls "build/qt$other"/packages/*.deb >/dev/null 2>&1; then
  for deb in "build/qt$other"/packages/*.deb; do dpkg-deb -x "$deb" "$root"; done
  build_example both-qt$other "$root/usr" "$other"
  build_example both-qt$major "$root/usr" "$major"
  build_with_pkgconfig "$root" "$other"
  echo "package: the Qt $major and Qt $other packages share one root; the examples build against each"
fi

# The library's layers take the host's operations from the process, never from a link.
for layer in platform core framework prompts; do
  if readelf -d "$build/liborrery-$layer-qt$major.so" | grep -q 'liborrery-host'; then
    echo "package: liborrery-$layer-qt$major links the stand-in host" >&2; exit 1
  fi
done
echo "package: the library's layers link no host"
# The figure stands alone: Qt is all its library needs.
if readelf -d "$build/liborrery-plot-qt$major.so" | grep NEEDED | grep -q 'liborrery-'; then
  echo "package: liborrery-plot-qt$major needs another of our libraries" >&2; exit 1
fi
echo "package: the plot library needs none of ours"
