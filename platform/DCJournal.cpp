#include "platform/DCJournal.h"

#include <cstdio>

namespace {
std::string TexteCouleur(TColor c) {
  char texte[8];
  std::snprintf(texte, sizeof texte, "#%02x%02x%02x", c.Red(), c.Green(), c.Blue());
  return texte;
}

std::string TextePlume(const TPen& p) {
  return TexteCouleur(p.Couleur) + '/' + std::to_string(p.Largeur) +
         (p.Trait == TPen::Style::Pointille ? "/dot" : "/solid");
}

std::string TexteFont(const TFont& f) {
  return (f.Nom.empty() ? std::string("none") : f.Nom) + '/' + std::to_string(f.Hauteur) + '/' +
         std::to_string(f.Graisse);
}

void Ajoute(std::string& ligne, int n) {
  ligne += ' ';
  ligne += std::to_string(n);
}

void Ajoute(std::string& ligne, const TRect& r) {
  for (int n : {r.left, r.top, r.right, r.bottom}) Ajoute(ligne, n);
}

void Ajoute(std::string& ligne, const std::string& texte) {
  ligne += ' ';
  ligne += texte;
}
}  // namespace

std::string TDCJournal::Debut(const char* primitive) const {
  std::string ligne(Mode == TMapMode::Anisotrope ? "L " : "D ");
  ligne += primitive;
  return ligne;
}

void TDCJournal::LineTo(const TPoint& p) {
  std::string ligne = Debut("line");
  for (int n : {Position.x, Position.y, p.x, p.y}) Ajoute(ligne, n);
  Ajoute(ligne, TextePlume(Plume));
  Lignes.push_back(std::move(ligne));
  Position = p;
}

void TDCJournal::Rectangle(const TRect& r) {
  std::string ligne = Debut("rect");
  Ajoute(ligne, r);
  Ajoute(ligne, TextePlume(Plume));
  Ajoute(ligne, TexteCouleur(Brosse.Couleur));
  Lignes.push_back(std::move(ligne));
}

void TDCJournal::Ellipse(const TRect& r) {
  std::string ligne = Debut("ellipse");
  Ajoute(ligne, r);
  Ajoute(ligne, TextePlume(Plume));
  Ajoute(ligne, TexteCouleur(Brosse.Couleur));
  Lignes.push_back(std::move(ligne));
}

void TDCJournal::Polygon(const std::vector<TPoint>& points) {
  std::string ligne = Debut("polygon");
  Ajoute(ligne, static_cast<int>(points.size()));
  for (const TPoint& p : points) {
    Ajoute(ligne, p.x);
    Ajoute(ligne, p.y);
  }
  Ajoute(ligne, TextePlume(Plume));
  Ajoute(ligne, TexteCouleur(Brosse.Couleur));
  Lignes.push_back(std::move(ligne));
}

bool TDCJournal::Arc(const TRect& r, const TPoint& debut, const TPoint& fin) {
  std::string ligne = Debut("arc");
  Ajoute(ligne, r);
  for (int n : {debut.x, debut.y, fin.x, fin.y}) Ajoute(ligne, n);
  Ajoute(ligne, TextePlume(Plume));
  Lignes.push_back(std::move(ligne));
  return true;
}

void TDCJournal::SetPixel(const TPoint& p, TColor couleur) {
  std::string ligne = Debut("pixel");
  Ajoute(ligne, p.x);
  Ajoute(ligne, p.y);
  Ajoute(ligne, TexteCouleur(couleur));
  Lignes.push_back(std::move(ligne));
}

void TDCJournal::TextOut(const TPoint& p, const std::string& texte) {
  std::string ligne = Debut("text");
  Ajoute(ligne, p.x);
  Ajoute(ligne, p.y);
  Ajoute(ligne, static_cast<int>(Alignement));
  Ajoute(ligne, TexteFont(Police));
  Ajoute(ligne, TexteCouleur(CouleurTexte));
  Ajoute(ligne, ModeFond == TBkMode::Opaque ? "opaque:" + TexteCouleur(CouleurFond) : std::string("transparent"));
  Ajoute(ligne, '"' + texte + '"');
  Lignes.push_back(std::move(ligne));
}

std::string TDCJournal::Texte() const {
  std::string texte;
  for (const std::string& l : Lignes) {
    texte += l;
    texte += '\n';
  }
  return texte;
}
