#pragma once
// The timeline's dock under the editor's sheet: shown and hidden from the Options menu, its
// height and whether it shows kept in the settings.
class QMainWindow;
class QFrise;
class TFenCadre2;

inline constexpr unsigned CM_FRISE = 610;              // "&Frise": shows or hides the dock
inline constexpr unsigned CM_ALIGNER_SUR_TEMPS = 611;  // "Aligner sur les &temps"

// Makes the dock in `fenetre`, its two commands at the end of the menu "&Options".
QFrise* InstalleFrise(QMainWindow& fenetre, TFenCadre2& cadre);
