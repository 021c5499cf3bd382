#!/usr/bin/env bash
# Configures and builds. Usage: scripts/build.sh [5|6]   (Qt major version, default 6)
set -euo pipefail
cd "$(dirname "$0")/.."
major="${1:-6}"
bash scripts/install-deps.sh "$major"
dir="build/qt$major"
launcher=(); command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
cmake -S . -B "$dir" -DORRERY_QT_MAJOR="$major" -DCMAKE_BUILD_TYPE=RelWithDebInfo "${launcher[@]}" >/dev/null
cmake --build "$dir" -j "${ORRERY_JOBS:-2}"
