#include "platform/Printer.h"

#include <utility>

#include "platform/Dialogues.h"

namespace {

// Without a platform there is no printer: every job is refused.
class TSansImprimante : public TPeripheriqueImpression {
public:
  std::unique_ptr<TTravailImpression> Commence(const TDonneesImprimante&, const std::string&) override {
    return nullptr;
  }
};

TSansImprimante sansImprimante;
TPeripheriqueImpression* peripheriqueCourant = &sansImprimante;

}  // namespace

TPeripheriqueImpression& PeripheriqueImpression() { return *peripheriqueCourant; }

void SetPeripheriqueImpression(TPeripheriqueImpression* p) { peripheriqueCourant = p ? p : &sansImprimante; }

TSize TPrinter::GetPageSize() const {
  TSize s = Donnees.Papier;
  if (Donnees.Paysage) std::swap(s.cx, s.cy);
  return s;
}

void TPrinter::Setup() { Dialogues().MiseEnPage(Donnees); }

bool TPrinter::Print(TPrintout& printout, bool prompt) {
  if (prompt && !Dialogues().Impression(Donnees)) return false;
  PagesImprimees = 0;
  std::unique_ptr<TTravailImpression> travail = PeripheriqueImpression().Commence(Donnees, printout.GetTitle());
  bool ok = travail != nullptr;
  if (ok) {
    const TSize page = travail->GetPageSize();
    for (int n = 1; ok && printout.HasPage(n); ++n) {
      if (n > 1) ok = travail->NouvellePage();
      if (!ok) break;
      printout.SetPrintParams(&travail->GetDC(), page);
      TRect rect(0, 0, page.cx, page.cy);
      printout.PrintPage(n, rect, 0);
      PagesImprimees = n;
    }
    printout.SetPrintParams(nullptr, TSize{});
    ok = travail->Termine() && ok;
  }
  if (!ok)
    Dialogues().MessageBox(Donnees.Fichier.empty() ? "Impossible d'imprimer."
                                                   : "Impossible d'imprimer dans « " + Donnees.Fichier + " ».",
                           printout.GetTitle(), TBoutons::OK, TIcone::Erreur);
  return ok;
}
