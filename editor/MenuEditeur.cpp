#include "editor/MenuEditeur.h"

namespace {
constexpr TEntreeMenu Imprimer[] = {
    {256, "&1 x 1", {}, "Ctrl+P"},
    {257, "&2 x 1"},
    {258, "2 &x 2"},
    {259, "&4 x 2"},
    {CM_IMPRIMER_CHAQUE_PILOTE, "Imprimer pour chaque &pilote"},
};

constexpr TEntreeMenu Fichier[] = {
    {251, "&Ouvrir", {}, "Ctrl+O"},
    {252, "&Musique"},
    {249, "&Enregistrer sous...", {}, "Ctrl+Shift+S"},
    {250, "E&nregistrer", {}, "Ctrl+S"},
    {0, nullptr},
    {260, "Enregistrer &feuilles sous..."},
    {261, "In&sérer fichier après feuille active ..."},
    {0, nullptr},
    {254, "Enregistrer &sélection dans figure"},
    {253, "&Insérer figure"},
    {0, nullptr},
    {0, "I&mprimer...", Imprimer},
    {255, "&Mise en page..."},
    {0, nullptr},
    {CM_NOUVEAU, "&Nouveau", {}, "Ctrl+N"},
    {CM_NOUVEAU_MODELE, "&Nouveau d'après un modèle..."},
    {CM_FICHIERS_RECENTS, "Fichiers &récents"},
    {0, nullptr},
    {CM_QUITTER, "&Quitter", {}, "Ctrl+Q"},
};

constexpr TEntreeMenu Construction[] = {
    {301, "&Segment"},
    {305, "&Arc"},
    {309, "&Dérapage"},
    {0, nullptr},
    {307, "&Posé"},
    {304, "A&xel"},
    {306, "&Stop"},
    {308, "&540"},
    {0, nullptr},
    {310, "&Rotation Révo"},
    {312, "Se&gment Révo"},
    {311, "Ar&c Révo"},
    {0, nullptr},
    {320, "Aller à"},
};

constexpr TEntreeMenu Synchronisation[] = {
    {330, "&Ajouter Synchro"},
    {331, "&Supprimer Synchro"},
};

constexpr TEntreeMenu Edition[] = {
    {333, "&Annuler dernière action", {}, "Ctrl+Z"},
    {0, nullptr},
    {336, "&Copier", {}, "Ctrl+C"},
    {337, "Co&ller...", {}, "Ctrl+V"},
    {CM_SUIVRE_MENEUR, "Suivre le &meneur..."},
    {0, nullptr},
    {338, "&Insérer une feuille"},
    {339, "&Supprimer une feuille"},
    {0, nullptr},
    {CM_SUPPRIMER, "Supprimer &la sélection", {}, "Del"},
};

constexpr TEntreeMenu Options[] = {
    {CM_MAJ_PERMANENTE, "&Mise à jour permanente"},
    {CM_MAJ_PARTIELLE, "&Mise à jour partielle"},
    {335, "&Calcul temps"},
    {0, nullptr},
    {CM_SECURITE, "&Sécurité..."},
    {CM_ALERTES, "A&lertes"},
};

constexpr TMenuDeroulant Menu[] = {
    {"&Fichier", Fichier},
    {"&Construction", Construction},
    {"&Synchronisation", Synchronisation},
    {"&Edition", Edition},
    {"&Ajout CV", {}, 302},
    {"&Démo", {}, 303, "F5"},
    {"&Options", Options},
};

constexpr TGadgetBarre Bouton(int bitmap, unsigned id, const char* bulle) {
  return {TGenreGadget::Bouton, bitmap, id, 0, bulle};
}
constexpr TGadgetBarre Separateur() { return {TGenreGadget::Separateur, 0, 0, 20}; }

constexpr TGadgetBarre Barre[] = {
    Bouton(399, 250, "Enregistrer la routine"),
    Separateur(),
    Bouton(400, 301, "Tracer des segments"),
    Bouton(405, 305, "Tracer des arcs de cercle"),
    Bouton(409, 309, "Tracer des dérapages"),
    Separateur(),
    Bouton(407, 307, "Insérer un posé après l'élément sélectionné"),
    Bouton(404, 304, "Insérer un axel après l'élément sélectionné"),
    Bouton(406, 306, "Insérer un stop après l'élément sélectionné"),
    Bouton(408, 308, "Insérer un 540 après l'élément sélectionné"),
    Separateur(),
    Bouton(410, 310, "Insérer une rotation révo après l'élément sélectionné"),
    Bouton(412, 312, "Tracer des segments révo"),
    Bouton(411, 311, "Tracer des arcs révo"),
    Separateur(),
    Bouton(420, 330, "Ajouter des synchronisations à l'élément sélectionné"),
    {TGenreGadget::Texte, 0, GADGET_SYNCHRO, CARACTERES_GADGET_SYNCHRO,
     "Élément père des synchronisations : numéro / temps"},
    Bouton(421, 331, "Supprimer des synchronisations"),
    Separateur(),
    Bouton(423, 333, "Annuler la dernière action"),
    Separateur(),
    Bouton(425, 335, "Recalculer les temps et les vitesses"),
    Separateur(),
    Bouton(401, 302, "Ajouter un cerf-volant"),
    Separateur(),
    Bouton(403, 303, "Relancer la démonstration dans le lecteur"),
    Separateur(),
};
}  // namespace

std::span<const TMenuDeroulant> MenuEditeur() { return Menu; }
std::span<const TGadgetBarre> BarreEditeur() { return Barre; }
