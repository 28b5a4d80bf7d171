#!/usr/bin/env bash
# Builds everything and runs all tests.
# Usage: ./test.sh [PRESET]   release (default), dev (address and undefined-behaviour sanitizers), tsan
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
preset=${1:-release}

scripts/paquets.sh construire essais
cmake --preset "$preset" -DNORVANE_TESTS=ON --log-level=WARNING >/dev/null
cmake --build --preset "$preset"
ctest --preset "$preset"
