#!/usr/bin/env bash
# Builds everything and runs all tests.
# Usage: ./test.sh [PRESET]   release (default), dev (address and undefined-behaviour sanitizers), tsan
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
preset=${1:-release}

scripts/paquets.sh construire essais
mesures=OFF
[ "$preset" = release ] && mesures=ON # built with the tests so that they never rot
cmake --preset "$preset" -DNORVANE_TESTS=ON -DNORVANE_BENCH=$mesures --log-level=WARNING >/dev/null
cmake --build --preset "$preset"
ctest --preset "$preset"
