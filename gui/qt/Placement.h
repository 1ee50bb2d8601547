#pragma once
// Where the two windows stand at start, as plain arithmetic on rectangles so that it is
// tested without a screen: the editor's frame where it always started, the player's beside
// it, each replaced by the frame remembered from the last run while that one still shows
// on a present screen.
#include <QList>
#include <QRect>
#include <QSize>

// The editor's frame at a first start.
inline constexpr QRect CADRE_EDITEUR(20, 20, 600, 600);
// The keys of the frames remembered in the settings.
inline constexpr const char* CLE_EDITEUR = "fenetres/editeur";
inline constexpr const char* CLE_LECTEUR = "fenetres/lecteur";
// Pixels left between two windows side by side.
inline constexpr int ECART_FENETRES = 8;

// Whether a remembered frame can be used again: a sensible size, and its top, where the
// title bar is, on one of the screens (available areas) far enough to be taken by the mouse.
bool CadreUtilisable(const QRect& cadre, const QList<QRect>& ecrans);
// The remembered frame if it can be used, else the default one.
QRect CadreRetenu(const QRect& memorise, const QRect& defaut, const QList<QRect>& ecrans);
// A frame of `taille` (no larger than the screen) beside `voisin` on the screen `ecran`: to
// its right, else below it, else to its left, else above it; when none of those fits, the
// one of them that, pushed inside the screen, covers the least of `voisin`.
QRect CadreAcote(const QRect& ecran, const QRect& voisin, QSize taille);
