#include "editor/Impression.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "editor/FenCadre2.h"
#include "editor/FenDessin.h"
#include "equipe/FeuillePilote.h"
#include "model/Document.h"
#include "model/Outils.h"

void TImpression::SetNbParPage(int n) {
  if (n == 1 || n == 2 || n == 4 || n == 8) NbParPage = n;
}

bool TImpression::HasPage(int page) {
  // The spare last sheet is never counted.
  if (pFenCadre) nbPagesRoutine = nbPages = (pFenCadre->nbFeuilles - 2) / NbParPage + 1;
  if (ChaquePilote && nbCV > 1) nbPages = nbPagesRoutine * nbCV;
  return page >= 1 && page <= nbPages;
}

std::string TImpression::Entete(const std::tm& date, const char* fichierRoutine, int page, int nbPages) {
  // The routine's name without its folder, written with either separator.
  const char* nom = fichierRoutine;
  for (const char* c = fichierRoutine; *c; ++c)
    if (*c == '\\' || *c == '/') nom = c + 1;
  const int taille = std::snprintf(nullptr, 0, "- %d/%d/%d - %s - %d/%d", date.tm_mday, date.tm_mon + 1,
                                   date.tm_year + 1900, nom, page, nbPages);
  std::string texte(static_cast<std::size_t>(taille), '\0');
  std::snprintf(texte.data(), texte.size() + 1, "- %d/%d/%d - %s - %d/%d", date.tm_mday, date.tm_mon + 1,
                date.tm_year + 1900, nom, page, nbPages);
  return texte;
}

std::tm TImpression::DateImpression() {
  std::tm date{};
  if (const char* source = std::getenv("SOURCE_DATE_EPOCH"); source && *source) {
    char* fin = nullptr;
    errno = 0;
    const long long secondes = std::strtoll(source, &fin, 10);
    const std::time_t t = static_cast<std::time_t>(secondes);
    if (*fin == '\0' && errno == 0 && secondes >= 0 && gmtime_r(&t, &date)) return date;
  }
  const std::time_t maintenant = std::time(nullptr);
  localtime_r(&maintenant, &date);
  return date;
}

void TImpression::PrintPage(int page, TRect&, unsigned) {
  if (!DC || !pPrinter) return;
  // Sizes on the page: only the paper's width enters the ratio, in both directions.
  const TSize papier = pPrinter->GetPageSize();
  const TMarges& m = pPrinter->GetDonnees().Marges;
  const float r = static_cast<float>(PageSize.cx) / static_cast<float>(papier.cx);
  Mx = Tronque(static_cast<float>(m.Gauche) * r);
  My = Tronque(static_cast<float>(m.Haut) * r);
  const int W = Tronque(static_cast<float>(PageSize.cx) - static_cast<float>(m.Gauche + m.Droite) * r);
  const int H = Tronque(static_cast<float>(PageSize.cy) - static_cast<float>(m.Haut + m.Bas) * r);
  HasPage(page);

  switch (NbParPage) {
    case 1: Lf = W; Hf = Tronque(static_cast<float>(H) * 0.8f); break;
    case 2: Lf = W; Hf = Tronque(static_cast<float>(H / 2) * 0.8f); break;
    case 4: Lf = W / 2; Hf = Tronque(static_cast<float>(H / 2) * 0.8f); break;
    default: Lf = W / 2; Hf = Tronque(static_cast<float>(H / 4) * 0.8f); break;
  }
  // A sheet keeps its proportion of 2 to 1 within the narrower limit.
  if (Lf / 2 < Hf) Hf = Lf / 2;
  Lf = Hf * 2;

  blImpression = true;
  DC->SelectObject(TFont{"Arial", 50, 400, 1});
  // With a sheet for each pilot, the pages of one pass are numbered on their own.
  const int kPilote = ChaquePilote ? (page - 1) / nbPagesRoutine : Pilote;
  const int pageRoutine = ChaquePilote ? (page - 1) % nbPagesRoutine + 1 : page;
  const bool pilote = kPilote >= 0 && kPilote < nbCV;
  std::string entete = Entete(DateImpression(), FichierRoutine, pageRoutine, ChaquePilote ? nbPagesRoutine : nbPages);
  if (pilote) entete += EntetePilote(kPilote);
  DC->TextOut(TPoint(10, 10), entete);
  // The header's font stays selected while the sheets print.
  if (pFenCadre) {
    TCouleursPilote couleurs(pilote ? kPilote : -1);
    const int avant = Pilote;
    Pilote = pilote ? kPilote : -1;  // the pens read it
    for (int i = (pageRoutine - 1) * NbParPage; i < pageRoutine * NbParPage && i <= pFenCadre->nbFeuilles - 2; ++i) {
      pFenCadre->GetFeuille(i)->Paint(*DC, true, TRect());
      if (pilote) EtiquettesPilote(*DC, *pFenCadre->GetFeuille(i), kPilote);
    }
    Pilote = avant;
  }
  blImpression = false;
}
