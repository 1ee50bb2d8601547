#!/usr/bin/env bash
# CPU time of the application with a demonstration in the player: DUREE seconds paused, then
# DUREE seconds playing, each as a percentage of one core (utime + stime of the process, from
# /proc), and the frames drawn per second while playing.
#   bench/cpu-lecteur.sh [BUILD_DIR]       (default: build; DUREE=10)
# Without a display it runs itself again under xvfb-run. Mesa draws in software, as on a
# machine with no GPU; Xvfb has no vertical sync, so the frame rate is the player's own pacing.
set -euo pipefail

racine=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "${1:-$racine/build}" && pwd)
harnais=$build/bench/trajectoires_bench_lecteur
routine=$racine/tests/data/routine_courte.rou
duree=${DUREE:-10}

if [ -z "${DISPLAY:-}" ]; then
  exec xvfb-run -a -s "-screen 0 1280x1024x24" "$0" "$build"
fi
export LIBGL_ALWAYS_SOFTWARE=1 SDL_AUDIODRIVER=dummy

coproc HARNAIS { exec "$harnais" "$routine"; }
pid=$HARNAIS_PID
trap 'kill "$pid" 2>/dev/null || true' EXIT

# Ticks of CPU used so far: utime and stime, fields 14 and 15, counted after the ")" that
# closes the command name.
ticks() { sed 's/^.*) //' "/proc/$pid/stat" | awk '{ print $12 + $13 }'; }
maintenant() { date +%s.%N; }
images() {
  echo images >&"${HARNAIS[1]}"
  read -r n <&"${HARNAIS[0]}"
  echo "$n"
}
# Percentage of one core between two (ticks, time) readings.
pourcent() { awk -v t="$1" -v s="$2" -v hz="$(getconf CLK_TCK)" 'BEGIN { printf "%.1f", 100 * t / hz / s }'; }

read -r pret <&"${HARNAIS[0]}"
[ "$pret" = pret ] || { echo "le harnais n'a pas démarré" >&2; exit 1; }
sleep 1  # the first frames and the window's settling are not the idle state

t0=$(ticks); h0=$(maintenant)
sleep "$duree"
t1=$(ticks); h1=$(maintenant)

echo lecture >&"${HARNAIS[1]}"
i1=$(images); t2=$(ticks); h2=$(maintenant)
sleep "$duree"
i2=$(images); t3=$(ticks); h3=$(maintenant)
echo fin >&"${HARNAIS[1]}"
for _ in $(seq 50); do kill -0 "$pid" 2>/dev/null || break; sleep 0.1; done

s_pause=$(awk -v a="$h0" -v b="$h1" 'BEGIN { print b - a }')
s_lecture=$(awk -v a="$h2" -v b="$h3" 'BEGIN { print b - a }')
ips=$(awk -v n=$((i2 - i1)) -v s="$s_lecture" 'BEGIN { printf "%.1f", n / s }')
echo "en pause  : $(pourcent $((t1 - t0)) "$s_pause") % d'un cœur"
echo "en lecture: $(pourcent $((t3 - t2)) "$s_lecture") % d'un cœur, $ips images/s"
