#!/usr/bin/env bash
# Checks what no test sees: the format of every tracked C++ file, and what clang-tidy finds in src
# (.clang-tidy says what it looks for) on the compile commands of the release build.
# Usage: scripts/verifier.sh [FILE...]   the files to check; by default all of them
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
construction=build/release
[ -f $construction/compile_commands.json ] ||
  { echo "Construisez d'abord le programme : ./test.sh ou ./run.sh." >&2; exit 1; }

fichiers=("$@")
[ $# -gt 0 ] || mapfile -t fichiers < <(git ls-files '*.cpp' '*.h')
fautifs=()
for f in "${fichiers[@]}"; do
  clang-format-14 --dry-run -Werror "$f" 2>/dev/null || fautifs+=("$f")
done
if [ ${#fautifs[@]} -gt 0 ]; then
  echo "Format à revoir (clang-format-14 -i) :" >&2
  printf '  %s\n' "${fautifs[@]}" >&2
  exit 1
fi

# Headers are looked at through the files that include them.
mapfile -t sources < <(printf '%s\n' "${fichiers[@]}" | grep -E '^src/.*\.cpp$' || true)
[ ${#sources[@]} -gt 0 ] || exit 0
journal=$(mktemp)
trap 'rm -f "$journal"' EXIT
if ! run-clang-tidy-14 -quiet -j "$(nproc)" -p $construction "${sources[@]/#/^$PWD/}" \
  >"$journal" 2>&1; then
  grep -E '(error|warning|note): ' "$journal" | sed 's/\x1b\[[0-9;]*m//g' |
    awk '!vues[$0]++' >&2
  echo "clang-tidy a trouvé ce qui précède." >&2
  exit 1
fi
