#!/bin/sh
# Every ready-made routine flown by the companion (keys, down to its END line), checked for
# safety (none of them crosses on purpose: any finding is a fault) and, when the companion can
# print, printed as the sheets of its last pilot.
# Usage: modeles.sh CLI DIR_OF_MODELS WORK_DIR [print]
set -u
cli=$1 modeles=$2 travail=$3 imprime=${4:-}
mkdir -p "$travail" || exit 1
n=0
for f in "$modeles"/*.rou; do
  nom=$(basename "$f" .rou)
  "$cli" keys "$f" > "$travail/$nom.cles" || { echo "keys refuse $nom"; exit 1; }
  grep -q '^END [0-9]' "$travail/$nom.cles" || { echo "pas de fin de vol pour $nom"; exit 1; }
  "$cli" check "$f" > "$travail/$nom.controle" || { echo "check de $nom :"; cat "$travail/$nom.controle"; exit 1; }
  [ ! -s "$travail/$nom.controle" ] || { echo "check de $nom :"; cat "$travail/$nom.controle"; exit 1; }
  if [ -n "$imprime" ]; then
    cvs=$(grep -c '^POINT' "$f")
    "$cli" print "$f" "$travail/$nom.pdf" --pilote "$cvs" || { echo "print refuse $nom"; exit 1; }
    [ "$(head -c 4 "$travail/$nom.pdf")" = "%PDF" ] || { echo "$nom.pdf n'est pas un PDF"; exit 1; }
  fi
  n=$((n + 1))
done
echo "$n routines modèles"
