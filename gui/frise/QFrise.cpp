#include "gui/frise/QFrise.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QToolTip>
#include <QWheelEvent>

#include <cmath>

#include "demo/D3DDemo.h"
#include "demo/player/FenApp.h"
#include "editor/FenDessin.h"
#include "frise/Onde.h"
#include "frise/Selection.h"
#include "frise/Tempo.h"
#include "gui/frise/ChargeurOnde.h"
#include "gui/frise/PeintreFrise.h"
#include "model/Document.h"
#include "model/Elt.h"
#include "model/Nombres.h"
#include "platform/Dialogues.h"
#include "session/Modification.h"

QFrise::QFrise(TFenCadre2& cadre, QWidget* parent)
    : QWidget(parent), cadre_(cadre), chargeur_(new QChargeurOnde(this)), horloge_(new QTimer(this)) {
  setObjectName(QStringLiteral("frise"));
  setFocusPolicy(Qt::ClickFocus);
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMinimumHeight(60);
  connect(chargeur_, &QChargeurOnde::Prete, this, [this] {
    colonnesSales_ = true;
    update();
  });
  // The playhead follows the player at most once per refresh of the display, and is drawn
  // again only when the player's time has changed.
  const double frequence = screen() ? screen()->refreshRate() : 60.0;
  horloge_->setInterval(std::max(1, static_cast<int>(std::lround(1000.0 / std::max(frequence, 1.0)))));
  connect(horloge_, &QTimer::timeout, this, &QFrise::SuitLecteur);
  horloge_->start();
}

void QFrise::DocumentChange() {
  sale_ = true;
  update();
}

const TFrise& QFrise::Frise() {
  if (sale_) {
    frise_ = ConstruitFrise();
    sale_ = false;
  }
  return frise_;
}

void QFrise::Ajuste() {
  const TFrise& f = Frise();
  ChangeVue(::Ajuste(f.Debut, f.Vide() ? f.Debut + 6000 : f.Fin, width()));
  ajustee_ = true;
}

void QFrise::ChangeVue(const TVueTemps& v) {
  vue_ = v;
  colonnesSales_ = true;
  // Snapping counts its 5 pixels at the scale the user sees.
  Alignement.PixelsParCentieme = vue_.PixelsParCentieme;
  update();
}

TDisposition QFrise::Disposition() const {
  return Dispose(width(), height(), static_cast<int>(frise_.Pistes.size()));
}

TTouche QFrise::Touche(const QPoint& p) {
  Frise();
  return ::Touche(frise_, Disposition(), vue_, Reperes, TPoint(p.x(), p.y()));
}

double QFrise::TempsLecteur() {
  if (!Globals.pD3DDemo || Globals.blDemoOK != 1) return std::numeric_limits<double>::quiet_NaN();
  return static_cast<double>(Globals.pD3DDemo->tCourant);
}

void QFrise::DeplaceLecteur(double t) {
  if (!Globals.pD3DDemo || Globals.blDemoOK != 1) return;
  Globals.pD3DDemo->Positionne(static_cast<float>(t));
  if (pFenAppDemo) pFenAppDemo->Redessine();
  SuitLecteur();
}

void QFrise::SuitLecteur() {
  const double t = TempsLecteur();
  if (t == tete_ || (std::isnan(t) && std::isnan(tete_))) return;
  // Only the strips of the old and the new playhead.
  for (double x : {vue_.X(tete_), vue_.X(t)})
    if (std::isfinite(x) && x > -4 && x < width() + 4) update(QRect(static_cast<int>(std::floor(x)) - 2, 0, 5, height()));
  tete_ = t;
}

void QFrise::paintEvent(QPaintEvent*) {
  Frise();
  if (!ajustee_) Ajuste();
  chargeur_->Demande(CheminMusique(_FichierMusique, FichierRoutine));
  if (colonnesSales_) {
    colonnes_.clear();
    if (const TOnde* onde = chargeur_->Onde()) colonnes_ = Colonnes(*onde, vue_, width());
    colonnesSales_ = false;
  }
  QPainter p(this);
  p.fillRect(rect(), Qt::white);
  TSceneFrise s;
  s.Frise = &frise_;
  s.Dispo = Disposition();
  s.Vue = vue_;
  s.Tempo = Tempo;
  s.Reperes = &Reperes;
  s.Onde = colonnes_.empty() ? nullptr : &colonnes_;
  s.Tete = tete_;
  s.Selection = TFenDessin::pEltCourant;
  PeintFrise(p, s);
}

void QFrise::resizeEvent(QResizeEvent* e) {
  QWidget::resizeEvent(e);
  colonnesSales_ = true;
  // Until the user zooms or scrolls, the whole routine stays fitted to the width.
  if (!vueChoisie_) ajustee_ = false;
}

void QFrise::mousePressEvent(QMouseEvent* e) {
  if (e->button() != Qt::LeftButton) return QWidget::mousePressEvent(e);
  const TTouche t = Touche(e->position().toPoint());
  if (t.Zone == TZone::Regle) {
    if (t.Repere >= 0) {
      glisse_ = TGlisse::Repere;
      repere_ = t.Repere;
    } else {
      glisse_ = TGlisse::Lecteur;
      DeplaceLecteur(t.T);
    }
  } else if (t.Zone == TZone::Piste && (t.Fin || t.Bloc)) {
    // A block's end is dragged when its time may be typed; else the click selects the block.
    auto* fin = t.Fin ? const_cast<TElt*>(t.Fin->Elt) : nullptr;
    if (fin && SelectionneElement(cadre_, fin) && PrendFin(fin)) {
      glisse_ = TGlisse::Fin;
      fin_ = fin;
    } else if (t.Bloc) {
      SelectionneElement(cadre_, const_cast<TElt*>(t.Bloc->Elt));
    }
    update();
  }
}

void QFrise::mouseMoveEvent(QMouseEvent* e) {
  const double t = vue_.T(e->position().x());
  if (glisse_ == TGlisse::Rien) {
    Curseur(e->position().toPoint());
  } else if (glisse_ == TGlisse::Fin) {
    if (DeplaceFin(fin_, t)) {
      DocumentChange();
    } else {
      glisse_ = TGlisse::Rien;
      fin_ = nullptr;
    }
  } else if (glisse_ == TGlisse::Lecteur) {
    DeplaceLecteur(t);
  } else if (glisse_ == TGlisse::Repere) {
    if (DeplaceRepere(static_cast<std::size_t>(repere_), Alignement.Actif ? Aligne(t, Tempo, {}, vue_.PixelsParCentieme) : t))
      update();
  }
}

void QFrise::mouseReleaseEvent(QMouseEvent* e) {
  if (glisse_ == TGlisse::Repere || glisse_ == TGlisse::Fin) RythmeChange();
  glisse_ = TGlisse::Rien;
  repere_ = -1;
  fin_ = nullptr;
  Curseur(e->position().toPoint());
}

void QFrise::Curseur(const QPoint& p) {
  const TTouche t = Touche(p);
  // Only the bars of the sheet in front are open: an end on another sheet is tried on the press.
  const TElt* e = t.Fin ? t.Fin->Elt : nullptr;
  const bool deplacable = e && (e->pBD == nullptr || FinDeplacable(e));
  if (deplacable)
    setCursor(Qt::SizeHorCursor);
  else
    unsetCursor();
}

void QFrise::mouseDoubleClickEvent(QMouseEvent* e) {
  if (Touche(e->position().toPoint()).Zone == TZone::Regle) {
    vueChoisie_ = false;
    Ajuste();
  }
}

void QFrise::wheelEvent(QWheelEvent* e) {
  const QPoint d = e->angleDelta();
  if (e->modifiers() & Qt::ControlModifier) {
    vueChoisie_ = true;
    ChangeVue(Zoome(vue_, e->position().x(), std::pow(2.0, d.y() / 240.0)));
  } else {
    // A notch scrolls a tenth of the width.
    const int pas = d.x() != 0 ? d.x() : d.y();
    vueChoisie_ = true;
    TVueTemps v = vue_;
    v.Debut -= pas / 120.0 * width() / 10.0 / vue_.PixelsParCentieme;
    ChangeVue(v);
  }
  e->accept();
}

void QFrise::keyPressEvent(QKeyEvent* e) {
  if (e->key() == Qt::Key_M && !(e->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
    AjouteRepere(std::isnan(tete_) ? vue_.T(width() / 2.0) : tete_);
  } else if (e->key() == Qt::Key_T && !(e->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
    Tape();
  } else {
    QWidget::keyPressEvent(e);
  }
}

void QFrise::AjouteRepere(double t) {
  ::AjouteRepere(t);
  RythmeChange();
}

void QFrise::Tape() {
  const TD3DDemo* s = Globals.pD3DDemo;
  if (!s || Globals.blDemoOK != 1 || s->Mode != MODE_AVANT || !TD3DDemo::MusiqueEnCours) {
    Dialogues().MessageStatut("Tempo : lancez la musique dans le lecteur, puis tapez T en mesure");
    return;
  }
  TTempo tempo;
  if (tapeur_.Tape(static_cast<double>(s->tCourant), tempo)) {
    // A hundredth of a beat per minute is all a routine keeps.
    tempo.Bpm = std::round(tempo.Bpm * 100) / 100;
    tempo.T0 = std::round(tempo.T0);
    Tempo = tempo;
    Dialogues().MessageStatut("Tempo : " + Gcvt(Tempo.Bpm, 6) + " battements par minute");
    RythmeChange();
  } else {
    Dialogues().MessageStatut("Tempo : " + std::to_string(tapeur_.Nombre()) + " frappe(s), il en faut " +
                              std::to_string(TTapeur::TAPES_MIN));
  }
}

void QFrise::RythmeChange() {
  VerifieModification();
  update();
}

void QFrise::contextMenuEvent(QContextMenuEvent* e) {
  const TTouche t = Touche(e->pos());
  if (t.Zone != TZone::Regle) return;
  QMenu menu(this);
  if (t.Repere >= 0) {
    const auto i = static_cast<std::size_t>(t.Repere);
    menu.addAction(QStringLiteral("Renommer le repère..."), this, [this, i] {
      if (i >= Reperes.size()) return;
      if (const auto nom = Dialogues().Saisie("Repère", "Nom du repère :", Reperes[i].Nom); nom && RenommeRepere(i, *nom))
        RythmeChange();
    });
    menu.addAction(QStringLiteral("Supprimer le repère"), this, [this, i] {
      if (SupprimeRepere(i)) RythmeChange();
    });
  } else {
    const double temps = t.T;
    menu.addAction(QStringLiteral("Ajouter un repère ici"), this, [this, temps] { AjouteRepere(temps); });
  }
  menu.addAction(QStringLiteral("Toute la routine"), this, [this] { Ajuste(); });
  menu.exec(e->globalPos());
}

bool QFrise::event(QEvent* e) {
  if (e->type() == QEvent::ToolTip) {
    auto* h = static_cast<QHelpEvent*>(e);
    const TTouche t = Touche(h->pos());
    QString texte;
    if (t.Zone == TZone::Onde)
      texte = chargeur_->Onde() ? QStringLiteral("Musique") : QString::fromStdString(chargeur_->Raison());
    else if (t.Bloc)
      texte = QString::fromStdString(t.Bloc->Nom + " : " + Gcvt(t.Bloc->Debut, 7) + " à " + Gcvt(t.Bloc->Fin, 7));
    else if (t.Repere >= 0)
      texte = QString::fromStdString(Reperes[static_cast<std::size_t>(t.Repere)].Nom);
    if (texte.isEmpty())
      QToolTip::hideText();
    else
      QToolTip::showText(h->globalPos(), texte, this);
    return true;
  }
  return QWidget::event(e);
}
