#include "editor/FenDessin.h"

#include <cstring>

#include "editor/DCClient.h"
#include "editor/FenCadre2.h"

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
std::unique_ptr<TImprimante> TFenDessin::Printer;
TPoint TFenDessin::PointClic;
TPoint TFenDessin::DernierePosition;
ParamTBDColler TFenDessin::ParamColler;
ParamTBDFeuille TFenDessin::ParamFeuille;
ParamTBDInsererFic TFenDessin::ParamInsererFic;

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
  Printer.reset();
  PointClic = TPoint();
  DernierePosition = TPoint();
  ParamColler = ParamTBDColler();
  ParamFeuille = ParamTBDFeuille();
  ParamInsererFic = ParamTBDInsererFic();
}

void TFenDessin::SetCurseur(TCurseur c) {
  CursorType = c;
  Dialogues().SetCurseur(c);
}

TFenDessin::TFenDessin(TFenCadre2* cadre, TFenListe* liste, int num)
    : pFenCadre(cadre), pFenListe(liste), Num(num) {
  EchIE = 1.0f;
  if (!Printer) {
    Printer = std::make_unique<TImprimante>();
    // In hundredths of a millimetre: room above for the header, A4.
    Printer->GetDonnees().Marges = TMarges{500, 2000, 500, 1000};
    Printer->GetDonnees().Papier = TSize{21000, 29700};
    Imp.SetpFenCadrepPrinter(pFenCadre, Printer.get());
  }
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

void TDCClient::InvalidateRect(const TRect& r, bool) {
  if (Feuille.pFenCadre) Feuille.pFenCadre->Invalide(&Feuille, r);
}
