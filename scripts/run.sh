#!/usr/bin/env bash
# Installs what is missing, builds the optimised tool and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."

./scripts/setup-deps.sh
cmake --preset release >/dev/null
cmake --build --preset release -j "$(nproc)" --target upsizer
exec ./build/release/console/upsizer "$@"
