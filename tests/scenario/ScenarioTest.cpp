// Scenarios of the editor and of the player, in tests/data/scenarios: NAME.scn is a list of
// commands run in order on one document, in a scratch folder that is the current directory.
// The transcript, each line of the scenario followed by what it said, indented, must be
// NAME.attendu byte for byte. The commands are in tests/data/scenarios/README.md.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "demo/D3DDemo.h"
#include "demo/Demonstration.h"
#include "demo/player/Commandes.h"
#include "demo/player/FenApp.h"
#include "demo/player/FenCadre.h"
#include "editor/bars/BD.h"
#include "files/Ecriture.h"
#include "model/Nombres.h"
#include "model/elements/AllerA.h"
#include "model/elements/Arc.h"
#include "model/elements/Axel.h"
#include "model/elements/Figure.h"
#include "model/elements/Pose.h"
#include "model/elements/Rot.h"
#include "model/elements/Stop.h"
#include "platform/Donnees.h"
#include "platform/Horloge.h"
#include "platform/Rendu.h"
#include "platform/Son.h"
#include "securite/Reglages.h"
#include "support/Attendu.h"
#include "support/Fichiers.h"
#include "support/Trace.h"

namespace fs = std::filesystem;

namespace {

std::string* transcription = nullptr;
void Dit(const std::string& s) {
  if (transcription) *transcription += "  " + s + "\n";  // nothing is said once the scenario is over
}
std::string N(double v) { return Gcvt(std::fabs(v) < 1e-6 ? 0.0 : v, 6); }  // no noise of the last bits shown
std::string P(const TPointf& p) { return "(" + N(p.x) + ", " + N(p.y) + ")"; }
std::string NomCouleur(TColor c) {
  if (c == TColor::LtGray) return "gris";
  if (c == COULEUR_BD_COURANT) return "courant";
  if (c == COULEUR_BD_SELECTION) return "sélection";
  return std::to_string(c.GetValue());
}

class TDialoguesDits : public TDialogues {
public:
  TReponse MessageBox(const std::string& texte, const std::string& titre, TBoutons b, TIcone i) override {
    Dit("boîte « " + titre + " » " + texte + " [boutons " + std::to_string(static_cast<int>(b)) + ", icône " +
        std::to_string(static_cast<int>(i)) + "]");
    return b == TBoutons::OuiNon || b == TBoutons::OuiNonAnnuler ? TReponse::Oui : TReponse::OK;
  }
  void MessageBeep(int) override { Dit("bip"); }
  void MessageStatut(const std::string& texte) override { Dit("statut " + texte); }
  std::optional<std::string> FichierAOuvrir(TDialogueFichier&) override { return {}; }
  std::optional<std::string> FichierAEnregistrer(TDialogueFichier&) override { return {}; }
  std::optional<std::string> Saisie(const std::string& titre, const std::string& invite,
                                    const std::string& valeur) override {
    Dit("saisie « " + titre + " » « " + invite + " » « " + valeur + " »");
    const std::optional<std::string> r = Saisies.empty() ? std::nullopt : Saisies.front();
    if (!Saisies.empty()) Saisies.pop_front();
    return r;
  }
  void SetCurseur(TCurseur) override {}
  std::deque<std::optional<std::string>> Saisies;  // the answers to the next input dialogs
};

class TBDDite : public TBD {
public:
  using TBD::TBD;
  ~TBDDite() override { Dit("barre détruite"); }
  void SetDlgItemText(int id, const std::string& texte) override {
    static const std::map<int, std::string> noms = {{IDC_X, "x"}, {IDC_Y, "y"},         {IDC_T, "t"},
                                                    {IDC_V, "v"}, {IDC_RAYON, "rayon"}, {IDC_ANGLE, "angle"}};
    Dit("barre " + (noms.count(id) ? noms.at(id) : std::to_string(id)) + " " + texte);
  }
  void Place(int y) override { Dit("barre placée à " + std::to_string(y)); }
  int Hauteur() const override { return 21; }
  void SetCouleurFond(TColor c) override { Dit("barre fond " + NomCouleur(c)); }
  void SetContrainte() override { Dit("barre contrainte"); }
  void SetContrainteAngle() override { Dit("barre contrainte et angle"); }
  void MiseAJourContrainte() override { Dit("barre mise à jour de la contrainte"); }
  void CloseWindow(int) override { Dit("barre fermée"); }
};

class TSonDit : public TSon {
public:
  int Ouvrir(const std::string& f, const std::string&) override { return Ordre("ouvre " + f); }
  int Jouer(const std::string&, int ms) override { return Ordre("joue depuis " + std::to_string(ms)); }
  int Arreter(const std::string&) override { return Ordre("arrête"); }
  int Fermer(const std::string&) override { return Ordre("ferme"); }
  int Resultat = 0;

private:
  int Ordre(const std::string& o) const {
    Dit("son " + o);
    return Resultat;
  }
};

// Fails the call named Echec with Code, and notes where frames are put.
class TRenduDit : public TRenduAbsent {
public:
  long Connecte() override { return Echoue("Connecte"); }
  long CreeDispositif(int, int) override { return Echoue("CreeDispositif"); }
  long Efface() override { return Echoue("Efface"); }
  long ChargeFond(const std::string&) override { return Echoue("ChargeFond"); }
  long PlaceCadre(TIdCadre, const TVecteur3& p) override {
    Places += " (" + N(p.x) + ", " + N(p.y) + ", " + N(p.z) + ")";
    return Echoue("PlaceCadre");
  }
  // What the scene sends beyond its models: each kind's strokes, their count, width, and
  // first and last vertices.
  long PoseTraits(TGenreTraits g, const std::vector<TSommetTrait>& sommets, float largeur) override {
    static const char* const noms[] = {"fenêtre", "pilotes", "lignes", "traînées", "sécurité"};
    auto sommet = [](const TSommetTrait& v) {
      return "(" + N(v.P.x) + ", " + N(v.P.y) + ", " + N(v.P.z) + ") rvba " + N(v.r) + " " + N(v.g) + " " + N(v.b) +
             " " + N(v.a);
    };
    std::string t = std::string(noms[static_cast<int>(g)]) + " " + std::to_string(sommets.size()) + " sommets";
    if (!sommets.empty())
      t += ", largeur " + N(largeur) + ", de " + sommet(sommets.front()) + " à " + sommet(sommets.back());
    Traits.push_back(t);
    return 0;
  }
  long MontreSol(bool visible) override {
    Traits.push_back(visible ? "sol montré" : "sol caché");
    return 0;
  }
  std::string Echec;
  long Code = 0;
  std::string Places;
  std::vector<std::string> Traits;

private:
  long Echoue(const std::string& appel) const { return appel == Echec ? Code : 0; }
};

class TVueDite : public TVueLecteur {
public:
  void TexteChange(TZoneLecteur zone, const std::string& texte) override {
    static const char* const noms[] = {"message", "T", "V", "Pas", "début"};
    Dit("vue " + std::string(noms[static_cast<int>(zone)]) + " : " + texte);
  }
  void EquipeCochee(int team) override { Dit("vue équipe " + std::to_string(team)); }
};

using TArgs = std::vector<std::string>;

std::string Sans(std::string s) {  // without its blanks at either end
  s.erase(0, s.find_first_not_of(' '));
  s.erase(s.find_last_not_of(' ') + 1);
  return s;
}

// The argument i as a number; 0 when it is missing or is no number.
float F(const TArgs& a, std::size_t i) { return i < a.size() ? std::strtof(a[i].c_str(), nullptr) : 0.0f; }
int E(const TArgs& a, std::size_t i) { return static_cast<int>(F(a, i)); }

// The element's saved line, its blanks made one, and what the line does not show.
std::string Decrit(TElt* e) {
  std::string ligne;
  e->Enregistrer(ligne, 0, 0);
  std::istringstream mots(ligne);
  std::string s;
  for (std::string m; mots >> m;) {
    char* fin = nullptr;
    const double v = std::strtod(m.c_str(), &fin);
    s += (s.empty() ? "" : " ") + (*fin == '\0' && v != 0 && std::fabs(v) < 1e-6 ? std::string("0") : m);
  }
  if (auto* a = dynamic_cast<TArc*>(e)) {
    const TRect& r = a->RectCercle;
    s += " | état " + std::to_string(a->EtatArc) + ", sens " + std::to_string(a->Sens) + ", centre " + P(a->Centre) +
         ", type " + std::to_string(a->TypeArc) + ", cercle [" + std::to_string(r.left) + " " + std::to_string(r.top) +
         " " + std::to_string(r.right) + " " + std::to_string(r.bottom) + "]";
  }
  if (auto* f = dynamic_cast<TFigure*>(e))
    s += " | d " + P(TPointf(f->dx, f->dy)) + ", " + std::to_string(f->pListeFig ? f->pListeFig->nbNoeud() : 0) +
         " éléments";
  if (e->NumSynchro) s += " | synchro " + std::to_string(e->NumSynchro);
  if (e->IsCalculV()) s += " | met à jour ses voisins";
  return s;
}

class ScenarioTest : public FichiersTest, public ::testing::WithParamInterface<fs::path> {
protected:
  void SetUp() override {
    FichiersTest::SetUp();
    SetDialogues(&dialogues);
    SetHorloge(&horloge);
    SetSon(&son);
    SetRendu(&rendu);
    SetDossierDonnees(dossier.string());
    setenv("XDG_STATE_HOME", (dossier / "etat").c_str(), 1);
    for (int team = 1; team <= NB_TEAMS; ++team) Ecrit("CV" + std::to_string(team) + "_1.x", "modèle");
    cadre = std::make_unique<TFenCadre2>();
    cadre->SetupWindow();
  }
  void TearDown() override {
    lecteur.reset();
    FermeDemo();
    SetRendu(nullptr);
    SetSon(nullptr);
    SetHorloge(nullptr);
    SetDossierDonnees("");
    unsetenv("XDG_STATE_HOME");
    FichiersTest::TearDown();
  }

  // Sheets get the size and scale of the tests' sheet as they are made.
  void Echelles() {
    for (int i = 0; i < cadre->nbFeuilles; ++i)
      if (cadre->GetFeuille(i)->EchelleX == 0) {
        cadre->GetFeuille(i)->SetTailleClient(880, 440);
        cadre->GetFeuille(i)->SetEchelle(dc);
      }
  }
  TFenDessin* Feuille(int num) {
    while (cadre->nbFeuilles < num) cadre->AddFeuille();
    Echelles();
    return cadre->GetFeuille(num - 1);
  }
  // "K.I", or "K.I.J" for element J inside the figure K.I.
  static TElt* Element(const std::string& adresse) {
    int k = -1, i = -1, j = -1;
    std::sscanf(adresse.c_str(), "%d.%d.%d", &k, &i, &j);
    if (k < 0 || k >= NB_CV_MAX) return nullptr;
    auto* e = static_cast<TElt*>(TabLElt[k].GetPt(i));
    auto* fig = dynamic_cast<TFigure*>(e);
    return j < 0 ? e : fig && fig->pListeFig ? static_cast<TElt*>(fig->pListeFig->GetPt(j)) : nullptr;
  }
  TFenApp& App() {
    if (!lecteur) {
      lecteur = std::make_unique<TFenCadre>();
      lecteur->SetVue(&vue);
    }
    return lecteur->Client();
  }
  TD3DDemo* Scene() {
    if (!Globals.pD3DDemo) Dit("pas de scène");
    return Globals.pD3DDemo;
  }
  TElt* Ajoute(const TArgs& a) {
    TFenDessin* fen = feuille ? Feuille(feuille) : nullptr;
    TListeCV* l = &TabLElt[E(a, 0)];
    const std::string& c = a[1];
    const TPoint p(E(a, 2), E(a, 3));
    const float v = F(a, 4);
    const std::map<std::string, std::function<TElt*()>> classes = {
        {"Pt", [&] { return new TPt(p, fen, nullptr, l); }},
        {"Segment", [&] { return new TSegment(p, fen, nullptr, l); }},
        {"Derapage", [&] { return new TDerapage(p, fen, nullptr, l); }},
        {"SegRevo", [&] { return new TSegRevo(p, fen, nullptr, l, v); }},
        {"Arc", [&] { return new TArc(p, fen, nullptr, l); }},
        {"ArcRevo", [&] { return new TArcRevo(p, fen, nullptr, l, v); }},
        {"Axel", [&] { return new TAxel(p, fen, nullptr, l); }},
        {"540", [&] { return new T540(p, fen, nullptr, l); }},
        {"Rot", [&] { return new TRot(p, fen, nullptr, l, v); }},
        {"Stop", [&] { return new TStop(p, fen, nullptr, l); }},
        {"Pose", [&] { return new TPose(p, fen, nullptr, l); }},
        {"AllerA", [&] { return new TAllerA(p, fen, nullptr, l); }},
        {"Figure", [&] { return new TFigure(p, fen, nullptr, l, a.size() > 4 ? a[4].c_str() : "", true); }},
    };
    TElt* e = classes.count(c) ? classes.at(c)() : nullptr;
    if (e) l->Append(e);
    return e;
  }

  // Prints a scene's numbers, or says there is no scene.
  template <class F>
  void DeLaScene(F f) {
    if (TD3DDemo* s = Globals.pD3DDemo)
      f(*s);
    else
      Dit("pas de scène");
  }
  void Lignes(const std::string& texte) {
    std::istringstream s(texte);
    for (std::string l; std::getline(s, l);) Dit(l);
  }
  unsigned Commande(const std::string& texte) {
    if (texte.find_first_not_of("0123456789") == std::string::npos) return static_cast<unsigned>(std::stoul(texte));
    for (unsigned id = 100; id < 160; ++id) {
      std::string t = TexteCommande(id) ? TexteCommande(id) : "";
      t.erase(std::remove(t.begin(), t.end(), '&'), t.end());
      if (Sans(t) == texte) return id;
    }
    return 0;
  }

  void Globale(const std::string& c, const TArgs& a) {
    static const char* const modes[] = {
        "", "avant", "arrière", "pause", "début", "pas arrière", "pas avant", "après pas avant", "après pas arrière"};
    static const std::map<std::string, TTypeTaille> tailles = {{"normale", TTypeTaille::Normale},
                                                               {"minimisée", TTypeTaille::Minimisee},
                                                               {"maximisée", TTypeTaille::Maximisee},
                                                               {"cachée", TTypeTaille::MaxCachee}};
    const std::map<std::string, std::function<void()>> commandes = {
        {"ouvre", [&] { Dit(LitRoutine(*cadre, a[0]) ? "ouverte" : "non ouverte"); }},
        {"texte", [&] { Lignes(TexteRoutine()); }},
        {"ajoute",
         [&] {
           if (!Ajoute(a)) Dit("classe inconnue");
         }},
        {"feuille", [&] { feuille = E(a, 0); }},
        {"dossier", [&] { fs::create_directories(a[0]); }},
        {"deselectionne", [&] { TFenDessin::pEltCourant = TFenDessin::pEltCourant2 = nullptr; }},
        {"impression", [&] { TFenDessin::Imp.blImpression = E(a, 0) != 0; }},
        {"preleve",
         [&] {
           Dit(Feuille(1)->PreleveSynchro() ? "prélevé" : "rien");
           Dit("gadget « " + cadre->GetTexteGadgetSynchro() + " »");
         }},
        {"demo", [&] { TFenDessin::Demo(); }},
        {"scene",
         [&] {
           FermeDemo();
           InitDemo(E(a, 0), F(a, 1));
           Dit(Globals.blDemoOK ? "scène faite" : "pas de scène");
         }},
        {"go",
         [&] {
           horloge.Ms += static_cast<std::uint32_t>(E(a, 0));
           DeLaScene([](TD3DDemo& s) {
             s.Go();
             Dit("t " + std::to_string(s.tCourant));
           });
         }},
        {"positionne",
         [&] {
           DeLaScene([&](TD3DDemo& s) {
             s.Positionne(F(a, 0));
             Dit("t " + std::to_string(s.tCourant));
           });
         }},
        {"etat",
         [&] {
           DeLaScene([](TD3DDemo& s) {
             Dit(std::string("mode ") + modes[s.Mode] + ", t " + std::to_string(s.tCourant) + ", début " +
                 std::to_string(s.tDebut) + ", période " + std::to_string(s.Periode) + ", pas " +
                 std::to_string(s.Pas) + ", fin " + N(s.tFin) + ", team " + std::to_string(s.Team) + ", " +
                 std::to_string(s.nbCV) + " cv, " + std::to_string(s.Trajectoires[0].Positions.nbCles()) +
                 " clés de position" + (TD3DDemo::_Debut ? ", l'horloge repart" : ""));
           });
         }},
        {"cles",
         [&] {
           DeLaScene([&](TD3DDemo& s) {
             for (const auto& [t, p] : s.Trajectoires[E(a, 0)].Positions.GetCles())
               Dit("position à " + N(t) + " : (" + N(p.x) + ", " + N(p.y) + ", " + N(p.z) + ")");
           });
         }},
        {"camera",
         [&] {
           DeLaScene([](TD3DDemo& s) {
             Dit("caméra (" + N(s.CameraX) + ", " + N(s.CameraY) + ", " + N(s.CameraZ) + "), angle " +
                 N(s.AngleCamera) + ", distance " + N(s.DistanceCamera) + ", soleil " + N(s.SoleilX) + ", direction (" +
                 N(s.DirX) + ", " + N(s.DirZ) + ")");
           });
         }},
        {"traits",
         [&] {
           if (rendu.Traits.empty()) Dit("aucun trait envoyé");
           for (const std::string& t : rendu.Traits) Dit(t);
           rendu.Traits.clear();
         }},
        {"distance", [&] { ReglagesSecurite.Distance = F(a, 0); }},
        {"places",
         [&] {
           Dit("placés" + rendu.Places);
           rendu.Places.clear();
         }},
        {"fixe",
         [&] {
           DeLaScene([&](TD3DDemo& s) {
             const std::map<std::string, float*> reels = {{"AngleCamera", &s.AngleCamera},
                                                          {"DistanceCamera", &s.DistanceCamera},
                                                          {"CameraY", &s.CameraY},
                                                          {"SoleilX", &s.SoleilX}};
             const std::map<std::string, int*> entiers = {
                 {"Periode", &s.Periode}, {"Pas", &s.Pas}, {"tDebut", &s.tDebut}, {"Mode", &s.Mode}};
             if (reels.count(a[0])) *reels.at(a[0]) = F(a, 1);
             if (entiers.count(a[0])) *entiers.at(a[0]) = E(a, 1);
           });
         }},
        {"peint", [&] { Dit(App().Paint() ? "une scène à dessiner" : "rien à dessiner"); }},
        {"menu", [&] { App().Trt_Menu(Commande(Sans(reste))); }},
        {"horloge",
         [&] {
           // Time passes and the player draws nothing, as a scene held still.
           horloge.Ms += static_cast<std::uint32_t>(E(a, 0));
         }},
        {"attends",
         [&] {
           horloge.Ms += static_cast<std::uint32_t>(E(a, 0));
           if (!App().IdleAction()) Dit("ne joue pas");
         }},
        {"taille",
         [&] {
           App();
           Dit("hauteur du cadre " + std::to_string(lecteur->EvSize(tailles.at(a[0]), 290, E(a, 1), E(a, 2))));
         }},
        {"textes",
         [&] {
           App();
           Dit("message « " + lecteur->GetTexte(TZoneLecteur::Message) + " », " + lecteur->GetTexte(TZoneLecteur::T) +
               ", " + lecteur->GetTexte(TZoneLecteur::V) + ", " + lecteur->GetTexte(TZoneLecteur::Pas) + ", début " +
               lecteur->GetTexte(TZoneLecteur::Debut) + ", équipe " + std::to_string(lecteur->GetEquipeCochee()) +
               ", Team " + std::to_string(Team) + ", dernière commande " + std::to_string(TFenApp::DerniereCommande));
         }},
        {"saisie", [&] { dialogues.Saisies.push_back(a.empty() ? std::nullopt : std::optional<std::string>(reste)); }},
        {"nouveau",
         [&] {
           ReinitialiseDocument();
           Dit(std::string(TFenApp::PremierPaint ? "premier dessin à venir" : "déjà dessiné") + ", dernière commande " +
               std::to_string(TFenApp::DerniereCommande) + (pFenAppDemo ? ", un lecteur" : ", aucun lecteur"));
         }},
        {"fermelecteur",
         [&] {
           lecteur.reset();
           Dit(pFenAppDemo ? "un lecteur" : "aucun lecteur");
         }},
        {"echec",
         [&] {
           rendu.Echec = a.empty() ? "" : a[0];
           rendu.Code = E(a, 1);
         }},
        {"son", [&] { son.Resultat = E(a, 0); }},
        {"musique", [&] { std::snprintf(_FichierMusique, sizeof _FichierMusique, "%s", reste.c_str()); }},
        {"modele", [&] { Ecrit(a[0], "modèle"); }},
        {"journal", [&] { Lignes(LitTout(dossier / "etat" / "trajectoires" / "DXError.txt")); }},
    };
    if (commandes.count(c))
      commandes.at(c)();
    else
      Dit("commande inconnue");
  }

  void DeLElement(TElt* e, const std::string& c, const TArgs& a) {
    const auto pt = [&](std::size_t i) { return TPointf(F(a, i), F(a, i + 1)); };
    const auto oui = [](bool b) { Dit(b ? "oui" : "non"); };
    auto* arc = dynamic_cast<TArc*>(e);
    const std::map<std::string, std::function<void()>> commandes = {
        {"voir", [&] { Dit(Decrit(e)); }},
        {"Getp2", [&] { Dit(P(e->Getp2())); }},
        {"Getp2Param", [&] { Dit(P(e->Getp2Param())); }},
        {"GetVDir", [&] { Dit("(" + std::to_string(e->GetVDir().x) + ", " + std::to_string(e->GetVDir().y) + ")"); }},
        {"GetAngle", [&] { Dit(std::to_string(e->GetAngle())); }},
        {"CalculLongueur", [&] { Dit(N(e->CalculLongueur())); }},
        {"Setpp2", [&] { e->Setpp2(pt(0)); }},
        {"Setp2Param", [&] { e->Setp2Param(pt(0)); }},
        {"Setp2Poignee", [&] { arc->Setp2Poignee(pt(0)); }},
        {"SetTBDParam", [&] { arc->SetTBDParam(pt(0), F(a, 2), F(a, 3)); }},
        {"Translate", [&] { e->Translate(E(a, 0), E(a, 1), E(a, 2) != 0); }},
        {"Transforme", [&] { e->Transforme(pt(0), pt(2), E(a, 4)); }},
        {"ChangeTransformation", [&] { dynamic_cast<TFigure&>(*e).ChangeTransformation(); }},
        {"Sett2", [&] { e->Sett2(F(a, 0)); }},
        {"Sett2Param", [&] { e->Sett2Param(F(a, 0)); }},
        {"SetV", [&] { e->SetV(F(a, 0)); }},
        {"Set",
         [&] {
           if (a.size() > 3)
             dynamic_cast<TSegRevo&>(*e).Set(0, E(a, 0), F(a, 1), F(a, 2), F(a, 3));
           else
             dynamic_cast<TSegment&>(*e).Set(0, E(a, 0), F(a, 1), F(a, 2));
         }},
        {"CalculT", [&] { e->CalculT(); }},
        {"MiseAJourV", [&] { TFenDessin::MiseAJourV(e, true, true); }},
        {"Clic", [&] { oui(e->Clic(dc, E(a, 0), TPoint(E(a, 1), E(a, 2)))); }},
        {"Clicp2", [&] { oui(e->Clicp2(dc, E(a, 0), TPoint(E(a, 1), E(a, 2)))); }},
        {"Copie",
         [&] {
           const int avant = TElt::NbElt;
           const std::unique_ptr<TElt> copie(e->Copie(Tampon, E(a, 0) != 0));
           const auto fils = std::count(std::begin(copie->pFils), std::end(copie->pFils), nullptr);
           Dit(Decrit(copie.get()) + " | père " + std::to_string(copie->NumCVPere) + "." +
               std::to_string(copie->IndexPere) + (copie->pPere ? " lié" : "") + ", " +
               std::to_string(std::size(copie->pFils) - static_cast<std::size_t>(fils)) + " fils, " +
               std::to_string(TElt::NbElt - avant) + " numéro pris");
         }},
        {"Supprime", [&] { e->Supprime(); }},
        {"CloseBD", [&] { e->CloseBD(); }},
        {"MoveBD", [&] { Dit("hauteur " + std::to_string(e->MoveBD(E(a, 0)))); }},
        {"bd", [&] { e->pBD = new TBDDite(e); }},
        {"Synchronise", [&] { TFenDessin::Synchronise(e, E(a, 0), TabLElt, E(a, 1), e->pFen); }},
        {"Sett2Pere", [&] { oui(e->Sett2(Element(a[0]), E(a, 1))); }},
        {"SupprSynchro", [&] { e->pFen->SupprSynchro(e); }},
        {"courant", [&] { TFenDessin::pEltCourant = e; }},
        {"courant2", [&] { TFenDessin::pEltCourant2 = e; }},
        {"fixe",
         [&] {
           const std::string& champ = a[0];
           if (champ == "Contrainte") e->Contrainte = E(a, 1);
           if (champ == "DureeConstante") e->DureeConstante = F(a, 1);
           if (champ == "Rayon") arc->Rayon = F(a, 1);
           if (champ == "Angle") arc->Angle = F(a, 1);
           if (champ == "TypeArc") arc->TypeArc = E(a, 1);
         }},
    };
    if (commandes.count(c))
      commandes.at(c)();
    else
      Dit("commande inconnue");
  }

  THorlogeTest horloge;
  TSonDit son;
  TRenduDit rendu;
  TVueDite vue;
  TDialoguesDits dialogues;
  TDCEnregistreur dc;
  std::unique_ptr<TFenCadre> lecteur;
  int feuille = 1;
  std::string reste;  // the command's line after its name and one blank
};

TEST_P(ScenarioTest, GivesItsTranscript) {
  std::string sortie;
  transcription = &sortie;
  std::ifstream f(GetParam());
  std::string ligne;
  while (std::getline(f, ligne)) {
    sortie += ligne + "\n";
    std::istringstream mots(ligne);
    std::string c;
    if (!(mots >> c) || c[0] == '#') continue;
    if (c == "fichier") {
      // The lines up to "fin" are the file's.
      std::string nom, texte;
      mots >> nom;
      while (std::getline(f, ligne) && ligne != "fin") sortie += ligne + "\n", texte += ligne + "\n";
      sortie += "fin\n";
      Ecrit(nom, texte);
      continue;
    }
    TArgs a;
    reste = ligne.substr(std::min(ligne.size(), ligne.find(c) + c.size() + 1));
    for (std::string m; mots >> m;) a.push_back(m);
    if (std::isdigit(static_cast<unsigned char>(c[0]))) {
      if (TElt* e = Element(c); e && !a.empty())
        DeLElement(e, a[0], TArgs(a.begin() + 1, a.end()));
      else
        Dit("pas d'élément " + c);
    } else {
      Globale(c, a);
    }
    Echelles();
  }
  transcription = nullptr;
  fs::path attendu = GetParam();
  CompareAvecAttendu(sortie, attendu.replace_extension(".attendu"), dossier / "obtenu");
}

std::vector<fs::path> Scenarios() {
  std::vector<fs::path> v;
  for (const auto& e : fs::directory_iterator(fs::path(TRAJ_TEST_DATA) / "scenarios"))
    if (e.path().extension() == ".scn") v.push_back(e.path());
  std::sort(v.begin(), v.end());
  return v;
}

INSTANTIATE_TEST_SUITE_P(Donnees, ScenarioTest, ::testing::ValuesIn(Scenarios()),
                         [](const auto& info) { return info.param.stem().string(); });

}  // namespace
