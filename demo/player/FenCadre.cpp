#include "demo/player/FenCadre.h"

#include "demo/D3DDemo.h"
#include "demo/player/FenApp.h"
#include "model/Document.h"
#include "platform/Dialogues.h"

TFenCadre::TFenCadre() : pClient(std::make_unique<TFenApp>(this)) {}

TFenCadre::~TFenCadre() = default;

void TFenCadre::SetTexte(TZoneLecteur zone, const std::string& texte) {
  std::string& t = Textes[static_cast<int>(zone)];
  // T is written at every frame: the view hears only of real changes.
  if (t == texte) return;
  t = texte;
  if (pVue) pVue->TexteChange(zone, t);
}

void TFenCadre::CocheEquipe(int team) {
  EquipeCochee = team;
  if (pVue) pVue->EquipeCochee(team);
}

bool TFenCadre::CanClose() {
  Dialogues().MessageBeep(-1);
  return false;
}

int TFenCadre::EvSize(TTypeTaille type, int hauteurCadre, int largeurClient, int hauteurClient) {
  if (Globals.blDemoOK) {
    if (type == TTypeTaille::Minimisee || type == TTypeTaille::MaxCachee) {
      Globals.blActif = 0;
    } else {
      if (!Globals.pD3DDemo || !Globals.pD3DDemo->blCreateDeviceAndViewport()) {
        delete Globals.pD3DDemo;
        Globals.pD3DDemo = nullptr;
        Globals.blDemoOK = 0;
      }
      Globals.blActif = 1;
    }
  }
  // A new device, or drawing resumed: the picture must be made again.
  pClient->Redessine();
  return hauteurCadre - hauteurClient + largeurClient / 2;
}
