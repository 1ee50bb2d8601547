// The readers of the routine and figure text format.
//
// Choices for what the format leaves open, made so that no file can crash the program,
// read out of bounds or hang:
// - a line of more than 255 characters is not read, and the status line says so;
// - a line whose fields, up to the last field of its record, are not all there and
//   readable (a number too large for an int counts as unreadable) is not read either;
// - a kite number outside 0 to 5 or a sheet number outside 1 to 199 drops the line;
// - so does a time, a duration or an angle of a turn beyond what a routine can hold
//   (model/Bornes.h), not a number or infinite: the flight could not be built from it;
// - a father's kite or index that names no element makes no link (TFenDessin::Synchronise);
// - a figure that contains itself, directly or through others, is read as an empty figure.
#include "files/Lecture.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "files/Lignes.h"
#include "model/Bornes.h"
#include "model/Document.h"
#include "model/Outils.h"
#include "model/elements/AllerA.h"
#include "model/elements/Arc.h"
#include "model/elements/Axel.h"
#include "model/elements/Derapage.h"
#include "model/elements/Figure.h"
#include "model/elements/Pose.h"
#include "model/elements/Pt.h"
#include "model/elements/Rot.h"
#include "model/elements/Segment.h"
#include "model/elements/Stop.h"
#include "frise/Tempo.h"
#include "platform/Dialogues.h"
#include "securite/Reglages.h"

namespace {

enum class TRecord { Segment, SegRevo, Point, Axel, Rot, Arc, ArcRevo, Stop, Pose, Derapage, T540, AllerA, Figure };

struct TDefinition {
  std::string_view Nom;
  TRecord Record;
  // The class fields after the common ones: f float, t duration, a angle of a turn (both
  // floats), d int, s word.
  std::string_view Champs;
};

// In the order in which a line's first word is compared.
constexpr std::array<TDefinition, 13> Definitions = {{
    {"SEGMENT", TRecord::Segment, ""},
    {"SEGREVO", TRecord::SegRevo, "a"},
    {"POINT", TRecord::Point, ""},
    {"AXEL", TRecord::Axel, "dt"},
    {"ROT", TRecord::Rot, "ta"},
    {"ARC", TRecord::Arc, "ff"},
    {"ARCREVO", TRecord::ArcRevo, "ffa"},
    {"STOP", TRecord::Stop, "t"},
    {"POSE", TRecord::Pose, "td"},
    {"DERAPAGE", TRecord::Derapage, ""},
    {"540", TRecord::T540, "dt"},
    {"ALLERA", TRecord::AllerA, "tfffffff"},
    {"FIGURE", TRecord::Figure, "tsd"},
}};

// One element line, as read. Nothing in it is allocated: a routine has many thousand lines.
struct TLigne {
  const TDefinition* Def = nullptr;
  int Cv = 0, Num = 0, Contrainte = 0, Feuille = 0;
  float t = 0, x = 0, y = 0, V = 0;
  std::array<float, 8> Reels{};  // as many as the longest record's fields
  std::array<int, 1> Entiers{};
  std::string_view Mot;  // in the line read
  int CvPere = -1, IndexPere = -1;
};

// Lines of the file being read whose first word is one of the format's, readable or not: a
// file with none is not a routine, whatever it holds.
int LignesReconnues = 0;

// The header lines: the team, the music and the safety settings, in any reader mode and anywhere in the file.
bool LitEntete(std::string_view mot, TLecteurChamps& champs) {
  if (mot == "TEAM") {
    int team = 0;
    if (champs.Entier(team)) Team = team;
    return true;
  }
  if (mot == "MUSIQUE") {
    // The rest of the line: a path may hold blanks, and the writer ends the line with one.
    std::string chemin;
    if (champs.FinDeLigne(chemin)) {
      const std::size_t n = std::min(chemin.size(), static_cast<std::size_t>(TAILLE_FICHIER_MUSIQUE - 1));
      chemin.copy(_FichierMusique, n);
      _FichierMusique[n] = '\0';
    }
    return true;
  }
  if (mot == "SECURITE") {
    if (!LitLigneSecurite(champs)) TFenDessin::MessageErreur("Ligne SECURITE illisible : ignorée");
    return true;
  }
  if (mot == "TEMPO") {
    if (!LitLigneTempo(champs)) TFenDessin::MessageErreur("Ligne TEMPO incorrecte (de 0 à 400 battements par minute) : ignorée");
    return true;
  }
  if (mot == "REPERE") {
    if (!LitLigneRepere(champs)) TFenDessin::MessageErreur("Ligne REPERE illisible : ignorée");
    return true;
  }
  return false;
}

void SignaleIllisible(const TLigne& l) {
  TFenDessin::MessageErreur("Ligne " + std::string(l.Def->Nom) + " illisible : ignorée");
}

// Reads the fields of an element line after its first word; false when the line is broken.
bool LitChamps(TLecteurChamps& champs, TLigne& l) {
  if (!(champs.Entier(l.Cv) && champs.Entier(l.Num) && champs.Entier(l.Contrainte) && champs.Entier(l.Feuille) &&
        champs.Reel(l.t) && champs.Reel(l.x) && champs.Reel(l.y) && champs.Reel(l.V)))
    return false;
  std::size_t reels = 0, entiers = 0;
  for (char c : l.Def->Champs) {
    bool lu = false;
    if (c == 'f' || c == 't' || c == 'a')
      lu = champs.Reel(l.Reels[reels++]);
    else if (c == 'd')
      lu = champs.Entier(l.Entiers[entiers++]);
    else
      lu = champs.Mot(l.Mot);
    if (!lu) return false;
  }
  // The synchronisation tail is optional; a kite without its index makes no link.
  if (l.Def->Record != TRecord::Point && champs.Entier(l.CvPere) && !champs.Entier(l.IndexPere)) l.CvPere = -1;
  return true;
}

// Whether the line's time, durations and angles are all within what a routine can hold.
bool DansLesBornes(const TLigne& l) {
  if (!TempsAdmis(l.t)) return false;
  std::size_t reels = 0;
  for (char c : l.Def->Champs) {
    if (c == 'd' || c == 's') continue;
    const float r = l.Reels[reels++];
    if ((c == 't' && !TempsAdmis(r)) || (c == 'a' && !AngleAdmis(r))) return false;
  }
  return true;
}

// Builds the element of a line on `fen`, for the track `liste`, without listing it.
TElt* Construit(const TLigne& l, TFenDessin* fen, TListeCV* liste) {
  const TPoint p(Tronque(l.x), Tronque(l.y));
  const auto& r = l.Reels;
  switch (l.Def->Record) {
    case TRecord::Point: return new TPt(p, fen, nullptr, liste, true);
    case TRecord::Segment: return new TSegment(p, fen, nullptr, liste, true);
    case TRecord::Derapage: return new TDerapage(p, fen, nullptr, liste, true);
    case TRecord::SegRevo: return new TSegRevo(p, fen, nullptr, liste, r[0], true);
    case TRecord::Arc: return new TArc(p, fen, nullptr, liste, true);
    case TRecord::ArcRevo: return new TArcRevo(p, fen, nullptr, liste, r[2], true);
    case TRecord::Axel: return new TAxel(p, fen, nullptr, liste, true);
    case TRecord::T540: return new T540(p, fen, nullptr, liste, true);
    case TRecord::Rot: return new TRot(p, fen, nullptr, liste, r[1], true);
    case TRecord::Stop: return new TStop(p, fen, nullptr, liste, true);
    case TRecord::Pose: return new TPose(p, fen, nullptr, liste, true);
    case TRecord::AllerA: return new TAllerA(p, fen, nullptr, liste, true);
    case TRecord::Figure: return new TFigure(p, fen, nullptr, liste, std::string(l.Mot).c_str(), true);
  }
  return nullptr;
}

// Gives the element the values of its line. Only the lines and arcs take the speed.
void Remplit(TElt* e, const TLigne& l) {
  const auto& r = l.Reels;
  const auto& d = l.Entiers;
  switch (l.Def->Record) {
    case TRecord::Point: static_cast<TPt*>(e)->Set(l.Num, l.Contrainte, l.t); break;
    case TRecord::Segment: static_cast<TSegment*>(e)->Set(l.Num, l.Contrainte, l.t, l.V); break;
    case TRecord::Derapage: static_cast<TDerapage*>(e)->Set(l.Num, l.Contrainte, l.t, l.V); break;
    case TRecord::SegRevo: static_cast<TSegRevo*>(e)->Set(l.Num, l.Contrainte, l.t, l.V, r[0]); break;
    case TRecord::Arc: static_cast<TArc*>(e)->Set(l.Num, l.Contrainte, l.t, l.V, r[0], r[1]); break;
    case TRecord::ArcRevo: static_cast<TArcRevo*>(e)->Set(l.Num, l.Contrainte, l.t, l.V, r[0], r[1], r[2]); break;
    case TRecord::Axel:
    case TRecord::T540: static_cast<TManoeuvreCote*>(e)->Set(l.Num, l.Contrainte, l.t, d[0] != 0, r[0]); break;
    case TRecord::Rot: static_cast<TRot*>(e)->Set(l.Num, l.Contrainte, l.t, r[0], r[1]); break;
    case TRecord::Stop: static_cast<TStop*>(e)->Set(l.Num, l.Contrainte, l.t, r[0]); break;
    case TRecord::Pose: static_cast<TPose*>(e)->Set(l.Num, l.Contrainte, l.t, r[0], d[0]); break;
    case TRecord::AllerA:
      static_cast<TAllerA*>(e)->Set(l.Num, l.Contrainte, l.t, r[0], r[1], r[2], r[3], r[4], r[5], r[6], r[7]);
      break;
    case TRecord::Figure: static_cast<TFigure*>(e)->Set(l.Num, l.Contrainte, l.t, r[0], d[0]); break;
  }
}

// Reads an element line; false when it is none (unknown word, header, or broken line).
bool LitElement(std::string_view texte, bool avecEntete, TLigne& l) {
  TLecteurChamps champs(texte);
  std::string_view mot;
  if (!champs.Mot(mot)) return false;
  if (avecEntete && LitEntete(mot, champs)) {
    ++LignesReconnues;
    return false;
  }
  const auto def = std::find_if(Definitions.begin(), Definitions.end(), [&](const TDefinition& d) { return d.Nom == mot; });
  if (def == Definitions.end()) return false;  // a comment or a record of another program
  ++LignesReconnues;
  l.Def = &*def;
  if (!LitChamps(champs, l) || l.Cv < 0 || l.Cv >= NB_CV_MAX || l.Feuille < 1 || l.Feuille >= NB_FEUILLES_MAX) {
    SignaleIllisible(l);
    return false;
  }
  if (!DansLesBornes(l)) {
    TFenDessin::MessageErreur("Ligne " + std::string(l.Def->Nom) + " hors limites : ignorée");
    return false;
  }
  return true;
}

// A figure is named as the routine wrote it: a relative name is looked up in the current
// folder first, then in the routine's own folder (a routine opened from elsewhere, such as a
// recovery copy read in the name of its original).
std::string CheminFigure(const std::string& nom) {
  namespace fs = std::filesystem;
  std::error_code erreur;
  const fs::path chemin(nom);
  if (chemin.is_absolute() || fs::is_regular_file(chemin, erreur) || FichierRoutine[0] == '\0') return nom;
  const fs::path voisin = fs::path(FichierRoutine).parent_path() / chemin;
  if (fs::is_regular_file(voisin, erreur)) return voisin.string();
  return nom;
}

bool FigureExiste(const TLigne& l) {
  std::error_code erreur;
  if (std::filesystem::is_regular_file(CheminFigure(std::string(l.Mot)), erreur)) return true;
  TFenDessin::MessageErreur(" Figure " + std::to_string(l.Num) + "  : fichier '" + std::string(l.Mot) + "' inexistant");
  return false;
}

// The figure files being read, innermost last: a figure met again inside itself is empty.
std::vector<std::filesystem::path> FiguresOuvertes;
constexpr std::size_t IMBRICATION_MAX = 16;

}  // namespace

void TFenDessin::CreeElement(std::string_view ligne, TListeCV* pListe) {
  // A line ends at a NUL byte, as it did when lines went through C strings.
  ligne = ligne.substr(0, ligne.find('\0'));
  TLigne l;
  if (!LitElement(ligne, true, l)) return;
  if (pListe) {
    // A figure's inner element: its sheet and kite are rebound by the figure.
    TElt* e = Construit(l, this, pListe);
    pListe->Append(e);
    if (l.Def->Record == TRecord::Pose) e->Setp2Param(TPointf(e->Getp2Param().x, static_cast<float>(Tronque(l.y))));
    Remplit(e, l);
    return;
  }
  if (!pFenCadre) return;
  if (l.Feuille > NbFenDesOuvertes) NbFenDesOuvertes = l.Feuille;
  while (pFenCadre->nbFeuilles <= l.Feuille)
    if (!pFenCadre->AddFeuille()) return;
  if (l.Def->Record == TRecord::Figure && !FigureExiste(l)) return;
  TFenDessin* feuille = pFenCadre->GetFeuille(l.Feuille - 1);
  TListeCV* liste = &TabLElt[l.Cv];
  TElt* e = Construit(l, feuille, liste);
  liste->Append(e);
  Remplit(e, l);
  if (l.Def->Record != TRecord::Point) Synchronise(e, l.CvPere, TabLElt, l.IndexPere, feuille);
  if (l.Cv >= nbCV) nbCV = l.Cv + 1;
}

void TFenDessin::CreeElementInsere(const char* ligne, TListeCV* pTable) {
  TLigne l;
  if (!pFenCadre || !pTable || !LitElement(ligne, false, l)) return;
  // The file's sheets come after the active one, each new one becoming active. A number that
  // jumps adds the sheets it skips, so that every line has its own sheet; NbFenDesOuvertes
  // counts the sheets added, which a cancelled insertion removes.
  while (NbFenDesOuvertes < l.Feuille) {
    if (!pFenCadre->InsereFeuille()) return;  // the 200 sheets are in use: said already
    ++NbFenDesOuvertes;
  }
  const int numFeuille = NumFActive + l.Feuille;
  if (numFeuille < 1 || numFeuille > pFenCadre->nbFeuilles) {
    SignaleIllisible(l);
    return;
  }
  if (l.Def->Record == TRecord::Figure && !FigureExiste(l)) return;
  TFenDessin* feuille = pFenCadre->GetFeuille(numFeuille - 1);
  TListeCV* liste = &pTable[l.Cv];
  if (l.Def->Record == TRecord::Point) {
    // The start of the inserted track joins it to what comes before.
    auto* s = new TSegment(TPoint(Tronque(l.x), Tronque(l.y)), feuille, nullptr, liste, true);
    liste->Append(s);
    s->Set(l.Num, CONTRAINTE_VCONSTANTE, l.t, l.V);
    return;
  }
  TElt* e = Construit(l, feuille, liste);
  liste->Append(e);
  Remplit(e, l);
  Synchronise(e, l.CvPere, pTable, l.IndexPere, feuille);
}

TListeCV* TFenDessin::OuvrirFigure(const char* Fichier) {
  auto* liste = new TListeCV;
  const std::string trouve = CheminFigure(Fichier);
  std::error_code erreur;
  std::filesystem::path chemin = std::filesystem::weakly_canonical(trouve, erreur);
  if (erreur) chemin = trouve;
  if (std::find(FiguresOuvertes.begin(), FiguresOuvertes.end(), chemin) != FiguresOuvertes.end() ||
      FiguresOuvertes.size() >= IMBRICATION_MAX) {
    MessageErreur(" Figure '" + std::string(Fichier) + "' : elle se contient elle-même, ignorée");
    return liste;
  }
  const std::optional<std::string> contenu = LitFichier(trouve);
  if (!contenu) {
    Dialogues().MessageBox("Problème d'ouverture figure '!!! ", " Ouvrir Figure");
    return liste;
  }
  FiguresOuvertes.push_back(chemin);
  DecoupeLignes(
      *contenu, [&](std::string_view ligne) { CreeElement(ligne, liste); },
      [&](int numero) { MessageErreur("Figure '" + std::string(Fichier) + "' : ligne " + std::to_string(numero) + " trop longue : ignorée"); });
  FiguresOuvertes.pop_back();
  return liste;
}

namespace {
// Empties the document as opening a routine does, before anything is read.
void VideDocument(TFenCadre2& cadre) {
  _FichierMusique[0] = '\0';
  ReglagesSecurite = TReglagesSecurite();
  VideRythme();
  Team = 1;
  // Every kite, not only those in use: nothing of the previous routine may stay behind.
  for (int i = 0; i < NB_CV_MAX; ++i) {
    // From the front: each removal then finds its element at once.
    while (TNoeud* n = TabLElt[i].Premier()) static_cast<TElt*>(n)->Supprime();
    if (i < nbCV) AncTabLElt[i].Vide();
  }
  TFenDessin::Fonction = FONCTION_MODIFICATION;
  TFenDessin::Etape = 1;
  nbCV = 1;
  TFenDessin::pEltCourant = TFenDessin::pEltCourant2 = TFenDessin::pEltSel = nullptr;
  TElt::NbElt = 0;
  NbFenDesOuvertes = 0;
  for (int i = 0; i < cadre.nbFeuilles; ++i) cadre.GetFeuille(i)->NbSynchro = 0;
}

void LitLignesRoutine(TFenCadre2& cadre, std::string_view texte) {
  TFenDessin* fen = cadre.GetFeuille(0);
  DecoupeLignes(
      texte, [&](std::string_view ligne) { fen->CreeElement(ligne, nullptr); },
      [&](int numero) { TFenDessin::MessageErreur("Ligne " + std::to_string(numero) + " trop longue : ignorée"); });
}
}  // namespace

bool LitRoutine(TFenCadre2& cadre, const std::string& chemin, bool* routine) {
  VideDocument(cadre);
  const std::optional<std::string> contenu = LitFichier(chemin);
  if (!contenu) {
    Dialogues().MessageBox("Problème d'ouverture !!! ", " Ouvrir routine");
    return false;
  }
  ChargementFichierEnCours = true;
  LignesReconnues = 0;
  LitLignesRoutine(cadre, *contenu);
  ChargementFichierEnCours = false;
  // An empty file holds nothing foreign: it is an empty routine.
  if (routine) *routine = LignesReconnues > 0 || contenu->find_first_not_of(" \t\r\n") == std::string::npos;
  return true;
}

void LitRoutineTexte(TFenCadre2& cadre, std::string_view texte) {
  VideDocument(cadre);
  ChargementFichierEnCours = true;
  LitLignesRoutine(cadre, texte);
  ChargementFichierEnCours = false;
}
