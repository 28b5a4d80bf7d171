#!/usr/bin/env bash
# Starts the built program on a virtual screen, walks its ten pages with the keyboard and leaves
# one picture of each.
# Usage: scripts/captures.sh FOLDER [WIDTHxHEIGHT] [auto|claire|sombre]
set -euo pipefail
racine=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
dossier=$1
taille=${2:-1366x768}
apparence=${3:-auto}
pages=(resultats numeros chances combinaisons combinaisons-chances analyses graphes historiques
  impression systemes)

mkdir -p "$dossier"
dossier=$(cd "$dossier" && pwd)
travail=$(mktemp -d)
processus=()
finir() {
  for p in "${processus[@]}"; do kill "$p" 2>/dev/null || true; done
  wait 2>/dev/null || true
  rm -rf "$travail"
}
trap finir EXIT

# The server itself finds a free display number and writes it down.
Xvfb -displayfd 3 -screen 0 "${taille}x24" -nolisten tcp 3>"$travail/ecran" 2>/dev/null &
processus+=($!)
numero=
for _ in $(seq 100); do
  read -r numero 2>/dev/null <"$travail/ecran" && break # fails until the line is whole
  sleep 0.1
done
[ -n "$numero" ] || { echo "L'écran virtuel n'a pas démarré." >&2; exit 1; }
DISPLAY=:$numero
export DISPLAY
unset WAYLAND_DISPLAY
echo "Pas d'écran ici : Norvane tourne sur l'écran virtuel $DISPLAY, images dans $dossier" >&2
openbox >/dev/null 2>&1 &
processus+=($!)

# In a directory of its own: what the user keeps in his is not touched.
mkdir "$travail/norvane"
printf '[CONFIGURATION]\nApparence=%s\n' "$apparence" >"$travail/norvane/NORVANE.INI"
(cd "$travail/norvane" && QT_QPA_PLATFORM=xcb exec "$racine/build/release/bin/norvane") &
programme=$!
processus+=("$programme")

fenetre=
for _ in $(seq 150); do
  fenetre=$(xdotool search --onlyvisible --name '^Norvane$' 2>/dev/null | tail -n 1 || true)
  [ -n "$fenetre" ] && break
  kill -0 "$programme" 2>/dev/null ||
    { echo "Le programme s'est arrêté : une autre instance tourne peut-être déjà." >&2; exit 1; }
  sleep 0.1
done
[ -n "$fenetre" ] || { echo "La fenêtre ne s'est pas montrée." >&2; exit 1; }
xdotool windowactivate --sync "$fenetre"
sleep 1

for i in "${!pages[@]}"; do
  xdotool key --clearmodifiers "ctrl+$(((i + 1) % 10))"
  sleep 0.5
  import -window root "$dossier/$(printf %02d $((i + 1)))-${pages[$i]}.png"
done
echo "Une image par page dans $dossier" >&2
