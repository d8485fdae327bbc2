#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test: first the debug build with warnings as
# errors, then the same tests under AddressSanitizer and UndefinedBehaviorSanitizer.
set -euo pipefail
cd "$(dirname "$0")/.."

./scripts/setup-deps.sh
presets=${UPSIZER_TEST_PRESETS:-"dev asan"}
jobs=$(nproc)
for preset in $presets; do
    echo "== $preset: configure and build"
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset" -j "$jobs"
    echo "== $preset: tests"
    ctest --preset "$preset" -j "$jobs"
done
