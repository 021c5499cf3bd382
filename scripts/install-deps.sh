#!/usr/bin/env bash
# Installs the Debian packages the build needs, only those that are missing.
# Usage: scripts/install-deps.sh [5|6|fuzz|docs|abi|format]...   (Qt major versions wanted, the
# fuzzing toolchain: clang with libFuzzer and the sanitizer runtimes, Doxygen, abigail,
# clang-format; default 6)
set -euo pipefail
majors=("$@"); [ ${#majors[@]} -gt 0 ] || majors=(6)
pkgs=(cmake g++ make ccache pkg-config libboost-dev libssl-dev googletest libgtest-dev libgmock-dev libbenchmark-dev libgl-dev fonts-dejavu-core locales)
for m in "${majors[@]}"; do
  case "$m" in
    6) pkgs+=(qt6-base-dev qt6-base-dev-tools qt6-qpa-plugins qt6-l10n-tools qt6-tools-dev qt6-translations-l10n qt6-svg-dev) ;;
    5) pkgs+=(qtbase5-dev qtbase5-dev-tools qttools5-dev-tools qttools5-dev qttranslations5-l10n libqt5svg5-dev) ;;
    fuzz) pkgs+=(clang-14 libclang-rt-14-dev clang) ;;
    docs) pkgs+=(doxygen) ;;
    abi) pkgs+=(abigail-tools xz-utils) ;;
    format) pkgs+=(clang-format) ;;
    *) echo "unknown Qt major version: $m" >&2; exit 2 ;;
  esac
done
missing=()
for p in "${pkgs[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0
sudo=""; [ "$(id -u)" -eq 0 ] || sudo="sudo"
echo "installing: ${missing[*]}"
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
