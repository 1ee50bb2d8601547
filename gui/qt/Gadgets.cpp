#include "gui/qt/Gadgets.h"

#include <QAction>
#include <QFontMetrics>
#include <QIcon>
#include <QLabel>
#include <QToolBar>

QLabel* Gadget(QWidget* parent, int caracteres) {
  auto* l = new QLabel(parent);
  l->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  l->setAlignment(Qt::AlignCenter);
  l->setMinimumWidth(QFontMetrics(l->font()).horizontalAdvance(QLatin1Char('0')) * caracteres + 8);
  return l;
}

void ConstruitBarre(QToolBar* barre, std::span<const TGadgetBarre> gadgets, const QString& prefixe,
                    const std::function<QAction*(unsigned)>& action,
                    const std::function<QWidget*(const TGadgetBarre&)>& texte, double echelleSeparateurs) {
  for (const TGadgetBarre& g : gadgets) {
    switch (g.Genre) {
      case TGenreGadget::Bouton: {
        // The menu holds the command's action; the button is another view of it.
        QAction* a = action(g.Id);
        a->setIcon(QIcon(prefixe + QString::number(g.Bitmap) + QStringLiteral(".svg")));
        // Shown on the button only: the menu keeps showing no tip.
        if (g.Bulle) a->setToolTip(QString::fromUtf8(g.Bulle));
        barre->addAction(a);
        break;
      }
      case TGenreGadget::Separateur: {
        auto* espace = new QWidget(barre);
        espace->setFixedWidth(static_cast<int>(g.Largeur * echelleSeparateurs));
        barre->addWidget(espace);
        break;
      }
      case TGenreGadget::Texte: {
        QWidget* w = texte(g);
        if (g.Bulle) w->setToolTip(QString::fromUtf8(g.Bulle));
        barre->addWidget(w);
        break;
      }
    }
  }
}
