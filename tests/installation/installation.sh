#!/usr/bin/env bash
# The install as a user or a package makes it: into a temporary DESTDIR, every file in its
# place and nothing outside the prefix; the menu entry and the AppStream card pass their
# validators; the installed programs run from another folder, with their own data; the
# thumbnailer's command draws; a routine, a figure and an Xfig drawing each get their type.
# Usage: installation.sh BUILD VERSION SOURCE. A missing tool skips its check, with a message,
# and the test then ends as skipped (77) if everything else passed.
set -euo pipefail
build=$(realpath "$1") version=$2 source=$(realpath "$3")
id=org.trajectoires.Trajectoires
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
saute=0
outil() {
  if command -v "$1" >/dev/null; then return 0; fi
  echo "outil absent : $1 ($2) — vérification sautée"
  saute=1
  return 1
}
echec() {
  echo "ÉCHEC : $*"
  exit 1
}

prefixe=/opt/trajectoires-essai
DESTDIR=$tmp/dest cmake --install "$build" --prefix "$prefixe" >/dev/null
racine=$tmp/dest$prefixe

# 1. Every file in its place, nothing outside the prefix.
dehors=$(find "$tmp/dest" -type f | grep -v "^$racine/" || true)
[ -z "$dehors" ] || echec "installé hors du préfixe : $dehors"
attendus=(bin/trajectoires bin/trajectoires-cli share/trajectoires/Nuages.bmp
  share/applications/$id.desktop share/mime/packages/$id.xml share/metainfo/$id.metainfo.xml
  share/thumbnailers/$id.thumbnailer)
for equipe in 1 2 3 4 5; do for cv in 1 2 3 4 5 6; do attendus+=(share/trajectoires/CV${equipe}_$cv.x); done; done
for contexte in apps/$id mimetypes/application-x-trajectoires-routine; do
  attendus+=(share/icons/hicolor/scalable/$contexte.svg)
  for taille in 16 32 48 256; do attendus+=(share/icons/hicolor/${taille}x$taille/$contexte.png); done
done
for f in "${attendus[@]}"; do [ -s "$racine/$f" ] || echec "absent ou vide : $f"; done
[ -x "$racine/bin/trajectoires" ] && [ -x "$racine/bin/trajectoires-cli" ] || echec "programmes non exécutables"
grep -q "^Exec=trajectoires %f$" "$racine/share/applications/$id.desktop" || echec "Exec du menu"
grep -q "<release version=\"$version\"" "$racine/share/metainfo/$id.metainfo.xml" || echec "version de la fiche"

# 2. The validators of the desktop.
if outil desktop-file-validate desktop-file-utils; then
  desktop-file-validate "$racine/share/applications/$id.desktop" || echec "desktop-file-validate"
fi
if outil appstreamcli appstream; then
  appstreamcli validate --no-net "$racine/share/metainfo/$id.metainfo.xml" || echec "appstreamcli validate"
fi

# 3. The installed programs, from a folder with no checkout around, draw with their own data:
# the same picture as the built program, which finds the checkout's.
mkdir "$tmp/ailleurs"
cd "$tmp/ailleurs"
cp "$source/tests/data/resave/chaque_classe.rou" routine.rou
[ "$("$racine/bin/trajectoires-cli" --version)" = "trajectoires-cli $version" ] || echec "trajectoires-cli --version"
[ "$(env -u DISPLAY -u WAYLAND_DISPLAY "$racine/bin/trajectoires" --version)" = "trajectoires $version" ] ||
  echec "trajectoires --version"
env -u DISPLAY LIBGL_ALWAYS_SOFTWARE=1 "$racine/bin/trajectoires-cli" render routine.rou 500 installe.png --size 160x80 2>/dev/null
env -u DISPLAY LIBGL_ALWAYS_SOFTWARE=1 "$build/cli/trajectoires-cli" render routine.rou 500 construit.png --size 160x80 2>/dev/null
cmp -s installe.png construit.png || echec "l'image du programme installé diffère : ses données manquent"

# 4. The thumbnailer's own command, as a file manager runs it.
commande=$(sed -n 's/^Exec=//p' "$racine/share/thumbnailers/$id.thumbnailer")
commande=${commande//$prefixe/$racine}
commande=${commande//%i/$tmp/ailleurs/routine.rou}
commande=${commande//%o/$tmp/ailleurs/vignette.png}
commande=${commande//%s/128}
$commande || echec "la vignette : $commande"
[ "$(head -c 8 vignette.png | od -An -tx1 | tr -d ' \n')" = "89504e470d0a1a0a" ] || echec "la vignette n'est pas un PNG"

# 5. The file types, through the desktop's own lookup on a database of the test's own.
if outil update-mime-database shared-mime-info && outil xdg-mime xdg-utils && outil gio libglib2.0-bin; then
  mkdir -p "$tmp/xdg/mime/packages"
  cp "$racine/share/mime/packages/$id.xml" "$tmp/xdg/mime/packages/"
  update-mime-database "$tmp/xdg/mime"
  printf 'POINT   \t0\t0\t2\t1\t0\t\t0  0\t\t0.4\t\t\n' > figure.fig
  printf '#FIG 3.2  Produced by xfig version 3.2.8\nLandscape\nCenter\n' > dessin.fig
  type() { XDG_DATA_HOME=$tmp/xdg XDG_CURRENT_DESKTOP=GNOME xdg-mime query filetype "$1"; }
  [ "$(type routine.rou)" = application/x-trajectoires-routine ] || echec "type d'une routine : $(type routine.rou)"
  [ "$(type figure.fig)" = application/x-trajectoires-figure ] || echec "type d'une figure : $(type figure.fig)"
  [ "$(type dessin.fig)" = image/x-xfig ] || echec "type d'un dessin Xfig : $(type dessin.fig)"
fi

if [ "$saute" = 1 ]; then exit 77; fi
echo "installation vérifiée"
