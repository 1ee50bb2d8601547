#include "editor/FenDessin.h"

#include <cmath>
#include <cstring>

#include "model/Outils.h"
#include "platform/DC.h"

float TFenDessin::EchIE = 1.0f;
int TFenDessin::Fonction = FONCTION_MODIFICATION;
int TFenDessin::Etape = 0;
TElt* TFenDessin::pEltCourant = nullptr;
TElt* TFenDessin::pEltCourant2 = nullptr;
TElt* TFenDessin::pEltSynchro = nullptr;
TElt* TFenDessin::pEltSel = nullptr;
TCurseur TFenDessin::CursorType = TCurseur::Fleche;
int TFenDessin::nCV = 0;
bool TFenDessin::MAJPermanente = false;
bool TFenDessin::MAJUp = true;
TImpression TFenDessin::Imp;

void TFenDessin::ReinitialiseStatiques() {
  EchIE = 1.0f;
  Fonction = FONCTION_MODIFICATION;
  Etape = 0;
  pEltCourant = nullptr;
  pEltCourant2 = nullptr;
  pEltSynchro = nullptr;
  pEltSel = nullptr;
  CursorType = TCurseur::Fleche;
  nCV = 0;
  MAJPermanente = false;
  MAJUp = true;
  Imp = TImpression();
}

TFenDessin::TFenDessin(TFenCadre2* cadre, TFenListe* liste, int num)
    : pFenCadre(cadre), pFenListe(liste), Num(num) {
  EchIE = 1.0f;
}

namespace {
// The sheet's window shows 220 by 110 logical units, from x -112 and y 102 at its top left.
constexpr int LARGEUR_LOGIQUE = 220;
constexpr int HAUTEUR_LOGIQUE = 110;
constexpr TPoint ORIGINE_ECRAN{-112, 102};
}  // namespace

void TFenDessin::SetEchelle(TDC& dc) {
  const int w = TailleClient.cx;
  const int h = TailleClient.cy;
  dc.SetMapMode(TMapMode::Anisotrope);
  dc.SetWindowExt(TSize{LARGEUR_LOGIQUE, -HAUTEUR_LOGIQUE});
  dc.SetViewportExt(TSize{w, h});
  Origine = ORIGINE_ECRAN;
  dc.SetWindowOrg(Origine);
  EchIE = 1.0f;
  EchelleX = static_cast<float>(w) / static_cast<float>(LARGEUR_LOGIQUE);
  EchelleY = static_cast<float>(h) / static_cast<float>(-HAUTEUR_LOGIQUE);
}

TPoint TFenDessin::LPtoDP(const TPointf& p) const {
  const float dx = (p.x - static_cast<float>(Origine.x)) * EchelleX;
  const float dy = (p.y - static_cast<float>(Origine.y)) * EchelleY;
  return TPoint(Tronque(dx), Tronque(dy));
}

TPointf TFenDessin::DPtoLP(const TPoint& p) const {
  if (std::fabs(EchelleX) < EPS || std::fabs(EchelleY) < EPS) return TPointf(0, 0);
  const float lx = static_cast<float>(p.x) / EchelleX + static_cast<float>(Origine.x);
  const float ly = static_cast<float>(p.y) / EchelleY + static_cast<float>(Origine.y);
  return TPointf(static_cast<float>(Tronque(lx)), static_cast<float>(Tronque(ly)));
}

void TFenDessin::MessageErreur(char* texte) {
  if (std::strlen(texte) > TAILLE_MESSAGE_ERREUR) texte[TAILLE_MESSAGE_ERREUR] = '\0';
  Dialogues().MessageStatut(std::string("!!!! ") + texte);
  Dialogues().MessageBeep(-1);
}

void TFenDessin::MessageErreur(const std::string& texte) {
  Dialogues().MessageStatut("!!!! " + texte.substr(0, TAILLE_MESSAGE_ERREUR));
  Dialogues().MessageBeep(-1);
}
