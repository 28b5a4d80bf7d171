#!/usr/bin/env bash
# Installs the packages that the project needs and the machine lacks (Debian and Ubuntu).
# Usage: scripts/paquets.sh GROUP...   with GROUP one of: construire essais ecran controle
# Silent and quick when nothing is missing.
set -euo pipefail

declare -A groupes=(
  [construire]="g++ cmake ninja-build ccache mold pkg-config qt6-base-dev libqt6svg6-dev
    qt6-charts-dev qt6-translations-l10n libsqlite3-dev libzip-dev libssl-dev libxlsxwriter-dev
    libfmt-dev libsimpleini-dev libcli11-dev libgtest-dev libbenchmark-dev libgl-dev fonts-noto-core"
  [essais]="poppler-utils libxml2-utils"
  [controle]="clang-format-14 clang-tidy-14"
  [ecran]="xvfb xdotool imagemagick openbox"
)

manquants=()
for groupe in "$@"; do
  for paquet in ${groupes[$groupe]}; do
    dpkg-query -W -f='${db:Status-Status}' "$paquet" 2>/dev/null | grep -qx installed ||
      manquants+=("$paquet")
  done
done
[ ${#manquants[@]} -eq 0 ] && exit 0

if ! command -v apt-get >/dev/null; then
  echo "Il manque : ${manquants[*]}. Installez-les avec le gestionnaire de paquets du système." >&2
  exit 1
fi
prefixe=()
if [ "$(id -u)" -ne 0 ]; then
  if ! command -v sudo >/dev/null; then
    echo "Il manque : ${manquants[*]}. Installez-les en tant qu'administrateur." >&2
    exit 1
  fi
  prefixe=(sudo)
fi
journal=$(mktemp)
trap 'rm -f "$journal"' EXIT
echo "Installation de ce qui manque : ${manquants[*]}" >&2
if ! { "${prefixe[@]}" apt-get update -qq &&
       "${prefixe[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq \
         --no-install-recommends "${manquants[@]}"; } >"$journal" 2>&1; then
  tail -n 20 "$journal" >&2
  echo "L'installation a échoué : vérifiez la connexion et les sources de paquets." >&2
  exit 1
fi
