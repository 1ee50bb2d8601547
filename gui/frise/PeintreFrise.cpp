#include "gui/frise/PeintreFrise.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include <QFontMetrics>
#include <QImage>
#include <QPainter>

#include "frise/Battements.h"

namespace {

QColor Couleur(TColor c) { return QColor(c.Red(), c.Green(), c.Blue()); }

// A colour the block's label stays readable on.
QColor Texte(const QColor& fond) { return fond.lightness() > 140 ? Qt::black : Qt::white; }

// The kite's colour mixed with white: a black kite's blocks must still carry readable names.
QColor Teinte(const QColor& c, double blanc) {
  auto m = [&](int v) { return static_cast<int>(v + (255 - v) * blanc); };
  return QColor(m(c.red()), m(c.green()), m(c.blue()));
}

// Narrower than this, blocks are not told apart: they make one run of the kite's colour.
constexpr int BLOC_MIN = 4;

int Px(const TVueTemps& v, double t) {
  const double x = v.X(t);
  return static_cast<int>(std::clamp(std::floor(x), -100000.0, 100000.0));
}

// Where a mark's flag stands, and the ground of its name over the ruler's labels.
int XRepere(const TSceneFrise& s, const TRepere& r) { return std::clamp(Px(s.Vue, r.T), 0, s.Dispo.Largeur - 1); }
constexpr int HAUT_DRAPEAU = HAUTEUR_REGLE - 11;
QRect RectangleNom(const QFontMetrics& fm, int x, const QString& nom) {
  return {x + 9, HAUT_DRAPEAU - 2, fm.horizontalAdvance(nom) + 4, 12};
}

void Regle(QPainter& p, const TSceneFrise& s) {
  const TDisposition& d = s.Dispo;
  p.fillRect(0, 0, d.Largeur, HAUTEUR_REGLE, QColor(236, 236, 236));
  p.setPen(QColor(90, 90, 90));
  p.drawLine(0, HAUTEUR_REGLE - 1, d.Largeur, HAUTEUR_REGLE - 1);
  const double pas = PasRegle(s.Vue.PixelsParCentieme);
  const double t0 = std::floor(s.Vue.T(0) / pas) * pas;
  const double t1 = s.Vue.T(d.Largeur);
  // A label a mark's name would cover is left out rather than half hidden.
  std::vector<QRect> noms;
  if (s.Reperes)
    for (const TRepere& r : *s.Reperes)
      if (!r.Nom.empty()) noms.push_back(RectangleNom(p.fontMetrics(), XRepere(s, r), QString::fromStdString(r.Nom)));
  for (double t = t0; t <= t1; t += pas) {
    const int x = Px(s.Vue, t);
    p.drawLine(x, HAUTEUR_REGLE - 7, x, HAUTEUR_REGLE - 1);
    const QString texte = QString::fromStdString(TexteTemps(t, pas));
    const QRect place(x + 3, 0, p.fontMetrics().horizontalAdvance(texte), HAUTEUR_REGLE - 8);
    if (std::none_of(noms.begin(), noms.end(), [&](const QRect& n) { return n.intersects(place); }))
      p.drawText(x + 3, HAUTEUR_REGLE - 8, texte);
    // Finer ticks between.
    const int x5 = Px(s.Vue, t + pas / 2);
    p.drawLine(x5, HAUTEUR_REGLE - 4, x5, HAUTEUR_REGLE - 1);
  }
}

void Feuilles(QPainter& p, const TSceneFrise& s) {
  const TDisposition& d = s.Dispo;
  bool pair = false;
  for (const TBandeFeuille& b : s.Frise->Feuilles) {
    const int x0 = std::max(Px(s.Vue, b.Debut), -1), x1 = std::min(Px(s.Vue, b.Fin), d.Largeur + 1);
    pair = !pair;
    if (x1 <= x0) continue;
    const QRect r(x0, d.YFeuilles, x1 - x0, HAUTEUR_FEUILLES);
    p.fillRect(r, pair ? QColor(214, 226, 240) : QColor(240, 232, 208));
    p.setPen(QColor(60, 60, 60));
    const QString n = QString::number(b.Feuille);
    if (x1 - x0 > p.fontMetrics().horizontalAdvance(n) + 4) p.drawText(r, Qt::AlignCenter, n);
  }
}

void Onde(QPainter& p, const TSceneFrise& s) {
  const TDisposition& d = s.Dispo;
  const int h = d.YPistes - d.YOnde;
  if (h <= 0) return;
  p.fillRect(0, d.YOnde, d.Largeur, h, QColor(250, 250, 250));
  if (!s.Onde) return;
  const double milieu = d.YOnde + h / 2.0, demi = (h - 2) / 2.0;
  p.setPen(QColor(140, 140, 140));
  const int n = std::min(static_cast<int>(s.Onde->size()), d.Largeur);
  for (int x = 0; x < n; ++x) {
    const TColonne& c = (*s.Onde)[static_cast<std::size_t>(x)];
    if (!c.Son) continue;
    const int y0 = static_cast<int>(std::lround(milieu - c.Max * demi));
    const int y1 = static_cast<int>(std::lround(milieu - c.Min * demi));
    p.drawLine(x, y0, x, std::max(y0, y1));
  }
}

void Grille(QPainter& p, const TSceneFrise& s) {
  const TDisposition& d = s.Dispo;
  if (!s.Tempo.Defini() || d.Largeur <= 0 || d.Hauteur <= d.YFeuilles) return;
  // A grid with beats closer than 4 pixels shows only the strong ones, then nothing.
  const double ecart = s.Tempo.Periode() * s.Vue.PixelsParCentieme;
  if (ecart * 4 < 4) return;
  const auto battements = Battements(s.Tempo, s.Vue.T(0), s.Vue.T(d.Largeur), static_cast<std::size_t>(d.Largeur) + 1);
  // The grid is one row of translucent columns stretched over the bands: a line drawn per beat
  // costs the painter a hand-over to its worker threads each, many times the drawing itself.
  QImage rangee(d.Largeur, 1, QImage::Format_ARGB32_Premultiplied);
  rangee.fill(Qt::transparent);
  auto* pixels = reinterpret_cast<QRgb*>(rangee.scanLine(0));
  for (const TBattement& b : battements) {
    if (!b.Fort && ecart < 4) continue;
    const int x = Px(s.Vue, b.T);
    if (x < 0 || x >= d.Largeur) continue;
    // Black at 110 or 40 of 255, premultiplied: only the alpha is set.
    pixels[x] = std::max(pixels[x], qRgba(0, 0, 0, b.Fort ? 110 : 40));
  }
  p.drawImage(QRect(0, d.YFeuilles, d.Largeur, d.Hauteur - d.YFeuilles), rangee);
}

// A vertical stroke across the bands as a filled rectangle, which the painter fills in place.
void Trait(QPainter& p, int x, int largeur, int y0, int y1, const QColor& c) {
  p.fillRect(x - largeur / 2, y0, largeur, y1 - y0, c);
}

void Pistes(QPainter& p, const TSceneFrise& s) {
  const TDisposition& d = s.Dispo;
  const QFontMetrics fm = p.fontMetrics();
  const int largeurChiffre = fm.horizontalAdvance(QLatin1Char('0'));
  for (int i = 0; i < d.NbPistes && i < static_cast<int>(s.Frise->Pistes.size()); ++i) {
    const TPiste& piste = s.Frise->Pistes[static_cast<std::size_t>(i)];
    const TRect r = d.Piste(i);
    const QColor c = Couleur(piste.Couleur);
    const QColor clair = Teinte(c, 0.85), fonce = Teinte(c, 0.6);
    if (i & 1) p.fillRect(0, r.top, d.Largeur, r.Height(), QColor(246, 246, 246));
    const int haut = r.top + 2, hauteur = std::max(r.Height() - 4, 1);
    // Blocks too narrow to tell apart are drawn as one run of the kite's colour, from the
    // first to the last that follow each other without a gap: a zoomed-out routine of
    // thousands of elements costs a few rectangles per lane.
    int runDebut = 0, runFin = -1;
    auto finRun = [&] {
      if (runFin >= runDebut) p.fillRect(runDebut, haut, runFin - runDebut + 1, hauteur, c);
      runFin = -1;
    };
    for (const TBloc& b : piste.Blocs) {
      int x0 = Px(s.Vue, std::min(b.Debut, b.Fin)), x1 = Px(s.Vue, std::max(b.Debut, b.Fin));
      if (x1 < 0 || x0 > d.Largeur) continue;
      x0 = std::max(x0, -1);
      x1 = std::min(x1, d.Largeur + 1);
      const bool choisi = b.Elt && b.Elt == s.Selection;
      if (x1 - x0 < BLOC_MIN && !choisi) {
        if (runFin >= runDebut && x0 <= runFin + 1) {
          runFin = std::max(runFin, x1);
        } else {
          finRun();
          runDebut = x0;
          runFin = x1;
        }
        continue;
      }
      finRun();
      const QRect bloc(x0, haut, x1 - x0, hauteur);
      p.fillRect(bloc, choisi ? c : b.Duree ? fonce : clair);
      // Blocks follow each other: a stroke at each start parts them, with the cost of a fill.
      p.fillRect(x0, haut, 1, hauteur, c);
      if (choisi) {
        p.setPen(Qt::black);
        p.drawRect(bloc.adjusted(0, 0, -1, -1));
      }
      if (b.Synchro) {
        // The synchronisation's number at the block's end, as the sheet shows it there.
        const QString n = QString::number(b.Synchro);
        const int w = largeurChiffre * static_cast<int>(n.size()) + 4;
        const QRect etiquette(x1 - w, haut, w, std::min(hauteur, fm.height()));
        p.fillRect(etiquette, Qt::white);
        p.setPen(c);
        p.drawText(etiquette, Qt::AlignCenter, n);
      }
      // The name only when it fits: measuring is the costly part, so only wide blocks are measured.
      if (x1 - x0 > largeurChiffre * 3 && hauteur >= fm.height()) {
        const QString nom = QString::fromStdString(b.Nom);
        const int reserve = b.Synchro ? largeurChiffre * 3 + 4 : 0;
        if (fm.horizontalAdvance(nom) + 6 + reserve <= x1 - x0) {
          p.setPen(choisi ? Texte(c) : Qt::black);
          p.drawText(QRect(x0 + 3, haut, x1 - x0 - 6 - reserve, hauteur), Qt::AlignLeft | Qt::AlignVCenter, nom);
        }
      }
    }
    finRun();
  }
}

void Drapeaux(QPainter& p, const TSceneFrise& s) {
  if (!s.Reperes) return;
  const TDisposition& d = s.Dispo;
  const QColor rouge(200, 30, 30);
  for (const TRepere& r : *s.Reperes) {
    // A mark outside the view stays at its time, drawn at the edge.
    const int x = XRepere(s, r);
    p.setPen(QPen(rouge, 1, Qt::DashLine));
    p.drawLine(x, HAUTEUR_REGLE, x, d.Hauteur);
    // The flag at the foot of the ruler, its name on a ground of its own over the ruler's labels.
    const int haut = HAUT_DRAPEAU;
    const QPolygon drapeau({QPoint(x, haut), QPoint(x + 8, haut + 4), QPoint(x, haut + 8)});
    p.setPen(rouge);
    p.setBrush(rouge);
    p.drawPolygon(drapeau);
    p.setBrush(Qt::NoBrush);
    const QString nom = QString::fromStdString(r.Nom);
    if (!nom.isEmpty()) {
      const QRect texte = RectangleNom(p.fontMetrics(), x, nom);
      p.fillRect(texte, QColor(255, 240, 240));
      p.drawText(texte, Qt::AlignCenter, nom);
    }
  }
}

void Fin(QPainter& p, const TSceneFrise& s) {
  if (s.Frise->Vide()) return;
  const int x = Px(s.Vue, s.Frise->FinRoutine);
  if (x < 0 || x > s.Dispo.Largeur) return;
  Trait(p, x, 2, s.Dispo.YFeuilles, s.Dispo.Hauteur, Qt::black);
}

}  // namespace

void PeintFrise(QPainter& p, const TSceneFrise& s) {
  if (!s.Frise) return;
  p.save();
  QFont police = p.font();
  police.setPixelSize(11);
  p.setFont(police);
  Regle(p, s);
  Feuilles(p, s);
  Onde(p, s);
  Pistes(p, s);
  Grille(p, s);
  Fin(p, s);
  Drapeaux(p, s);
  if (std::isfinite(s.Tete)) {
    Trait(p, Px(s.Vue, s.Tete), 2, 0, s.Dispo.Hauteur, QColor(0, 90, 220));
  }
  p.restore();
}
