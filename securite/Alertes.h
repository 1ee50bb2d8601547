#pragma once
// The editor's findings: computed away from the interface from a copy of the flight, then
// tied to the document (the sheet each is on, the element each kite flies then), listed in
// the "Alertes" panel and marked on the sheet.
#include <string>
#include <vector>

#include "demo/VolHorsScene.h"
#include "securite/Constat.h"
#include "securite/Reglages.h"

class TDC;
class TElt;
class TFenCadre2;

struct TAlerte {
  TConstat Constat;
  TVecteur3 P1, P2;  // where K1 (and K2) fly at the time the finding is shown at
};

// Every finding of the flight with the kites' positions: touches no global, so that it runs
// on a thread of its own.
std::vector<TAlerte> CalculeAlertes(const TPistesVol& vol, int nbCV, const TReglagesSecurite& reglages);

// The findings the editor shows, those of the latest flight checked.
const std::vector<TAlerte>& AlertesEditeur();
void RemplaceAlertesEditeur(std::vector<TAlerte> alertes, const TReglagesSecurite& reglages);
// How many of them are conflicts (a wrap within what is allowed is only said).
int ConflitsEditeur();

// The element kite k flies at time t (hundredths): the first of its track that ends at t or
// later, the last when t is beyond them all; null when the kite has none.
TElt* ElementVole(int k, float t);
// The sheet a finding is shown on: that of the element K1 flies then; 0 when none.
int FeuilleAlerte(const TAlerte& a);
// "CV 1 et CV 3 à 1,80 m à 12,34 s – feuille 3".
std::string TexteAlerte(const TAlerte& a);
// Brings the finding's sheet to the front and selects the element kite K1 (`second`: K2)
// flies then, as a click on its property bar does.
void MontreAlerte(TFenCadre2& cadre, const TAlerte& a, bool second);
// The closest approaches shown on sheet `feuille`: a red circle of the threshold's size
// around each kite of each proximity conflict, on top of the sheet.
void DessineAlertes(TDC& dc, int feuille);
