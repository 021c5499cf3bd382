#!/usr/bin/env bash
# Builds and runs the demo host application. Without a display it runs the
# scripted tour offscreen (answers printed, screenshots saved under build/tour).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/build.sh 6
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  QT_QPA_PLATFORM=offscreen exec build/qt6/demo/orrery-demo --tour build/tour "$@"
fi
exec build/qt6/demo/orrery-demo "$@"
