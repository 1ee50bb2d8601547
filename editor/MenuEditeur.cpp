#include "editor/MenuEditeur.h"

namespace {
constexpr TEntreeMenu Imprimer[] = {
    {256, "&1 x 1", {}, "Ctrl+P"},
    {257, "&2 x 1"},
    {258, "2 &x 2"},
    {259, "&4 x 2"},
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

constexpr TGadgetBarre Bouton(int bitmap, unsigned id) { return {TGenreGadget::Bouton, bitmap, id, 0}; }
constexpr TGadgetBarre Separateur() { return {TGenreGadget::Separateur, 0, 0, 20}; }

constexpr TGadgetBarre Barre[] = {
    Bouton(399, 250),
    Separateur(),
    Bouton(400, 301),
    Bouton(405, 305),
    Bouton(409, 309),
    Separateur(),
    Bouton(407, 307),
    Bouton(404, 304),
    Bouton(406, 306),
    Bouton(408, 308),
    Separateur(),
    Bouton(410, 310),
    Bouton(412, 312),
    Bouton(411, 311),
    Separateur(),
    Bouton(420, 330),
    {TGenreGadget::Texte, 0, GADGET_SYNCHRO, CARACTERES_GADGET_SYNCHRO},
    Bouton(421, 331),
    Separateur(),
    Bouton(423, 333),
    Separateur(),
    Bouton(425, 335),
    Separateur(),
    Bouton(401, 302),
    Separateur(),
    Bouton(403, 303),
    Separateur(),
};
}  // namespace

std::span<const TMenuDeroulant> MenuEditeur() { return Menu; }
std::span<const TGadgetBarre> BarreEditeur() { return Barre; }
