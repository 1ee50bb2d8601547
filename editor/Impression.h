#pragma once
// The print job of the editor's sheets, one, two, four or eight to a page under a header
// line, and the state of a print that drawing code asks about: whether a print is running,
// and where and how large a sheet stands on the page.
#include <ctime>
#include <string>

#include "platform/Printer.h"

class TFenCadre2;

class TImpression : public TPrintout {
public:
  TImpression() : TPrintout("Impression de trajectoire CV") {}
  // The state of a print of a given layout, outside any job: what a sheet's paper mapping reads.
  TImpression(bool impression, int lf, int hf, int mx, int my, int nbParPage) : TImpression() {
    blImpression = impression;
    Lf = lf;
    Hf = hf;
    Mx = mx;
    My = my;
    NbParPage = nbParPage;
  }

  void SetpFenCadrepPrinter(TFenCadre2* cadre, TPrinter* printer) {
    pFenCadre = cadre;
    pPrinter = printer;
  }
  // 1, 2, 4 or 8 sheets a page; any other number leaves the layout as it was.
  void SetNbParPage(int n);

  // Refreshes nbPages: every sheet of the frame but the spare last one.
  bool HasPage(int page) override;
  // The header line, then the page's sheets, each painting itself for paper.
  void PrintPage(int page, TRect& rect, unsigned options) override;

  // The header of a page: "- day/month/year - routine - page/pages".
  static std::string Entete(const std::tm& date, const char* fichierRoutine, int page, int nbPages);
  // Today's date, or that of SOURCE_DATE_EPOCH (seconds since 1970, UTC) when it is set,
  // so that a print can be made again identically.
  static std::tm DateImpression();

  TFenCadre2* pFenCadre = nullptr;  // whose sheets are printed
  TPrinter* pPrinter = nullptr;     // paper and margins are read here
  bool blImpression = false;  // a print is running: sheets are mapped onto paper
  int Lf = 0;                 // width of a printed sheet, device units; always 2 * Hf
  int Hf = 0;                 // height of a printed sheet, device units
  int Mx = 0;                 // left margin of the page, device units
  int My = 0;                 // top margin of the page, device units
  int NbParPage = 8;          // sheets on a page: 1, 2, 4 or 8
  int nbPages = 1;            // pages of the job
  // With a kite's number (from 0), a sheet for its pilot: its track in its colour and twice
  // as wide, the others in light grey, its ends labelled; -1 for the plain print.
  int Pilote = -1;
  // "Imprimer pour chaque pilote": the whole routine once for each kite, as above, in one job.
  bool ChaquePilote = false;
  int nbPagesRoutine = 1;  // pages of one pass over the routine
};
