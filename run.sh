#!/usr/bin/env bash
# Builds Norvane and runs it in the current directory. Without a display it runs on a virtual
# screen, walks the pages and leaves one picture of each in captures/.
set -euo pipefail
racine=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

"$racine/scripts/paquets.sh" construire
cd_depart=$PWD
cd "$racine"
cmake --preset release -DNORVANE_TESTS=OFF -DNORVANE_BENCH=OFF --log-level=WARNING >/dev/null
cmake --build --preset release --target norvane norvane-cli
cd "$cd_depart"

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$racine/build/release/bin/norvane"
fi
"$racine/scripts/paquets.sh" ecran
exec "$racine/scripts/captures.sh" "$racine/captures"
