#include "demo/Demonstration.h"

#include "demo/D3DDemo.h"
#include "model/Document.h"
#include "platform/Dialogues.h"
#include "platform/Rendu.h"
#include "platform/Son.h"

namespace {
void FermeMusique() {
  if (!TD3DDemo::MusiqueEnCours) return;
  TD3DDemo::MusiqueEnCours = false;
  if (Son().Arreter("musique")) Dialogues().MessageBox("échec stop", "Musique");
  if (Son().Fermer("musique")) Dialogues().MessageBox("échec fermeture fichier", "Musique");
}
}  // namespace

void InitDemo(int nbCV_, float tFin) {
  FermeMusique();
  if (Globals.blDemoOK) {
    Globals.pD3DDemo->Mode = MODE_PAUSE;
    return;
  }
  auto* scene = new TD3DDemo(Rendu(), &Globals.blDemoOK, nbCV_, tFin, Team);
  if (!Globals.blDemoOK) {
    delete scene;
    scene = nullptr;
  } else {
    Globals.blActif = 1;
  }
  Globals.pD3DDemo = scene;
  TD3DDemo::_Debut = true;
  TD3DDemo::MusiqueEnCours = false;
  if (scene) scene->Mode = MODE_PAUSE;
  if (_FichierMusique[0] != '\0') {
    if (Son().Ouvrir(_FichierMusique, "musique") == 0)
      TD3DDemo::MusiqueEnCours = true;
    else
      Dialogues().MessageBox(
          "Redéfinissez le chemin du fichier .wav avec menu/fichier/musique\n"
          "Vérifiez que le chemin ne possède ni espace, ni caractère accentué\n"
          "N'utilisez pas le répertoire Mes Documents",
          "Echec ouverture Musique");
  }
}

void FermeDemo() {
  FermeMusique();
  Globals.blDemoOK = 0;
  delete Globals.pD3DDemo;
  Globals.pD3DDemo = nullptr;
}
