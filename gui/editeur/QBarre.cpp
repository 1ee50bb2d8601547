#include "gui/editeur/QBarre.h"

#include "editor/bars/BDAllerA.h"
#include "editor/bars/BDArc.h"
#include "editor/bars/BDFigure.h"
#include "editor/bars/BDManoeuvre.h"
#include "editor/bars/BDSegment.h"
#include "model/Document.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QTimer>

namespace {

// One item of a bar's form: a control of the bar, or with id 0 a caption before an edit.
// x and width in dialog units.
struct TItem {
  int id;
  const char* texte;
  int x;
  int largeur;
};

struct TGabarit {
  std::vector<TItem> items;  // after the common left part
  std::vector<int> tabulation;
};

const std::vector<TItem>& PartieCommune() {
  static const std::vector<TItem> items = {
      {IDC_NOM, "", 0, 36},   {IDC_CONTRAINTE, "", 44, 50}, {0, "x :", 100, 12}, {IDC_X, "", 112, 25},
      {0, "y :", 140, 12},    {IDC_Y, "", 152, 25},         {0, "t : ", 180, 12}, {IDC_T, "", 192, 48},
  };
  return items;
}

// The form of each kind of bar, from x 244 on, and its tab order.
const TGabarit& Gabarit(const TBD* bd) {
  static const TGabarit pt{{}, {IDC_X, IDC_Y, IDC_T}};
  static const TGabarit segment{{{0, "vit : ", 244, 16}, {IDC_V, "", 260, 25}}, {IDC_X, IDC_Y, IDC_T}};
  static const TGabarit segRevo{{{0, "vit : ", 252, 20},
                                 {IDC_V, "", 272, 25},
                                 {0, "angle :", 300, 24},
                                 {IDC_ANGLE, "", 324, 32},
                                 {IDC_ANGLE_CUMULE, "", 360, 32}},
                                {IDC_ANGLE, IDC_X, IDC_Y, IDC_T}};
  static const TGabarit axel{{{0, "duree : ", 244, 28}, {IDC_DUREE, "", 272, 48}, {IDC_GAUCHE, "", 324, 50}},
                             {IDC_T, IDC_DUREE}};
  static const TGabarit rot{{{0, "duree : ", 244, 28},
                             {IDC_DUREE, "", 272, 24},
                             {0, "angle :", 296, 28},
                             {IDC_ANGLE, "", 324, 32},
                             {IDC_ANGLE_CUMULE, "", 360, 32}},
                            {IDC_ANGLE, IDC_X, IDC_Y, IDC_T, IDC_DUREE}};
  static const TGabarit arc{{{0, "vit : ", 244, 16},
                             {IDC_V, "", 260, 24},
                             {IDC_TYPE_ARC, "", 288, 50},
                             {0, "rayon : ", 340, 24},
                             {IDC_RAYON, "", 364, 25},
                             {0, "angle : ", 392, 24},
                             {IDC_ANGLE, "", 416, 25}},
                            {IDC_T, IDC_RAYON, IDC_ANGLE}};
  static const TGabarit arcRevo{{{0, "vit : ", 252, 20},
                                 {IDC_V, "", 272, 24},
                                 {0, "angle :", 300, 24},
                                 {IDC_ANGLE_REVO, "", 324, 32},
                                 {IDC_ANGLE_CUMULE, "", 360, 32},
                                 {IDC_TYPE_ARC, "", 396, 44},
                                 {0, "rayon : ", 444, 24},
                                 {IDC_RAYON, "", 468, 25},
                                 {0, "angle : ", 496, 24},
                                 {IDC_ANGLE, "", 520, 25}},
                                {IDC_ANGLE_REVO, IDC_RAYON, IDC_ANGLE, IDC_T}};
  static const TGabarit stop{{{0, "duree : ", 244, 28}, {IDC_DUREE, "", 272, 48}}, {IDC_T, IDC_DUREE}};
  static const TGabarit pose{{{0, "vit : ", 244, 16},
                              {IDC_V, "", 260, 25},
                              {0, "duree : ", 284, 28},
                              {IDC_DUREE, "", 312, 40},
                              {IDC_TYPE_POSE, "", 356, 50}},
                             {IDC_X, IDC_T, IDC_DUREE}};
  static const TGabarit allerA{{{0, "duree : ", 244, 28},
                                {IDC_DUREE, "", 272, 48},
                                {0, "vecteurZ :", 324, 36},
                                {IDC_VECTEUR_Z, "", 360, 25},
                                {IDC_VECTEUR_Z + 1, "", 384, 25},
                                {IDC_VECTEUR_Z + 2, "", 408, 25},
                                {0, "vecteurY :", 436, 36},
                                {IDC_VECTEUR_Y, "", 472, 25},
                                {IDC_VECTEUR_Y + 1, "", 496, 25},
                                {IDC_VECTEUR_Y + 2, "", 520, 25},
                                {0, "z :", 548, 12},
                                {IDC_Z, "", 560, 25}},
                               {IDC_X, IDC_Y, IDC_T, IDC_DUREE, IDC_VECTEUR_Z, IDC_VECTEUR_Z + 1, IDC_VECTEUR_Z + 2,
                                IDC_VECTEUR_Y, IDC_VECTEUR_Y + 1, IDC_VECTEUR_Y + 2, IDC_Z}};
  static const TGabarit figure{{{0, "duree : ", 244, 28}, {IDC_DUREE, "", 272, 48}, {IDC_TRANSFORMATION, "", 328, 50}},
                               {IDC_T}};
  // The derived bars first: each shares its base's form but for these.
  if (dynamic_cast<const TBD_ArcRevo*>(bd)) return arcRevo;
  if (dynamic_cast<const TBD_Arc*>(bd)) return arc;
  if (dynamic_cast<const TBD_SegRevo*>(bd)) return segRevo;
  if (dynamic_cast<const TBD_Segment*>(bd)) return segment;
  if (dynamic_cast<const TBD_Axel*>(bd)) return axel;
  if (dynamic_cast<const TBD_Rot*>(bd)) return rot;
  if (dynamic_cast<const TBD_Stop*>(bd)) return stop;
  if (dynamic_cast<const TBD_Pose*>(bd)) return pose;
  if (dynamic_cast<const TBD_AllerA*>(bd)) return allerA;
  if (dynamic_cast<const TBD_Figure*>(bd)) return figure;
  return pt;
}

QColor Qt_(TColor c) { return QColor(c.Red(), c.Green(), c.Blue()); }

// The bars' font: the application's at 9 points, the size the forms were drawn for.
QFont PoliceBarre() {
  QFont police = QApplication::font();
  police.setPointSize(9);
  return police;
}

}  // namespace

// The name label: its text on the kite's colour.
class QBarre::TStaticCoul : public QLabel {
public:
  explicit TStaticCoul(QWidget* parent) : QLabel(parent) { setAutoFillBackground(true); }
  void SetColor(TColor c) {
    QPalette p = palette();
    p.setColor(QPalette::Window, Qt_(c));
    p.setColor(QPalette::WindowText, Qt::black);
    setPalette(p);
  }
};

// An edit of a bar: its value is taken when it loses the focus and on Enter.
class QBarre::TEditTBD : public QLineEdit {
public:
  TEditTBD(QBarre* barre, int id) : QLineEdit(barre), barre_(barre), id_(id) {
    setMaxLength(static_cast<int>(LONGUEUR_SAISIE_BD));
  }

protected:
  void focusInEvent(QFocusEvent* evenement) override {
    QLineEdit::focusInEvent(evenement);
    // Typing replaces the value. A click would place the cursor after this: select once
    // the click is done.
    if (ChargementFichierEnCours) return;
    if (TBD* bd = barre_->bd_) bd->Focus = id_;
    selectAll();
    QTimer::singleShot(0, this, [this] {
      if (hasFocus()) selectAll();
    });
  }
  void focusOutEvent(QFocusEvent* evenement) override {
    QLineEdit::focusOutEvent(evenement);
    deselect();
    setCursorPosition(0);
    // A menu that pops up over the edit does not take the value.
    if (evenement->reason() == Qt::PopupFocusReason) return;
    if (TBD* bd = barre_->bd_) bd->Tape(id_, text().toStdString());
  }
  void keyPressEvent(QKeyEvent* evenement) override {
    TBD* bd = barre_->bd_;
    if (!bd) return QLineEdit::keyPressEvent(evenement);
    switch (evenement->key()) {
      case Qt::Key_Return:
      case Qt::Key_Enter:
        evenement->accept();
        bd->Entree(id_, text().toStdString());
        return;
      case Qt::Key_Escape:
        evenement->accept();
        // The bar and this edit may be gone on return: nothing of them is touched after.
        bd->Echap();
        return;
      default: QLineEdit::keyPressEvent(evenement);
    }
  }

private:
  QBarre* barre_;
  int id_;
};

QBarre::QBarre(TBD* bd, QWidget* parent) : QWidget(parent), bd_(bd) {
  setFont(PoliceBarre());
  // As the dialog manager measures a font: the mean width of the letters and the height.
  const QFontMetrics m(font());
  const QString lettres = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
  uniteX_ = (m.horizontalAdvance(lettres) / 26 + 1) / 2;
  uniteY_ = m.height();
  setAttribute(Qt::WA_StyledBackground, false);
  setAutoFillBackground(true);
  // Square, flat controls: the style's padding would not fit in 9 dialog units.
  setStyleSheet(QStringLiteral(
      "QLineEdit { border: 1px solid #808080; padding: 0px; margin: 0px; background: white; }"
      "QLineEdit[readOnly=\"true\"] { background: #f0f0f0; }"
      "QPushButton { border: 1px solid #606060; padding: 0px; margin: 0px; background: #e8e8e8; }"
      "QPushButton:pressed { background: #c8c8c8; }"
      "QPushButton:disabled { color: #909090; }"
      "QLabel { padding: 0px; margin: 0px; }"));
  Construit();
  bd_->HauteurBarre = height();
  bd_->Vue = this;
}

QBarre::~QBarre() { Lache(); }

void QBarre::Lache() {
  if (bd_) bd_->Vue = nullptr;
  bd_ = nullptr;
}

int QBarre::PxX(int du) const { return (du * uniteX_ + 2) / 4; }
int QBarre::PxY(int du) const { return (du * uniteY_ + 4) / 8; }

QWidget* QBarre::Controle(int id) const {
  const auto i = controles_.find(id);
  return i == controles_.end() ? nullptr : i->second;
}

void QBarre::Construit() {
  const TGabarit& gabarit = Gabarit(bd_);
  std::vector<TItem> items = PartieCommune();
  items.insert(items.end(), gabarit.items.begin(), gabarit.items.end());
  const std::set<int> ids = bd_->Controles();
  constexpr int bord = 1;
  QLabel* legende = nullptr;  // the caption before the next control, which says the same
  for (const TItem& item : items) {
    const int x = bord + PxX(item.x);
    const int l = PxX(item.largeur);
    if (item.id == 0) {
      legende = new QLabel(QString::fromUtf8(item.texte), this);
      legende->setGeometry(x, bord, l, PxY(8));
      continue;
    }
    const QString bulle = QString::fromStdString(bd_->Bulle(item.id));
    if (legende) legende->setToolTip(bulle);
    legende = nullptr;
    if (!ids.count(item.id)) continue;
    QWidget* w = nullptr;
    if (item.id == IDC_NOM) {
      auto* nom = new TStaticCoul(this);
      nom->setGeometry(x, bord, l, PxY(8));
      w = nom;
    } else if (bd_->EstBouton(item.id)) {
      auto* bouton = new QPushButton(this);
      // A click takes the focus, so that the edit left runs its handler; Tab skips it.
      bouton->setFocusPolicy(Qt::ClickFocus);
      bouton->setGeometry(x, bord, l, PxY(10));
      const int id = item.id;
      connect(bouton, &QPushButton::clicked, this, [this, id] {
        if (bd_) bd_->Clic(id);
      });
      w = bouton;
    } else {
      auto* edit = new TEditTBD(this, item.id);
      edit->setGeometry(x, bord, l, PxY(9));
      w = edit;
    }
    w->setObjectName(QStringLiteral("controle%1").arg(item.id));
    w->setToolTip(bulle);
    controles_[item.id] = w;
  }
  // Only the edits of the tab order are reached by Tab; the others by a click.
  for (const auto& [id, w] : controles_)
    if (qobject_cast<QLineEdit*>(w)) w->setFocusPolicy(Qt::ClickFocus);
  for (int id : gabarit.tabulation)
    if (QWidget* w = Controle(id)) {
      w->setFocusPolicy(Qt::StrongFocus);
      tabulation_.push_back(id);
    }
  resize(2 * bord + PxX(800), 2 * bord + PxY(10));
  for (const auto& [id, w] : controles_) Change(id);
  Fond();
  Place();
}

void QBarre::SetX(int x) {
  x_ = x;
  Place();
}

void QBarre::Place() {
  if (!bd_) return;
  move(x_, bd_->Y);
  setVisible(bd_->Visible);
}

void QBarre::Fond() {
  QPalette p = palette();
  p.setColor(QPalette::Window, Qt_(bd_->Couleur));
  setPalette(p);
}

void QBarre::Change(int id) {
  if (!bd_) return;
  if (id == 0) {
    Fond();
    Place();
    return;
  }
  QWidget* w = Controle(id);
  const QString texte = QString::fromStdString(bd_->GetDlgItemText(id));
  if (auto* nom = dynamic_cast<TStaticCoul*>(w)) {
    nom->setText(texte);
    nom->SetColor(bd_->CouleurNom());
  } else if (auto* bouton = qobject_cast<QPushButton*>(w)) {
    bouton->setText(texte);
    bouton->setEnabled(bd_->EstActif(id));
  } else if (auto* edit = qobject_cast<QLineEdit*>(w)) {
    if (edit->text() != texte) edit->setText(texte);
    const bool lectureSeule = bd_->EstLectureSeule(id);
    if (edit->isReadOnly() != lectureSeule) {
      edit->setReadOnly(lectureSeule);
      // The style sheet reads the property only when it polishes the widget.
      edit->style()->unpolish(edit);
      edit->style()->polish(edit);
    }
    // What the program writes is selected, so that typing replaces it; not while a file
    // loads. Qt would show the selection of an edit without the focus too: that one shows
    // the start of its text, and is selected as it takes the focus.
    if (edit->hasFocus() && !ChargementFichierEnCours)
      edit->selectAll();
    else if (!edit->hasFocus())
      edit->setCursorPosition(0);
  }
}

void QBarre::Detruite() {
  // From the bar's destructor: nothing of it may be used from here on, not even by the
  // focus leaving an edit as the widget hides.
  bd_ = nullptr;
  hide();
  deleteLater();
}

void QBarre::mousePressEvent(QMouseEvent* evenement) {
  evenement->accept();
  if (!bd_) return;
  const QPointer<QBarre> moi(this);
  bd_->ClicFond(evenement->modifiers() & Qt::ShiftModifier);
  if (!moi || !bd_ || !bd_->Focus) return;
  if (QWidget* w = Controle(bd_->Focus)) w->setFocus(Qt::MouseFocusReason);
}

void QBarre::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setPen(Qt::black);
  p.drawRect(rect().adjusted(0, 0, -1, -1));
}

bool QBarre::focusNextPrevChild(bool suivant) {
  // Tab goes round the bar's own fields, as in a dialog of its own.
  if (tabulation_.empty()) return false;
  std::size_t i = 0;
  for (; i < tabulation_.size(); ++i)
    if (Controle(tabulation_[i])->hasFocus()) break;
  const std::size_t n = tabulation_.size();
  const std::size_t j = i == n ? 0 : (suivant ? (i + 1) % n : (i + n - 1) % n);
  Controle(tabulation_[j])->setFocus(suivant ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  return true;
}
