// The timeline's logic driven by the scripts of data/frise/: each NAME.txt holds commands, one
// per line, and NAME.attendu what they give (see the README there).
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

#include "editor/FenCadre2.h"
#include "files/Lecture.h"
#include "frise/Battements.h"
#include "frise/Echelle.h"
#include "frise/Pistes.h"
#include "frise/Tempo.h"
#include "model/Elt.h"
#include "model/Nombres.h"
#include "support/Attendu.h"
#include "support/DocumentTest.h"

namespace fs = std::filesystem;

namespace {

std::string N(double v) { return Gcvt(v, 7); }

class FriseScript : public DocumentTest, public ::testing::WithParamInterface<std::string> {
protected:
  void SetUp() override {
    DocumentTest::SetUp();
    avant = fs::current_path();
    // The routines and their figure are those of the companion's cases.
    fs::current_path(fs::path(TRAJ_TEST_DATA) / "commandes");
  }
  void TearDown() override {
    fs::current_path(avant);
    DocumentTest::TearDown();
  }

  // Runs one line of a script and says what came of it.
  std::string Execute(const std::string& ligne) {
    std::istringstream in(ligne);
    std::string cmd;
    in >> cmd;
    std::vector<double> v;
    std::string mot;
    std::string nom;
    if (cmd == "routine") {
      in >> nom;
      cadre = std::make_unique<TFenCadre2>();
      cadre->SetupWindow();
      if (!LitRoutine(*cadre, nom)) return "illisible\n";
      frise = ConstruitFrise();
      return "";
    }
    if (cmd == "repere") return Repere(in);
    for (double x; in >> x;) v.push_back(x);
    auto arg = [&](std::size_t i) { return i < v.size() ? v[i] : 0.0; };
    std::string r;
    if (cmd == "temps") {  // BPM T0 FROM TO
      const TTempo t{arg(0), arg(1)};
      const auto b = Battements(t, arg(2), arg(3));
      if (b.empty()) r += "  aucun\n";
      for (const TBattement& x : b) r += "  " + std::to_string(x.Numero) + " " + N(x.T) + (x.Fort ? " fort" : "") + "\n";
    } else if (cmd == "tape") {  // T T T ...: each tap, then the tempo when it gives one
      TTapeur tapeur;
      TTempo t;
      for (double x : v) {
        const bool donne = tapeur.Tape(x, t);
        r += "  " + N(x) + " : " + std::to_string(tapeur.Nombre()) + " tapes" +
             (donne ? ", TEMPO " + N(t.Bpm) + " " + N(t.T0) : "") + "\n";
      }
    } else if (cmd == "aligne") {  // BPM T0 PIXELS_PAR_CENTIEME T [MARK...]
      const TTempo t{arg(0), arg(1)};
      std::vector<TRepere> reperes;
      for (std::size_t i = 4; i < v.size(); ++i) reperes.push_back({static_cast<float>(v[i]), ""});
      r = "  " + N(Aligne(arg(3), t, reperes, arg(2))) + "\n";
    } else if (cmd == "regle") {  // PIXELS_PAR_CENTIEME [T...]
      const double pas = PasRegle(arg(0));
      r = "  pas " + N(pas);
      for (std::size_t i = 1; i < v.size(); ++i) r += " " + TexteTemps(v[i], pas);
      r += "\n";
    } else if (cmd == "ajuste") {  // FROM TO WIDTH
      vue = Ajuste(arg(0), arg(1), static_cast<int>(arg(2)));
      r = "  vue " + N(vue.Debut) + " " + N(vue.PixelsParCentieme) + "\n";
    } else if (cmd == "zoome") {  // X FACTOR
      vue = Zoome(vue, arg(0), arg(1));
      r = "  vue " + N(vue.Debut) + " " + N(vue.PixelsParCentieme) + " ; x " + N(arg(0)) + " au temps " +
          N(vue.T(arg(0))) + "\n";
    } else if (cmd == "vue") {  // START PIXELS_PAR_CENTIEME WIDTH HEIGHT
      vue = {arg(0), arg(1)};
      dispo = Dispose(static_cast<int>(arg(2)), static_cast<int>(arg(3)), static_cast<int>(frise.Pistes.size()));
      r = "  feuilles " + std::to_string(dispo.YFeuilles) + " onde " + std::to_string(dispo.YOnde) + " pistes " +
          std::to_string(dispo.YPistes) + " de " + std::to_string(dispo.HauteurPiste) + "\n";
    } else if (cmd == "reperes") {  // T T ...
      reperes.clear();
      for (double x : v) reperes.push_back({static_cast<float>(x), "r"});
    } else if (cmd == "touche") {  // X Y
      const TTouche t = Touche(frise, dispo, vue, reperes, TPoint(static_cast<int>(arg(0)), static_cast<int>(arg(1))));
      static const char* zones[] = {"aucune", "règle", "feuilles", "onde", "piste"};
      r = "  " + std::string(zones[static_cast<int>(t.Zone)]) + " t " + N(t.T);
      if (t.Piste >= 0) r += " piste " + std::to_string(t.Piste);
      if (t.Bloc) r += " bloc « " + t.Bloc->Nom + " » " + N(t.Bloc->Debut) + "-" + N(t.Bloc->Fin);
      if (t.Fin) r += " fin de « " + t.Fin->Nom + " »";
      if (t.Feuille) r += " feuille " + std::to_string(t.Feuille);
      if (t.Repere >= 0) r += " repère " + std::to_string(t.Repere);
      r += "\n";
    } else {
      r = "  commande inconnue\n";
    }
    return r;
  }

  // repere ajoute T | deplace I T | renomme I NAME ("\n" a line break) | supprime I: what it
  // refused, then the routine's lines of marks.
  static std::string Repere(std::istringstream& in) {
    std::string action, mot;
    in >> action;
    auto nombre = [&] { return in >> mot ? std::strtod(mot.c_str(), nullptr) : 0.0; };
    bool fait = true;
    if (action == "ajoute") {
      AjouteRepere(nombre());
    } else {
      const auto i = static_cast<std::size_t>(nombre());
      if (action == "deplace") {
        fait = DeplaceRepere(i, nombre());
      } else if (action == "renomme") {
        std::string nom;
        std::getline(in >> std::ws, nom);
        for (std::size_t p; (p = nom.find("\\n")) != std::string::npos;) nom.replace(p, 2, "\n");
        fait = RenommeRepere(i, nom);
      } else {
        fait = SupprimeRepere(i);
      }
    }
    std::string lignes;
    AjouteLignesRythme(lignes);
    std::string r = fait ? "" : "  refusé\n";
    std::istringstream l(lignes);
    for (std::string ligne; std::getline(l, ligne);) r += "  " + ligne + "\n";
    return r;
  }

  fs::path avant;
  std::unique_ptr<TFenCadre2> cadre;
  TFrise frise;
  TVueTemps vue;
  TDisposition dispo;
  std::vector<TRepere> reperes;
};

std::vector<std::string> Scripts() {
  std::vector<std::string> noms;
  for (const fs::directory_entry& e : fs::directory_iterator(fs::path(TRAJ_TEST_DATA) / "frise"))
    if (e.path().extension() == ".txt") noms.push_back(e.path().stem().string());
  std::sort(noms.begin(), noms.end());
  return noms;
}

}  // namespace

TEST_P(FriseScript, GivesItsExpectedOutput) {
  const fs::path dossier = fs::path(TRAJ_TEST_DATA) / "frise";
  std::istringstream script(LitTout(dossier / (GetParam() + ".txt")));
  std::string obtenu;
  for (std::string ligne; std::getline(script, ligne);) {
    obtenu += ligne + "\n";
    if (ligne.empty() || ligne[0] == '#') continue;
    obtenu += Execute(ligne);
  }
  CompareAvecAttendu(obtenu, dossier / (GetParam() + ".attendu"),
                     fs::temp_directory_path() / ("frise-" + GetParam() + "-" + std::to_string(getpid())));
}

INSTANTIATE_TEST_SUITE_P(Scripts, FriseScript, ::testing::ValuesIn(Scripts()),
                         [](const ::testing::TestParamInfo<std::string>& i) { return i.param; });
