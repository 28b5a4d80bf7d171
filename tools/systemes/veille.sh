#!/usr/bin/env bash
# Searches for smaller designs for ever: veille.sh PROGRAMS STOCK MEMORY [FIRST_SECONDS]
# PROGRAMS holds norvane-systemes-*, MEMORY (a folder outside the project) what each group came to.
# Keys are drawn by need: far above the best published number first, then those that nobody
# published, then those still above the proved bound. The closure runs after every batch, and the
# time given to a key grows from batch to batch. Ends when MEMORY/arret exists.
set -u
programmes=$1 stock=$2 memoire=$3 secondes=${4:-8}
mkdir -p "$memoire"

# LOT weighted draws (v k p t) from the table.
tirer() {
  awk -F'\t' -v graine="$RANDOM$RANDOM" -v lot="$1" '
    BEGIN { srand(graine) }
    NR > 1 {
      cle = $4 " " $5 " " $6 " " $7
      if (cle in vu) next
      vu[cle] = 1
      e = 0
      if ($8 == "") besoin = 0.02
      else if ($9 == "") besoin = 0.02
      else if ($8 > $9) { e = ($8 - $9) / $9; besoin = 0.03 + (e < 0.15 ? e : 0.15) }
      else if ($8 > $10) besoin = 0.0015
      else next
      print -log(1 - rand()) / besoin "\t" cle
    }' "$stock/table.tsv" | sort -g | head -n "$1" | cut -f2
}

"$programmes/norvane-systemes-table" "$stock" > "$memoire/bilan" || exit 1
while [ ! -e "$memoire/arret" ]; do
  while read -r v k p t; do
    [ -e "$memoire/arret" ] && break
    options=("memoire=$memoire/$v-$k-$p-$t")
    if [ $((RANDOM % 3)) -eq 0 ] && [ -e "$stock/dessins/$k-$p-$t/$v.txt" ]; then
      options=(reprise=1)
    fi
    "$programmes/norvane-systemes-chercher" "$stock" "$v" "$k" "$p" "$t" "$secondes" \
      "$RANDOM$RANDOM" "${options[@]}"
  done < <(tirer 20)
  if [ -x "$programmes/norvane-systemes-fermer" ]; then
    "$programmes/norvane-systemes-fermer" "$stock" "$memoire/fermeture"
  fi
  "$programmes/norvane-systemes-table" "$stock" > "$memoire/bilan" && tail -n 1 "$memoire/bilan"
  secondes=$(awk -v s="$secondes" 'BEGIN { s *= 1.05; print (s > 240 ? 240 : s) }')
done
