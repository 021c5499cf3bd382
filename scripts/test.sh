#!/usr/bin/env bash
# Builds and runs every test. Usage: scripts/test.sh [5|6]   (Qt major version, default 6)
set -euo pipefail
cd "$(dirname "$0")/.."
major="${1:-6}"
bash scripts/check-layers.sh
bash scripts/build.sh "$major"
QT_QPA_PLATFORM=offscreen ctest --test-dir "build/qt$major" -j 2 --output-on-failure
bash scripts/check-package.sh "$major"
