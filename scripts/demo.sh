#!/usr/bin/env bash
# Builds and runs the demo host application. Without a display it runs the
# scripted tour offscreen (answers printed, screenshots saved under build/tour).
# Usage: scripts/demo.sh [--scale N] [orrery-demo arguments...]
#   --scale N   runs at N times the normal size (QT_SCALE_FACTOR), e.g. 2 for a
#               200 % screen; the tour's screenshots then go to build/tour-<N>x
#   --lang de   (an orrery-demo argument) shows the German texts
set -euo pipefail
cd "$(dirname "$0")/.."
tour_dir=build/tour
args=()
while [ $# -gt 0 ]; do
  case "$1" in
    --scale) [ $# -ge 2 ] || { echo "--scale needs a factor" >&2; exit 2; }
             export QT_SCALE_FACTOR="$2"; tour_dir="build/tour-${2}x"; shift 2 ;;
    *) args+=("$1"); shift ;;
  esac
done
bash scripts/build.sh 6
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  QT_QPA_PLATFORM=offscreen exec build/qt6/demo/orrery-demo --tour "$tour_dir" "${args[@]}"
fi
exec build/qt6/demo/orrery-demo "${args[@]}"
