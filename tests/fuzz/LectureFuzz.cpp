// Any bytes, read as a routine: the reader must neither crash nor read out of bounds, and
// what it builds must survive the writer and a whole-document update.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "files/Ecriture.h"
#include "files/Lecture.h"
#include "model/Document.h"
#include "platform/Dialogues.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
  static TDialoguesMuets muets;
  SetDialogues(&muets);
  ReinitialiseDocument();
  {
    TFenCadre2 cadre;
    cadre.SetupWindow();
    LitRoutineTexte(cadre, std::string_view(reinterpret_cast<const char*>(donnees), taille));
    const std::string texte = TexteRoutine();
    TFenDessin::MiseAJourVTotale();
    (void)texte;
    ReinitialiseDocument();
  }
  return 0;
}
