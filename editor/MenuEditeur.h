#pragma once
// The editor's menu "MNU2" and its control bar, as data: the view builds its widgets from
// them and sends every command id to TFenDessin::Trt_Menu of the active sheet.
#include <span>

#include "platform/Menus.h"

// The pop-ups and commands of the menu bar, in order.
std::span<const TMenuDeroulant> MenuEditeur();
// The control bar: 17 buttons and the synchronisation gadget, with their separators.
std::span<const TGadgetBarre> BarreEditeur();

inline constexpr unsigned GADGET_SYNCHRO = 4;
inline constexpr int CARACTERES_GADGET_SYNCHRO = 5;
inline constexpr int CARACTERES_GADGET_POSITION = 24;  // "x , y" and the pilots' notation
inline constexpr const char* BULLE_GADGET_POSITION = "Position de la souris sur la feuille : x , y, puis côté et hauteur comme les pilotes";
// The commands whose menu item carries a check mark.
inline constexpr unsigned CM_MAJ_PERMANENTE = 332;
inline constexpr unsigned CM_MAJ_PARTIELLE = 334;
// Team figures.
inline constexpr unsigned CM_SUIVRE_MENEUR = 620;
inline constexpr unsigned CM_IMPRIMER_CHAQUE_PILOTE = 621;  // carries a check mark
inline constexpr unsigned CM_NOUVEAU_MODELE = 622;

// Commands a modern editor is expected to have, after the menu's first entries.
inline constexpr unsigned CM_NOUVEAU = 262;
inline constexpr unsigned CM_QUITTER = 263;
inline constexpr unsigned CM_EFFACER_RECENTS = 264;
inline constexpr unsigned CM_SUPPRIMER = 265;
// "Fichiers &récents": the view fills this sub-menu from the list, CM_PREMIER_RECENT + i
// for the i-th file still on disk, then CM_EFFACER_RECENTS.
inline constexpr unsigned CM_FICHIERS_RECENTS = 269;
inline constexpr unsigned CM_PREMIER_RECENT = 270;
// The safety checks: their settings' dialog, and the "Alertes" panel shown or hidden.
inline constexpr unsigned CM_SECURITE = 600;
inline constexpr unsigned CM_ALERTES = 601;
