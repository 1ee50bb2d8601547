#pragma once
// The timeline's view in the editor: a thin view over frise/, painted by PeintFrise. It follows
// the document (DocumentChange) and the player's clock, moves the player, selects elements,
// sets marks and the tempo.
#include <QWidget>

#include <limits>
#include <vector>

#include "frise/Battements.h"
#include "frise/Echelle.h"
#include "frise/Onde.h"
#include "frise/Pistes.h"

class QChargeurOnde;
class QTimer;
class TElt;
class TFenCadre2;

class QFrise : public QWidget {
  Q_OBJECT
public:
  QFrise(TFenCadre2& cadre, QWidget* parent = nullptr);

  // The document may have changed: the lanes are built again at the next paint.
  void DocumentChange();
  const TVueTemps& Vue() const { return vue_; }
  const TFrise& Frise();
  // The whole routine in the width.
  void Ajuste();
  // What "M" and "T" do.
  void AjouteRepere(double t);
  void Tape();
  QChargeurOnde* Chargeur() const { return chargeur_; }
  QSize sizeHint() const override { return {800, 200}; }

protected:
  void paintEvent(QPaintEvent* e) override;
  void resizeEvent(QResizeEvent* e) override;
  void mousePressEvent(QMouseEvent* e) override;
  void mouseMoveEvent(QMouseEvent* e) override;
  void mouseReleaseEvent(QMouseEvent* e) override;
  void mouseDoubleClickEvent(QMouseEvent* e) override;
  void wheelEvent(QWheelEvent* e) override;
  void keyPressEvent(QKeyEvent* e) override;
  void contextMenuEvent(QContextMenuEvent* e) override;
  bool event(QEvent* e) override;

private:
  TDisposition Disposition() const;
  TTouche Touche(const QPoint& p);
  // The player's time, NaN without a scene.
  static double TempsLecteur();
  void DeplaceLecteur(double t);
  void SuitLecteur();
  void ChangeVue(const TVueTemps& v);
  void RythmeChange();
  // The pointer's shape over p: a double arrow over a block's end that a drag moves.
  void Curseur(const QPoint& p);

  TFenCadre2& cadre_;
  TFrise frise_;
  bool sale_ = true;
  bool ajustee_ = false;
  bool vueChoisie_ = false;  // zoomed or scrolled by the user: no longer fitted on a resize
  TVueTemps vue_;
  QChargeurOnde* chargeur_;
  std::vector<TColonne> colonnes_;
  bool colonnesSales_ = true;
  QTimer* horloge_;
  double tete_ = std::numeric_limits<double>::quiet_NaN();
  TTapeur tapeur_;
  enum class TGlisse { Rien, Lecteur, Repere, Fin } glisse_ = TGlisse::Rien;
  int repere_ = -1;
  TElt* fin_ = nullptr;  // the element whose end is dragged
};
