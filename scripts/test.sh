#!/usr/bin/env bash
# Builds and runs every test. Usage: scripts/test.sh [5|6|asan]   (default 6)
#   5, 6: the Qt major version; also installs and packages the libraries and builds the
#         example host against them; on Qt 6 also the ABI check and the documentation
#   asan: the Qt 6 tests under AddressSanitizer and UndefinedBehaviorSanitizer, leak checking on;
#         the first report fails the test that caused it
set -euo pipefail
cd "$(dirname "$0")/.."
mode="${1:-6}"
bash scripts/check-layers.sh
bash scripts/check-format.sh
bash scripts/build.sh "$mode"
if [ "$mode" = asan ]; then
  export ASAN_OPTIONS="detect_leaks=1:detect_stack_use_after_return=1"
  export LSAN_OPTIONS="suppressions=$PWD/scripts/lsan-suppressions.txt:print_suppressions=0"
  export UBSAN_OPTIONS="halt_on_error=1:print_stacktrace=1"
  QT_QPA_PLATFORM=offscreen ctest --test-dir build/asan -j 2 --output-on-failure
else
  QT_QPA_PLATFORM=offscreen ctest --test-dir "build/qt$mode" -j 2 --output-on-failure
  bash scripts/header-cost.sh "build/qt$mode"
  bash scripts/check-package.sh "$mode"
  if [ "$mode" = 6 ]; then
    bash scripts/check-abi.sh self-test
    bash scripts/check-abi.sh check
    bash scripts/install-deps.sh docs
    # Strict even where an older cache turned it off.
    cmake -S . -B build/qt6 -DORRERY_DOCS_STRICT=ON >/dev/null
    cmake --build build/qt6 --target docs
  fi
fi
