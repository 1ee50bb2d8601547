#include "gui/qt/DCQt.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainterPath>
#include <QPolygon>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

QColor CouleurQt(TColor c) { return QColor(c.Red(), c.Green(), c.Blue()); }

// Both faces only exist on Windows; Liberation Sans has Arial's widths and heights, and
// stands for the dialog face too, whose widths are close to Arial's.
const char* const FacesSubstituees[][2] = {
    {"Arial", "Liberation Sans"},
    {"MS Sans Serif", "Liberation Sans"},
};

// The height of a text cell (ascent plus descent) per pixel of em, for a face: a positive
// font height is the cell's, as the routine's drawing was sized, and Qt takes the em.
double CelluleParEm(const QString& face) {
  static QString derniereFace;
  static double dernierRapport = 0;
  if (dernierRapport > 0 && face == derniereFace) return dernierRapport;
  QFont f(face);
  f.setPixelSize(1000);
  const QFontMetricsF m(f);
  const double cellule = m.ascent() + m.descent();
  derniereFace = face;
  dernierRapport = cellule > 0 ? cellule / 1000.0 : 1.0;
  return dernierRapport;
}

// The shape whose one-pixel outline covers exactly the pixels of r: Qt draws a cosmetic
// outline to the right of and below the mathematical edge.
QRectF Contour(const QRect& r) { return QRectF(r.x(), r.y(), r.width() - 1, r.height() - 1); }

// Angle of the ray from the centre of r through p, turned into the parameter of the ellipse
// inscribed in r, in degrees counter-clockwise on screen: the arc must end on the rays
// whatever the ellipse's aspect, and Qt's angles are the ellipse's parameter.
double AngleParametre(const QRectF& r, const QPointF& p) {
  const double dx = p.x() - r.center().x();
  const double dy = r.center().y() - p.y();  // y down on the device
  const double rx = r.width() / 2, ry = r.height() / 2;
  return std::atan2(dy * rx, dx * ry) * 180.0 / std::numbers::pi;
}

// Device coordinates are held within 27 bits, as the old drawing interfaces did, so that
// the products of the line's layout stay within 64 bits.
constexpr double LimiteCoordonnee = 1 << 26;

int Coordonnee(double v) { return static_cast<int>(std::lround(std::clamp(v, -LimiteCoordonnee, LimiteCoordonnee))); }

// Rounds n / d to the nearest integer, halves upwards, for d > 0.
qint64 DivisionArrondie(qint64 n, qint64 d) {
  const qint64 q = (2 * n + d) / (2 * d), r = (2 * n + d) % (2 * d);
  return r < 0 ? q - 1 : q;
}

// Adds pixel p to the runs: to the last one when p continues it along the line's longer axis.
void AjoutePixel(QList<QRect>& traits, const QPoint& p, bool xMajeur) {
  if (!traits.isEmpty()) {
    QRect& r = traits.last();
    if (xMajeur && r.y() == p.y() && (r.right() + 1 == p.x() || r.left() - 1 == p.x())) {
      r |= QRect(p, QSize(1, 1));
      return;
    }
    if (!xMajeur && r.x() == p.x() && (r.bottom() + 1 == p.y() || r.top() - 1 == p.y())) {
      r |= QRect(p, QSize(1, 1));
      return;
    }
  }
  traits.append(QRect(p, QSize(1, 1)));
}

// The pixels of the one-pixel line from a to b, b left out, that lie on a device of the
// given size, as runs along the longer axis: on each step along that axis, the pixel nearest
// to the line. Dotted, one pixel in three is ink, from the first, and the others are gaps.
void PixelsLigne(const QPoint& a, const QPoint& b, const QSize& taille, bool pointille, QList<QRect>& encre,
                 QList<QRect>& trous) {
  const qint64 dx = qint64(b.x()) - a.x(), dy = qint64(b.y()) - a.y();
  const bool xMajeur = std::abs(dx) >= std::abs(dy);
  const qint64 n = std::max(std::abs(dx), std::abs(dy));
  if (n == 0) return;
  const qint64 dMineur = xMajeur ? dy : dx;
  const qint64 sens = (xMajeur ? dx : dy) > 0 ? 1 : -1;
  const qint64 majeur0 = xMajeur ? a.x() : a.y(), mineur0 = xMajeur ? a.y() : a.x();
  const qint64 tailleMajeur = xMajeur ? taille.width() : taille.height();
  const qint64 tailleMineur = xMajeur ? taille.height() : taille.width();
  // Only the steps whose longer coordinate falls on the device: a line reaching far off the
  // sheet costs no more than the sheet's size.
  qint64 i0 = 0, i1 = n;
  if (sens > 0) {
    i0 = std::max(i0, -majeur0);
    i1 = std::min(i1, tailleMajeur - majeur0);
  } else {
    i0 = std::max(i0, majeur0 - tailleMajeur + 1);
    i1 = std::min(i1, majeur0 + 1);
  }
  for (qint64 i = i0; i < i1; ++i) {
    const qint64 mineur = mineur0 + DivisionArrondie(i * dMineur, n);
    if (mineur < 0 || mineur >= tailleMineur) continue;
    const int m = static_cast<int>(majeur0 + sens * i), p = static_cast<int>(mineur);
    AjoutePixel(!pointille || i % 3 == 0 ? encre : trous, xMajeur ? QPoint(m, p) : QPoint(p, m), xMajeur);
  }
}

// Fills the runs of pixels on a 32-bit image, in an opaque colour.
void Remplit(QImage& image, const QList<QRect>& traits, TColor couleur) {
  const QRgb c = qRgb(couleur.Red(), couleur.Green(), couleur.Blue());
  for (const QRect& r : traits)
    for (int y = r.top(); y <= r.bottom(); ++y) {
      // The painter's own buffer, never a detached copy of it.
      auto* ligne = reinterpret_cast<QRgb*>(const_cast<uchar*>(image.constScanLine(y)));
      std::fill(ligne + r.left(), ligne + r.right() + 1, c);
    }
}

}  // namespace

QString FacePolice(const std::string& nom) {
  for (const auto& s : FacesSubstituees)
    if (nom == s[0]) return QString::fromLatin1(s[1]);
  return QString::fromStdString(nom);
}

TDCQt::TDCQt(QPainter* painter)
    : painter_(painter),
      pixels_(painter && painter->paintEngine() && painter->paintEngine()->type() == QPaintEngine::Raster) {
  if (painter_) {
    // The program's pictures are drawn pixel-exact; only text is smoothed.
    painter_->setRenderHint(QPainter::Antialiasing, false);
    painter_->setRenderHint(QPainter::TextAntialiasing, true);
  }
}

void TDCQt::Reinitialise() {
  ReinitialiseEtat();
  position_ = QPoint();
}

QPoint TDCQt::VersPeripherique(const TPoint& p) const {
  if (Mode == TMapMode::Texte || ExtFenetre.cx == 0 || ExtFenetre.cy == 0)
    return QPoint(Coordonnee(p.x), Coordonnee(p.y));
  const double x = (static_cast<double>(p.x) - OrigineFenetre.x) * ExtVue.cx / ExtFenetre.cx;
  const double y = (static_cast<double>(p.y) - OrigineFenetre.y) * ExtVue.cy / ExtFenetre.cy;
  return QPoint(Coordonnee(x), Coordonnee(y));
}

QRect TDCQt::VersPeripherique(const TRect& r) const {
  const QPoint a = VersPeripherique(TPoint(r.left, r.top));
  const QPoint b = VersPeripherique(TPoint(r.right, r.bottom));
  return QRect(std::min(a.x(), b.x()), std::min(a.y(), b.y()), std::abs(b.x() - a.x()), std::abs(b.y() - a.y()));
}

double TDCQt::HauteurPeripherique(int hauteur) const {
  double h = std::abs(hauteur);
  if (Mode == TMapMode::Anisotrope && ExtFenetre.cy != 0)
    h *= std::abs(static_cast<double>(ExtVue.cy) / ExtFenetre.cy);
  return h;
}

QFont TDCQt::PoliceQt() const {
  const QString face = FacePolice(Police.Nom.empty() ? "MS Sans Serif" : Police.Nom);
  QFont f(face);
  // A negative height is the em itself; a positive one, the whole cell; none, a cell of 16
  // pixels whatever the mode.
  double em = Police.Hauteur == 0 ? 16 : HauteurPeripherique(Police.Hauteur);
  if (Police.Hauteur >= 0) em /= CelluleParEm(face);
  f.setPixelSize(std::max(1, static_cast<int>(std::lround(em))));
  f.setWeight(static_cast<QFont::Weight>(std::clamp(Police.Graisse == 0 ? 400 : Police.Graisse, 1, 1000)));
  return f;
}

QPen TDCQt::PenQt() const {
  QPen pen(CouleurQt(Plume.Couleur));
  if (Plume.Largeur <= 0) {
    // Cosmetic: one device pixel whatever the mapping; a flat cap leaves the last pixel out.
    pen.setWidth(0);
    pen.setCapStyle(Qt::FlatCap);
  } else {
    double largeur = Plume.Largeur;
    if (Mode == TMapMode::Anisotrope && ExtFenetre.cx != 0)
      largeur *= std::abs(static_cast<double>(ExtVue.cx) / ExtFenetre.cx);
    pen.setWidthF(std::max(1.0, largeur));
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
  }
  if (Plume.Trait == TPen::Style::Pointille) pen.setStyle(Qt::DotLine);
  return pen;
}

QImage* TDCQt::ImageDirecte() const {
  QPaintDevice* d = painter_->device();
  if (d->devType() != QInternal::Image || painter_->hasClipping() || !painter_->transform().isIdentity() ||
      painter_->compositionMode() != QPainter::CompositionMode_SourceOver)
    return nullptr;
  auto* image = static_cast<QImage*>(d);
  switch (image->format()) {
    case QImage::Format_RGB32:
    case QImage::Format_ARGB32:
    case QImage::Format_ARGB32_Premultiplied: return image->devicePixelRatio() == 1 ? image : nullptr;
    default: return nullptr;
  }
}

void TDCQt::MoveToEx(const TPoint& p) { position_ = VersPeripherique(p); }

void TDCQt::LineTo(const TPoint& p) {
  const QPoint fin = VersPeripherique(p);
  if (painter_) Trace(position_, fin);
  position_ = fin;
}

void TDCQt::Trace(const QPoint& a, const QPoint& b) {
  QPen pen = PenQt();
  const bool trousOpaques = pen.style() != Qt::SolidLine && ModeFond == TBkMode::Opaque;
  if (pen.isCosmetic() && pixels_) {
    // On pixels the line is laid out here: Qt's own line leaves out its right or lower end
    // whatever the direction, where the program's leaves out its last point.
    encre_.clear();
    trous_.clear();
    PixelsLigne(a, b, QSize(painter_->device()->width(), painter_->device()->height()),
                pen.style() != Qt::SolidLine, encre_, trous_);
    if (QImage* image = ImageDirecte()) {
      if (trousOpaques) Remplit(*image, trous_, CouleurFond);
      Remplit(*image, encre_, Plume.Couleur);
      return;
    }
    // Runs of pixels filled as rectangles: far fewer calls than one point per pixel.
    painter_->setPen(Qt::NoPen);
    if (trousOpaques && !trous_.isEmpty()) {
      painter_->setBrush(CouleurQt(CouleurFond));
      painter_->drawRects(trous_);
    }
    painter_->setBrush(pen.color());
    painter_->drawRects(encre_);
    return;
  }
  // A dotted pen on an opaque background fills its gaps with the background colour.
  if (trousOpaques) {
    QPen fond = pen;
    fond.setStyle(Qt::SolidLine);
    fond.setColor(CouleurQt(CouleurFond));
    painter_->setPen(fond);
    painter_->drawLine(a, b);
  }
  painter_->setPen(pen);
  painter_->drawLine(a, b);
}

void TDCQt::Rectangle(const TRect& r) {
  if (!painter_) return;
  painter_->setPen(PenQt());
  painter_->setBrush(CouleurQt(Brosse.Couleur));
  painter_->drawRect(Contour(VersPeripherique(r)));
}

void TDCQt::Ellipse(const TRect& r) {
  if (!painter_) return;
  painter_->setPen(PenQt());
  painter_->setBrush(CouleurQt(Brosse.Couleur));
  painter_->drawEllipse(Contour(VersPeripherique(r)));
}

void TDCQt::Polygon(const std::vector<TPoint>& points) {
  if (!painter_ || points.empty()) return;
  QPolygon polygone;
  polygone.reserve(static_cast<qsizetype>(points.size()));
  for (const TPoint& p : points) polygone << VersPeripherique(p);
  painter_->setPen(PenQt());
  painter_->setBrush(CouleurQt(Brosse.Couleur));
  painter_->drawPolygon(polygone, Qt::OddEvenFill);
}

bool TDCQt::Arc(const TRect& r, const TPoint& debut, const TPoint& fin) {
  const QRect boite = VersPeripherique(r);
  if (boite.width() < 2 || boite.height() < 2) return false;
  if (!painter_) return true;
  // The ellipse on the same pixels as Ellipse draws it.
  const QRectF ellipse = Contour(boite);
  const double a = AngleParametre(ellipse, VersPeripherique(debut));
  double balayage = AngleParametre(ellipse, VersPeripherique(fin)) - a;
  if (balayage <= 0) balayage += 360;  // counter-clockwise; equal rays give the whole ellipse
  QPainterPath chemin;
  chemin.arcMoveTo(ellipse, a);
  chemin.arcTo(ellipse, a, balayage);
  QPen pen = PenQt();
  if (pen.isCosmetic()) pen.setCapStyle(Qt::SquareCap);  // both ends of an arc are drawn
  painter_->setPen(pen);
  painter_->setBrush(Qt::NoBrush);
  painter_->drawPath(chemin);
  return true;
}

void TDCQt::SetPixel(const TPoint& p, TColor couleur) {
  if (!painter_) return;
  const QPoint d = VersPeripherique(p);
  painter_->fillRect(QRect(d.x(), d.y(), 1, 1), CouleurQt(couleur));
}

void TDCQt::TextOut(const TPoint& p, const std::string& texte) {
  if (!painter_) return;
  const QFont police = PoliceQt();
  const QFontMetricsF m(police, painter_->device());
  const QString t = QString::fromStdString(texte);
  const QPoint ancre = VersPeripherique(p);
  const double largeur = m.horizontalAdvance(t);
  double x = ancre.x();
  switch (Alignement & TA_CENTER) {
    case TA_RIGHT: x -= largeur; break;
    case TA_CENTER: x -= largeur / 2; break;
    default: break;
  }
  double ligneDeBase = ancre.y();
  switch (Alignement & TA_BASELINE) {
    case TA_TOP: ligneDeBase += m.ascent(); break;
    case TA_BOTTOM: ligneDeBase -= m.descent(); break;
    default: break;
  }
  if (ModeFond == TBkMode::Opaque)
    painter_->fillRect(QRectF(x, ligneDeBase - m.ascent(), largeur, m.ascent() + m.descent()),
                       CouleurQt(CouleurFond));
  painter_->setFont(police);
  painter_->setPen(CouleurQt(CouleurTexte));
  painter_->drawText(QPointF(x, ligneDeBase), t);
}

void TDCFenetre::InvalidateRect(const TRect& r, bool) {
  // The widget erases to its background before each paint, whatever the flag says.
  if (!fenetre_) return;
  if (r == TRect())
    fenetre_->update();
  else
    fenetre_->update(QRect(r.left, r.top, r.Width(), r.Height()));
}
