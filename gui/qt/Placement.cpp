#include "gui/qt/Placement.h"

#include <algorithm>

namespace {
constexpr int COTE_MIN = 100, COTE_MAX = 16384;
// Of the title strip, what must show on a screen for the mouse to take the window.
constexpr int LARGEUR_PRISE = 100, HAUTEUR_PRISE = 20;

// r moved the least that brings it inside `ecran`, which is at least as large.
QRect Dedans(QRect r, const QRect& ecran) {
  r.moveLeft(std::clamp(r.left(), ecran.left(), ecran.right() - r.width() + 1));
  r.moveTop(std::clamp(r.top(), ecran.top(), ecran.bottom() - r.height() + 1));
  return r;
}

long long Aire(const QRect& r) { return r.isEmpty() ? 0 : static_cast<long long>(r.width()) * r.height(); }
}  // namespace

bool CadreUtilisable(const QRect& cadre, const QList<QRect>& ecrans) {
  if (cadre.width() < COTE_MIN || cadre.height() < COTE_MIN || cadre.width() > COTE_MAX ||
      cadre.height() > COTE_MAX)
    return false;
  const QRect titre(cadre.left(), cadre.top(), cadre.width(), HAUTEUR_PRISE);
  return std::any_of(ecrans.begin(), ecrans.end(), [&](const QRect& ecran) {
    const QRect vu = titre & ecran;
    return vu.width() >= LARGEUR_PRISE && vu.height() >= HAUTEUR_PRISE;
  });
}

QRect CadreRetenu(const QRect& memorise, const QRect& defaut, const QList<QRect>& ecrans) {
  return CadreUtilisable(memorise, ecrans) ? memorise : defaut;
}

QRect CadreAcote(const QRect& ecran, const QRect& voisin, QSize taille) {
  taille = taille.boundedTo(ecran.size());
  const int l = taille.width(), h = taille.height();
  const QRect places[] = {
      QRect(voisin.right() + 1 + ECART_FENETRES, voisin.top(), l, h),
      QRect(voisin.left(), voisin.bottom() + 1 + ECART_FENETRES, l, h),
      QRect(voisin.left() - ECART_FENETRES - l, voisin.top(), l, h),
      QRect(voisin.left(), voisin.top() - ECART_FENETRES - h, l, h),
  };
  for (const QRect& p : places)
    if (ecran.contains(p) && !p.intersects(voisin)) return p;
  QRect meilleure = Dedans(places[0], ecran);
  for (const QRect& p : places) {
    const QRect d = Dedans(p, ecran);
    if (Aire(d & voisin) < Aire(meilleure & voisin)) meilleure = d;
  }
  return meilleure;
}
