#pragma once
// Printing: the printer's settings, the print job's page loop, and the device that a job
// draws on. The device is the platform's (Qt's printers and PDF files); the loop and the
// settings are plain, so that what is printed can be tested on a recording surface.
#include <memory>
#include <string>

#include "platform/DC.h"

// Margins of the page, in hundredths of a millimetre.
struct TMarges {
  int Gauche = 0;
  int Haut = 0;
  int Droite = 0;
  int Bas = 0;
  friend bool operator==(const TMarges&, const TMarges&) = default;
};

struct TDonneesImprimante {
  std::string Imprimante;  // the system's printer; empty: its default one
  std::string Fichier;     // not empty: the job goes to this PDF file instead, in one copy
  int Copies = 1;
  TSize Papier{21000, 29700};  // hundredths of a millimetre, the sheet held upright
  bool Paysage = false;
  TMarges Marges;
  friend bool operator==(const TDonneesImprimante&, const TDonneesImprimante&) = default;
};

// What a job prints: asked page by page whether there is one more, then to print it.
class TPrintout {
public:
  explicit TPrintout(std::string titre) : Titre(std::move(titre)) {}
  virtual ~TPrintout() = default;

  const std::string& GetTitle() const { return Titre; }
  // Set by the job while it runs: the device's surface and the size of a page on it, in
  // device units; null and zero outside a job.
  void SetPrintParams(TDC* dc, TSize taillePage) {
    DC = dc;
    PageSize = taillePage;
  }

  // Pages count from 1.
  virtual bool HasPage(int page) = 0;
  virtual void PrintPage(int page, TRect& rect, unsigned options) = 0;

protected:
  TDC* DC = nullptr;
  TSize PageSize;

private:
  std::string Titre;
};

// A running job on a device. Each page starts on a surface in its start state.
class TTravailImpression {
public:
  virtual ~TTravailImpression() = default;
  virtual TDC& GetDC() = 0;
  virtual TSize GetPageSize() const = 0;  // device units
  virtual bool NouvellePage() = 0;
  // Ends the job; false when it could not be completed.
  virtual bool Termine() = 0;
};

class TPeripheriqueImpression {
public:
  virtual ~TPeripheriqueImpression() = default;
  // A job on the printer or file that donnees name; null when none can be started.
  virtual std::unique_ptr<TTravailImpression> Commence(const TDonneesImprimante& donnees,
                                                       const std::string& titre) = 0;
};

TPeripheriqueImpression& PeripheriqueImpression();
// Installs p (not owned); null brings back the default one, which has no printer at all.
void SetPeripheriqueImpression(TPeripheriqueImpression* p);

class TPrinter {
public:
  virtual ~TPrinter() = default;

  TDonneesImprimante& GetDonnees() { return Donnees; }
  const TDonneesImprimante& GetDonnees() const { return Donnees; }
  // The paper as it lies on the page, landscape turning it, in hundredths of a millimetre.
  TSize GetPageSize() const;

  // The page setup dialog; its changes count from the next job.
  void Setup();
  // Prints every page that printout has, after the print dialog when prompt is set.
  // False when the dialog was cancelled or the job failed; a failure is told in a box.
  bool Print(TPrintout& printout, bool prompt);
  // The pages that the last job printed.
  int GetPagesImprimees() const { return PagesImprimees; }

protected:
  TDonneesImprimante Donnees;

private:
  int PagesImprimees = 0;
};
