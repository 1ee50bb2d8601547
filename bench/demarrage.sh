#!/usr/bin/env bash
# Start-up of the application beside two bare windows, in one run under one Xvfb: the time from
# launch until the window is mapped (viewable), and the peak resident memory of the process
# over its first seconds (GNU time's maximum RSS, the process ended DELAI seconds after its
# window maps). Each program is started FOIS times, by turns; the medians are printed.
#   bench/demarrage.sh [BUILD_DIR]        (default: build; FOIS=5, DELAI=2)
set -euo pipefail

racine=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "${1:-$racine/build}" && pwd)
fois=${FOIS:-5}
delai=${DELAI:-2}

if [ -z "${DISPLAY:-}" ]; then
  exec xvfb-run -a -s "-screen 0 1920x1200x24" "$0" "$build"
fi
export LIBGL_ALWAYS_SOFTWARE=1 SDL_AUDIODRIVER=dummy
# Settings and state of a new user: nothing remembered, no work to recover.
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export XDG_CONFIG_HOME=$scratch/config XDG_STATE_HOME=$scratch/state HOME=$scratch

nue=$build/bench/trajectoires_bench_fenetre_nue
application=$build/app/trajectoires

# One start: prints "ms kB", or nothing when the window never came (within 30 s). $1 is the
# window's title (a regular expression), the rest the command.
mesure() {
  local titre=$1
  shift
  local debut fin pid
  debut=$(date +%s%N)
  /usr/bin/time -f "%M" -o "$scratch/rss" "$@" >/dev/null 2>&1 &
  pid=$!
  until xdotool search --onlyvisible --name "$titre" >/dev/null 2>&1; do
    if ! kill -0 "$pid" 2>/dev/null || [ "$(date +%s%N)" -gt $((debut + 30000000000)) ]; then
      echo "$* : pas de fenêtre « $titre »" >&2
      pkill -TERM -P "$pid" || true
      wait "$pid" 2>/dev/null || true
      return
    fi
    sleep 0.002
  done
  fin=$(date +%s%N)
  sleep "$delai"
  # GNU time's child: ended by SIGTERM, time still writes its report.
  pkill -TERM -P "$pid" || true
  wait "$pid" 2>/dev/null || true
  echo "$(((fin - debut) / 1000000)) $(tail -n 1 "$scratch/rss")"
}

mediane() { sort -n | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }

declare -A ms kb
noms=(nue nue-gl application)
for _ in $(seq "$fois"); do
  for nom in "${noms[@]}"; do
    case $nom in
      nue) r=$(mesure '^fenetre-nue$' "$nue") ;;
      nue-gl) r=$(mesure '^fenetre-nue-gl$' "$nue" gl) ;;
      application) r=$(mesure 'Trajectoires' "$application") ;;
    esac
    [ -n "$r" ] || continue
    ms[$nom]+="${r% *} "
    kb[$nom]+="${r#* } "
  done
done

printf "%-28s %12s %16s    (%s)\n" programme "carte (ms)" "pic mémoire (Mo)" "médianes de $fois"
for nom in "${noms[@]}"; do
  m=$(tr ' ' '\n' <<<"${ms[$nom]:-}" | { grep . || true; } | mediane)
  k=$(tr ' ' '\n' <<<"${kb[$nom]:-0}" | { grep . || true; } | mediane)
  printf "%-28s %12s %16s    ms: %s\n" "$nom" "$m" "$((k / 1024))" "${ms[$nom]}"
done
