// trajectoires-cli replay SCRIPT OUT [--in IN]: the editor's logic fed with a script of mouse,
// key, menu and tab events, without a display. What the editor shows goes to standard error,
// one line each; `state` lines go to standard output; OUT is the routine as "E&nregistrer"
// writes it. The property bars of the active sheet take `type K I FIELD TEXT` (typed into
// the field, which then loses the focus), `enter K I FIELD TEXT` (typed, then Enter),
// `click K I BUTTON`, `barclick K I [shift]` (a click on the bar's background) and
// `baresc K I` (Escape in the bar), for element I of kite K; `bar K I` prints the bar's
// controls on standard output as `BAR K:I ID="TEXT"...`. A bar that is not open is a usage
// error.
#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "editor/VueCadre2.h"
#include "editor/bars/BD.h"
#include "files/Ecriture.h"
#include "files/Lecture.h"
#include "files/Lignes.h"
#include "model/Document.h"
#include "model/Elt.h"
#include "platform/DCJournal.h"
#include "platform/Dialogues.h"
#include "platform/Types.h"
#include "session/Modification.h"
#include "DialoguesScript.h"
#include "EditeurScript.h"

namespace {

constexpr int LARGEUR_DEPART = 880;
constexpr int HAUTEUR_BANDE = 200;  // the strip under the sheets, which nothing here shows

// What stands for the window: as on the screen, a sheet that was invalidated is painted
// before the next event comes, and painting an arc fixes its end point from its data.
class TVueRejeu : public TVueCadre2 {
public:
  explicit TVueRejeu(TFenCadre2& cadre) : Cadre(cadre) {}
  // The program would end here: the rest of the script is not run.
  void Ferme() override {
    std::printf("CLOSED\n");
    std::fflush(stdout);
    Fermee = true;
  }
  bool Fermee = false;
  void FeuilleActive() override { APeindre = true; }
  void Invalide(TFenDessin* feuille, const TRect&) override {
    if (feuille == Cadre.pFenDesActive) APeindre = true;
  }
  void Peint() {
    if (!APeindre || !Cadre.pFenDesActive) return;
    APeindre = false;
    TDCJournal dc;
    Cadre.pFenDesActive->Paint(dc, true, TRect());
  }

private:
  TFenCadre2& Cadre;
  bool APeindre = true;
};

// `K:I` of an element, `-` for none.
std::string Position(TElt* e) {
  if (!e || !e->EstDansListe()) return "-";
  return std::to_string(e->pListeCV->Num) + ":" + std::to_string(e->pListeCV->GetIndex(e));
}

void Etat(const TFenCadre2& cadre) {
  std::string onglets;
  for (int i = 0; i < cadre.nbFeuilles; ++i) onglets += (i ? "|" : "") + cadre.GetLabelOnglet(i);
  std::printf("STATE %d %d %d %s %s %s %d %d %d %s %s\n", TFenDessin::Fonction, TFenDessin::Etape, TFenDessin::nCV,
              Position(TFenDessin::pEltCourant).c_str(), Position(TFenDessin::pEltCourant2).c_str(),
              Position(TFenDessin::pEltSel).c_str(), nbCV, cadre.nbFeuilles,
              cadre.pFenDesActive ? cadre.pFenDesActive->Num : 0, onglets.c_str(), DocumentModifie() ? "M" : "-");
  // Kept in order with the messages when both streams go to one file.
  std::fflush(stdout);
}

// The open bar of element I of kite K; null with `erreur` set when there is none.
TBD* Barre(int k, int i, std::string& erreur) {
  TElt* e = k >= 0 && k < NB_CV_MAX ? static_cast<TElt*>(TabLElt[k].GetPt(i)) : nullptr;
  const std::string position = std::to_string(k) + ":" + std::to_string(i);
  if (!e)
    erreur = "aucun élément en " + position;
  else if (!e->pBD)
    erreur = "la barre de " + position + " n'est pas ouverte";
  return e ? e->pBD : nullptr;
}

// Every control of a bar with its text; "(ro)" marks an edit that takes no typing, "(off)" a
// disabled button.
void MontreBarre(int k, int i, const TBD& bd) {
  std::printf("BAR %d:%d", k, i);
  for (int id : bd.Controles()) {
    std::printf(" %d=\"%s\"", id, bd.GetDlgItemText(id).c_str());
    if (bd.EstEdit(id) && bd.EstLectureSeule(id)) std::printf("(ro)");
    if (bd.EstBouton(id) && !bd.EstActif(id)) std::printf("(off)");
  }
  std::printf("\n");
  std::fflush(stdout);
}

// Runs one line of the script; false with `erreur` set for a usage error.
bool Evenement(const std::string& ligne, TFenCadre2& cadre, TDialoguesScript& dialogues, std::string& erreur) {
  std::istringstream flux(ligne);
  std::vector<std::string> m;
  for (std::string mot; flux >> mot;) m.push_back(mot);
  if (m.empty()) return true;  // blanks the first test did not know, a form feed for one
  const std::string& e = m[0];
  auto entiers = [&](std::size_t debut, std::size_t n, std::vector<int>& v) {
    v.assign(n, 0);
    for (std::size_t i = 0; i < n; ++i)
      if (debut + i >= m.size() || !Entier(m[debut + i], v[i])) return false;
    return true;
  };
  auto reste = [&](std::size_t mots) {
    // The text after the first `mots` words, blanks inside kept.
    std::size_t p = 0;
    for (std::size_t i = 0; i < mots; ++i) {
      p = ligne.find_first_not_of(" \t", p);
      p = ligne.find_first_of(" \t", p);
    }
    p = p == std::string::npos ? ligne.size() : ligne.find_first_not_of(" \t", p);
    return p == std::string::npos ? std::string() : ligne.substr(p);
  };
  TFenDessin* feuille = cadre.pFenDesActive;
  std::vector<int> v;
  if (e == "width" && m.size() == 2 && entiers(1, 1, v) && v[0] > 0) {
    if (v[0] > TAILLE_SURFACE_MAX) {
      erreur = "largeur de 1 à " + std::to_string(TAILLE_SURFACE_MAX) + " pixels « " + ligne + " »";
      return false;
    }
    cadre.EvSize(v[0], v[0] / 2 + HAUTEUR_BANDE);
  } else if (e == "menu" && m.size() == 2 && entiers(1, 1, v) && v[0] >= 0) {
    feuille->Trt_Menu(static_cast<unsigned>(v[0]));
  } else if ((e == "down" || e == "rdown") && (m.size() == 3 || (m.size() == 4 && m[3] == "shift")) &&
             entiers(1, 2, v)) {
    const unsigned flags = m.size() == 4 ? MK_SHIFT : 0;
    if (e == "down")
      feuille->EvLButtonDown(flags, TPoint(v[0], v[1]));
    else
      feuille->EvRButtonDown(flags, TPoint(v[0], v[1]));
  } else if ((e == "up" || e == "move") && m.size() == 3 && entiers(1, 2, v)) {
    if (e == "up")
      feuille->EvLButtonUp(0, TPoint(v[0], v[1]));
    else
      feuille->EvMouseMove(0, TPoint(v[0], v[1]));
  } else if (e == "key" && m.size() == 2 && (m[1] == "esc" || m[1] == "del")) {
    if (m[1] == "esc")
      feuille->EvChar(CAR_ECHAP, 1, 0);
    else
      feuille->EvKeyDown(VK_DELETE, 1, 0);
  } else if (e == "tab" && m.size() == 2 && entiers(1, 1, v)) {
    if (v[0] < 1 || v[0] > cadre.nbFeuilles) {
      erreur = "la feuille " + m[1] + " n'existe pas";
      return false;
    }
    cadre.TabSelChange(v[0] - 1);
  } else if ((e == "type" || e == "enter" || e == "click") && m.size() >= 4 && entiers(1, 3, v)) {
    TBD* bd = Barre(v[0], v[1], erreur);
    if (!bd) return false;
    if (e == "click") {
      if (m.size() != 4 || !bd->EstBouton(v[2])) {
        erreur = "la barre n'a pas de bouton " + m[3];
        return false;
      }
      bd->Clic(v[2]);
    } else if (!bd->EstEdit(v[2])) {
      erreur = "la barre n'a pas de champ " + m[3];
      return false;
    } else if (e == "type") {
      bd->Tape(v[2], reste(4));
    } else {
      bd->Entree(v[2], reste(4));
    }
  } else if ((e == "barclick" && (m.size() == 3 || (m.size() == 4 && m[3] == "shift"))) ||
             ((e == "baresc" || e == "bar") && m.size() == 3)) {
    if (!entiers(1, 2, v)) {
      erreur = "événement inconnu ou mal formé « " + ligne + " »";
      return false;
    }
    TBD* bd = Barre(v[0], v[1], erreur);
    if (!bd) return false;
    if (e == "barclick")
      bd->ClicFond(m.size() == 4);
    else if (e == "baresc")
      bd->Echap();  // the bar may be gone after this
    else
      MontreBarre(v[0], v[1], *bd);
  } else if (e == "close" && m.size() == 1) {
    cadre.Quitter();  // as the window's close box
  } else if (e == "state" && m.size() == 1) {
    Etat(cadre);
  } else if (e == "answer") {
    if (!dialogues.Ajoute(std::vector<std::string>(m.begin() + 1, m.end()), reste(2), erreur)) {
      erreur += " « " + ligne + " »";
      return false;
    }
  } else {
    erreur = "événement inconnu ou mal formé « " + ligne + " »";
    return false;
  }
  return true;
}

}  // namespace

int Rejoue(const std::vector<std::string>& args) {
  std::string script, sortie, entree;
  std::vector<std::string> positionnels;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "--in" && i + 1 < args.size())
      entree = args[++i];
    else
      positionnels.push_back(args[i]);
  }
  if (positionnels.size() != 2) {
    std::fprintf(stderr, "trajectoires-cli : replay prend SCRIPT et OUT, et --in IN au besoin (voir --help)\n");
    return 2;
  }
  script = positionnels[0];
  sortie = positionnels[1];
  const std::optional<std::string> texte = LitFichier(script);
  if (!texte) {
    std::fprintf(stderr, "trajectoires-cli : impossible de lire « %s »\n", script.c_str());
    return 1;
  }

  TDialoguesScript dialogues;
  SetDialogues(&dialogues);
  struct Restaure {
    ~Restaure() { SetDialogues(nullptr); }
  } restaure;

  // The editor as the application builds it: two sheets, one kite, the selection tool idle.
  TFenCadre2 cadre;
  TVueRejeu vue(cadre);
  cadre.SetVue(&vue);
  cadre.SetHauteurs(0, 0, 0);
  cadre.SetupWindow();
  cadre.EvSize(LARGEUR_DEPART, LARGEUR_DEPART / 2 + HAUTEUR_BANDE);
  MarqueIntact();  // nothing to lose yet
  if (!entree.empty()) {
    std::error_code erreur;
    if (!std::filesystem::is_regular_file(entree, erreur) || !LitFichier(entree)) {
      std::fprintf(stderr, "trajectoires-cli : impossible de lire « %s »\n", entree.c_str());
      return 1;
    }
    cadre.pFenDesActive->Ouvrir(entree);
  }
  vue.Peint();

  std::istringstream lignes(*texte);
  int numero = 0;
  for (std::string ligne; std::getline(lignes, ligne);) {
    ++numero;
    if (!ligne.empty() && ligne.back() == '\r') ligne.pop_back();
    const std::size_t debut = ligne.find_first_not_of(" \t");
    if (debut == std::string::npos || ligne[debut] == '#') continue;
    ligne = ligne.substr(debut);
    std::string erreur;
    if (!Evenement(ligne, cadre, dialogues, erreur)) {
      std::fprintf(stderr, "trajectoires-cli : %s, ligne %d : %s\n", script.c_str(), numero, erreur.c_str());
      return 2;
    }
    vue.Peint();
    // As the window does once each action of the user has run.
    VerifieModification();
    if (vue.Fermee) break;
    if (dialogues.Issue != TIssue::Continue) {
      std::fprintf(stderr, "trajectoires-cli : %s, ligne %d : %s\n", script.c_str(), numero, dialogues.Message.c_str());
      return dialogues.Issue == TIssue::Usage ? 2 : 1;
    }
  }
  cadre.SetVue(nullptr);
  if (!EcritFichier(sortie, TexteRoutine())) {
    std::fprintf(stderr, "trajectoires-cli : impossible d'écrire « %s »\n", sortie.c_str());
    return 1;
  }
  return 0;
}
