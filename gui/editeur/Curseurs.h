#pragma once
// The cursors of the editor's sheets. The two squares are drawn here, pixel by pixel, rather
// than taken from the desktop's theme, so that they look the same on every machine.
#include "platform/Dialogues.h"

#include <QCursor>

// Fleche and Attente are the system's arrow and busy cursors; Carre is a hollow square of
// 12 by 12 pixels and CarreCroix the same square with its diagonals, both black, with the
// hot spot at (6, 6).
QCursor CurseurQt(TCurseur c);
