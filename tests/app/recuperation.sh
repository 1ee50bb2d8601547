#!/usr/bin/env bash
# Recovery after a crash, with the real program on an X server: started on a routine, changed
# with the mouse, killed with SIGKILL, started again in another folder; the copy it offers
# is recovered with the mouse and the editor holds the change, named after the routine.
# Usage: recuperation.sh TRAJECTOIRES ROUTINE (with DISPLAY set, no window manager); the routine
# has no track, so that the mouse's first click on the sheet starts one.
set -euo pipefail
app=$(realpath "$1") source=$(realpath "$2")
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
cp "$source" "$tmp/travail/routine.rou"
cp "$source" "$tmp/telle-quelle.rou"

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

# 1. The editor on the routine, which has no track yet; the segment tool from the
# "Construction" menu (the menu bar's first title clicked, then the keyboard inside the menu,
# which holds it); on the sheet, a click places the kite's start point, the mouse moves on
# and a second click fixes a segment there.
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
# Right opens "&Construction" with its first entry, "&Segment", highlighted.
xdotool key Right Return
clique $((X + 120)) $((Y + 200))
xdotool mousemove --sync $((X + 170)) $((Y + 170))
xdotool mousemove --sync $((X + 220)) $((Y + 140))
clique $((X + 220)) $((Y + 140))

# 2. The copy appears within seconds, holds the track drawn, and names the routine. Elements
# are compared by kind, kite, number, sheet and whole coordinates: a routine read again keeps
# whole coordinates and solves its times anew, down to the last digits.
attend existe "$copies/copie-$premier-*.info"
copie=$(compgen -G "$copies/copie-$premier-*.rou")
elements() { awk '{ printf "%s %s %s %s %d %d\n", $1, $2, $3, $4, $7, $8 }' "$1"; }
if ! grep -q '^POINT' "$copie" || ! grep -q '^SEGMENT' "$copie"; then
  echo "la copie ne contient pas le tracé fait à la souris :"
  cat "$copie"
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
