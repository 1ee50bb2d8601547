#pragma once
// Qt's printers and PDF files as the device of a print job, and the printer's settings
// carried to and from a QPrinter for Qt's print and page setup dialogs.
#include <QPrinter>

#include "platform/Printer.h"

// The settings onto printer. With marges set, the margins are the page layout's, as the page
// setup dialog edits them; otherwise the layout has none, or only what the printer needs,
// since a page's margins are laid out by what is printed.
void VersQPrinter(const TDonneesImprimante& donnees, QPrinter& printer, bool marges);
// Back from printer, after a dialog: printer or PDF file, copies, paper, margins.
void DepuisQPrinter(const QPrinter& printer, TDonneesImprimante& donnees);

class TPeripheriqueQt : public TPeripheriqueImpression {
public:
  // PDF files are written at this resolution: symbols, pens and the header are sized in
  // device units, for printers of about this fineness.
  static constexpr int ResolutionPdf = 300;

  std::unique_ptr<TTravailImpression> Commence(const TDonneesImprimante& donnees,
                                               const std::string& titre) override;
};
