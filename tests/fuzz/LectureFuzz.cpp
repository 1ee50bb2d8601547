// Any bytes, read as a routine and inserted after the first sheet of a small routine: the
// readers must neither crash nor read out of bounds, and what they build must survive the
// writer and a whole-document update.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <unistd.h>

#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "editor/boites/BDInsererFic.h"
#include "files/Ecriture.h"
#include "files/Lecture.h"
#include "model/Document.h"
#include "platform/Dialogues.h"

namespace {
// The document the bytes are inserted into: two kites, a synchronisation, sheets 1 and 2.
constexpr std::string_view ROUTINE =
    "POINT   \t0\t0\t2\t1\t0\t\t0  50\t\t0.4\t\t\n"
    "SEGMENT \t0\t1\t2\t1\t200\t\t10  50\t\t0.05\t\t\n"
    "SEGMENT \t0\t2\t2\t2\t400\t\t20  50\t\t0.05\t\t\n"
    "POINT   \t1\t3\t2\t1\t0\t\t0  30\t\t0.4\t\t\n"
    "SEGMENT \t1\t4\t2\t1\t200\t\t10  30\t\t0.05\t\t\t0\t1\n";

// Silent, but it gives the inserted file and takes the insertion dialog: kites crossed when
// the file has two, straight otherwise, cancelled when neither passes.
class TDialoguesInsertion : public TDialoguesMuets {
public:
  std::optional<std::string> FichierAOuvrir(TDialogueFichier&) override { return Chemin; }
  bool Execute(TBD_InsererFic& bd) override {
    bd.Conserver = false;
    bd.Calcul = true;
    bd.DecalageX = "5";
    bd.Correspondance[0] = "2";
    bd.Correspondance[1] = "1";
    if (bd.CloseWindow(1)) return true;
    bd.Correspondance[0] = "1";
    bd.Correspondance[1] = "2";
    return bd.CloseWindow(1);
  }
  std::string Chemin;
};
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
  static TDialoguesInsertion dialogues;
  // A file of this process's own: replays run side by side (both builds, other checkouts)
  // would otherwise insert each other's bytes.
  if (dialogues.Chemin.empty())
    dialogues.Chemin =
        (std::filesystem::temp_directory_path() / ("traj_fuzz_insertion_" + std::to_string(getpid()) + ".rou")).string();
  SetDialogues(&dialogues);
  const std::string_view octets(reinterpret_cast<const char*>(donnees), taille);
  ReinitialiseDocument();
  {
    TFenCadre2 cadre;
    cadre.SetupWindow();
    LitRoutineTexte(cadre, octets);
    const std::string texte = TexteRoutine();
    TFenDessin::MiseAJourVTotale();
    (void)texte;
    ReinitialiseDocument();
  }
  {
    std::ofstream(dialogues.Chemin, std::ios::binary | std::ios::trunc).write(octets.data(), static_cast<std::streamsize>(octets.size()));
    TFenCadre2 cadre;
    cadre.SetupWindow();
    LitRoutineTexte(cadre, ROUTINE);
    cadre.pFenDesActive->OuvrirFeuille();
    const std::string texte = TexteRoutine() + TexteFeuilles(1, cadre.nbFeuilles);
    (void)texte;
    ReinitialiseDocument();
  }
  std::error_code erreur;
  std::filesystem::remove(dialogues.Chemin, erreur);
  return 0;
}
