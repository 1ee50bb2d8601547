#pragma once
// Pieces the two windows build alike from their command tables.
#include "platform/Menus.h"

#include <QString>

#include <functional>
#include <span>

class QAction;
class QLabel;
class QToolBar;
class QWidget;

// A recessed, centred text gadget, as wide as `caracteres` characters of its font.
QLabel* Gadget(QWidget* parent, int caracteres);

// Fills a control bar: each button shows the command's action (the menu's, or a new one)
// with the picture `prefixe` + bitmap + ".svg"; each text gadget is made by `texte`. Separators
// are their width times `echelleSeparateurs`.
void ConstruitBarre(QToolBar* barre, std::span<const TGadgetBarre> gadgets, const QString& prefixe,
                    const std::function<QAction*(unsigned)>& action,
                    const std::function<QWidget*(const TGadgetBarre&)>& texte, double echelleSeparateurs = 1.0);
