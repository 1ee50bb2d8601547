#!/usr/bin/env bash
# Recovery after a crash, with the real program on an X server: started on a routine, changed
# with the mouse, killed with SIGKILL, started again in another folder; the copy it offers
# is recovered with the mouse and the editor holds the change, named after the routine.
# Usage: recuperation.sh TRAJECTOIRES TRAJECTOIRES-CLI ROUTINE (with DISPLAY set, no window manager)
set -euo pipefail
app=$(realpath "$1") cli=$(realpath "$2") source=$(realpath "$3")
if ! command -v xdotool >/dev/null; then
  echo "xdotool est absent (scripts/install-deps l'installe) : test sauté"
  exit 77
fi

tmp=$(mktemp -d)
pids=()
fin() {
  for p in "${pids[@]}"; do kill -KILL "$p" 2>/dev/null || true; done
  rm -rf "$tmp"
}
trap fin EXIT
export XDG_STATE_HOME=$tmp/etat XDG_CONFIG_HOME=$tmp/config LIBGL_ALWAYS_SOFTWARE=1 SDL_AUDIODRIVER=dummy
copies=$XDG_STATE_HOME/trajectoires/recuperation
mkdir -p "$tmp/travail" "$tmp/ailleurs"
# Solved first, so that opening it changes nothing: what changes comes from the mouse.
"$cli" solve "$source" "$tmp/travail/routine.rou"
cp "$tmp/travail/routine.rou" "$tmp/telle-quelle.rou"

# Every step waits for what it needs, however slow the machine; three minutes without it is a fault.
attend() {
  local limite=$((SECONDS + 180))
  until "$@" >/dev/null 2>&1; do
    if ((SECONDS >= limite)); then
      echo "jamais vu : $*"
      for w in $(xdotool search --onlyvisible --name '.' 2>/dev/null); do echo "fenêtre : $(xdotool getwindowname "$w")"; done
      ls -l "$copies" 2>/dev/null || true
      return 1
    fi
    sleep 0.2
  done
}
existe() { compgen -G "$1" >/dev/null; }
fenetre() { xdotool search --onlyvisible --name "$1" | head -n 1; }
# The window's top left corner and size, as X Y WIDTH HEIGHT variables.
geometrie() { eval "$(xdotool getwindowgeometry --shell "$1")"; }
clique() { xdotool mousemove --sync "$1" "$2" click 1; }
visibles() { xdotool search --onlyvisible --pid "$1" | wc -l; }
au_moins() { test "$(visibles "$1")" -ge "$2"; }

# 1. The editor on the routine; the segment tool from the "Construction" menu (the menu bar's
# first title clicked, then the keyboard inside the menu, which holds it); two clicks on the
# sheet, after which the editor lays the tracks anew: manoeuvres on the spot move to where
# their kite now stands.
cd "$tmp/travail"
"$app" routine.rou &
pids+=($!)
premier=$!
attend existe "$copies/copie-$premier-*.lock"
attend fenetre '^Dessin Trajectoires : routine\.rou'
editeur=$(fenetre '^Dessin Trajectoires : routine\.rou')
geometrie "$editeur"
avant=$(visibles "$premier")
clique $((X + 20)) $((Y + 8))
attend au_moins "$premier" $((avant + 1))
xdotool key Right s Return
# Left of the middle of the sheet: the player's window covers the editor's right half.
clique $((X + 120)) $((Y + 200))
clique $((X + 220)) $((Y + 140))

# 2. The copy appears within seconds, holds the change, and names the routine. Elements are
# compared by kind, kite, number, sheet and whole coordinates: a routine read again keeps
# whole coordinates and solves its times anew, down to the last digits.
attend existe "$copies/copie-$premier-*.info"
copie=$(compgen -G "$copies/copie-$premier-*.rou")
elements() { awk '{ printf "%s %s %s %s %d %d\n", $1, $2, $3, $4, $7, $8 }' "$1"; }
if diff <(elements "$tmp/telle-quelle.rou") <(elements "$copie"); then
  echo "la copie ne contient pas le changement fait à la souris"
  exit 1
fi
cp "$copie" "$tmp/avant-arret.rou"
grep -qx "ORIGINAL $tmp/travail/routine.rou" "${copie%.rou}.info"

# 3. Killed: nothing is cleaned up.
kill -KILL "$premier"
wait "$premier" 2>/dev/null || true
test -f "$copie" && test -f "${copie%.rou}.lock"

# 4. Started again elsewhere, with no routine: the box offers the copy, the newest is chosen
# for recovery, "Valider" is the box's bottom right button.
cd "$tmp/ailleurs"
"$app" &
pids+=($!)
second=$!
attend fenetre 'le travail non enregistr'
boite=$(fenetre 'le travail non enregistr')
geometrie "$boite"
clique $((X + WIDTH - 45)) $((Y + HEIGHT - 24))

# 5. The editor holds the change, named after the routine and not saved; its own copy holds
# the work and the dead editor's copy is gone.
attend fenetre "^Dessin Trajectoires : $tmp/travail/routine\\.rou\\*"
attend existe "$copies/copie-$second-*.info"
attend test ! -e "$copie"
test ! -e "${copie%.rou}.info" && test ! -e "${copie%.rou}.lock"
diff <(elements "$(compgen -G "$copies/copie-$second-*.rou")") <(elements "$tmp/avant-arret.rou")
cmp "$tmp/travail/routine.rou" "$tmp/telle-quelle.rou"
echo "copie récupérée"
