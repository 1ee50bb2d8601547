#include "platform/ErreursRendu.h"

#include <algorithm>
#include <iterator>

namespace {
struct TNom {
  long Code;
  const char* Nom;
};

constexpr TNom NomsDispositif[] = {
    {DISPERR_PASDECONTEXTE, "DISPERR_PASDECONTEXTE"}, {DISPERR_VERSIONGL, "DISPERR_VERSIONGL"},
    {DISPERR_TAILLENULLE, "DISPERR_TAILLENULLE"},     {DISPERR_TAMPONIMAGE, "DISPERR_TAMPONIMAGE"},
    {DISPERR_SHADER, "DISPERR_SHADER"},               {DISPERR_MEMOIRE, "DISPERR_MEMOIRE"},
    {DISPERR_PARAMETRE, "DISPERR_PARAMETRE"},         {DISPERR_INTROUVABLE, "DISPERR_INTROUVABLE"},
    {DISPERR_NONINITIALISE, "DISPERR_NONINITIALISE"}, {DISPERR_OBJETINVALIDE, "DISPERR_OBJETINVALIDE"},
};

constexpr TNom NomsScene[] = {
    {SCENEERR_FICHIERMODELE, "SCENEERR_FICHIERMODELE"}, {SCENEERR_FORMATMODELE, "SCENEERR_FORMATMODELE"},
    {SCENEERR_CADREABSENT, "SCENEERR_CADREABSENT"},     {SCENEERR_FICHIERFOND, "SCENEERR_FICHIERFOND"},
    {SCENEERR_CADREINCONNU, "SCENEERR_CADREINCONNU"},   {SCENEERR_PASDECAMERA, "SCENEERR_PASDECAMERA"},
    {SCENEERR_PASDEVUE, "SCENEERR_PASDEVUE"},           {SCENEERR_LUMIERE, "SCENEERR_LUMIERE"},
    {DISPERR_OBJETINVALIDE, "DISPERR_OBJETINVALIDE"},   {DISPERR_PARAMETRE, "DISPERR_PARAMETRE"},
    {DISPERR_INTROUVABLE, "DISPERR_INTROUVABLE"},       {DISPERR_NONINITIALISE, "DISPERR_NONINITIALISE"},
    {DISPERR_MEMOIRE, "DISPERR_MEMOIRE"},
};

template <std::size_t N>
const char* Cherche(const TNom (&table)[N], long code) {
  const auto t = std::find_if(std::begin(table), std::end(table), [code](const TNom& n) { return n.Code == code; });
  return t == std::end(table) ? nullptr : t->Nom;
}
}  // namespace

const char* NomErreurDispositif(long code) { return Cherche(NomsDispositif, code); }

const char* NomErreurScene(long code) { return Cherche(NomsScene, code); }
