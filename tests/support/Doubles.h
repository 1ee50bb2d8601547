#pragma once
// Test doubles of the platform: a drawing surface that records, and dialogs that answer
// from a script and remember what they were asked.
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "platform/DC.h"
#include "platform/Dialogues.h"
#include "platform/Horloge.h"

class TDCEnregistreur : public TDC {
public:
  struct Appel {
    std::string Nom;
    std::vector<int> Valeurs;
    std::string Texte;
  };

  void SetMapMode(TMapMode mode) override { Note("SetMapMode", {static_cast<int>(mode)}); }
  void SetWindowExt(const TSize& e) override {
    ExtFenetre = e;
    Note("SetWindowExt", {e.cx, e.cy});
  }
  void SetViewportExt(const TSize& e) override {
    ExtVue = e;
    Note("SetViewportExt", {e.cx, e.cy});
  }
  TSize GetWindowExt() const override { return ExtFenetre; }
  TSize GetViewportExt() const override { return ExtVue; }
  void SetWindowOrg(const TPoint& p) override { Note("SetWindowOrg", {p.x, p.y}); }
  void SelectObject(const TPen& pen) override {
    Note("Pen", {static_cast<int>(pen.Couleur.GetValue()), pen.Largeur, static_cast<int>(pen.Trait)});
  }
  void SelectObject(const TBrush& b) override { Note("Brush", {static_cast<int>(b.Couleur.GetValue())}); }
  void SelectObject(const TFont& f) override { Note("Font", {f.Hauteur, f.Graisse}, f.Nom); }
  void SelectStockObject(TStockObject o) override { Note("Stock", {static_cast<int>(o)}); }
  void MoveToEx(const TPoint& p) override { Note("MoveToEx", {p.x, p.y}); }
  void LineTo(const TPoint& p) override { Note("LineTo", {p.x, p.y}); }
  void Rectangle(const TRect& r) override { Note("Rectangle", {r.left, r.top, r.right, r.bottom}); }
  void Ellipse(const TRect& r) override { Note("Ellipse", {r.left, r.top, r.right, r.bottom}); }
  void Polygon(const std::vector<TPoint>& pts) override {
    std::vector<int> v;
    for (const TPoint& p : pts) v.insert(v.end(), {p.x, p.y});
    Note("Polygon", v);
  }
  bool Arc(const TRect& r, const TPoint& a, const TPoint& b) override {
    Note("Arc", {r.left, r.top, r.right, r.bottom, a.x, a.y, b.x, b.y});
    return true;
  }
  void SetPixel(const TPoint& p, TColor c) override { Note("SetPixel", {p.x, p.y, static_cast<int>(c.GetValue())}); }
  void SetTextAlign(unsigned f) override { Note("SetTextAlign", {static_cast<int>(f)}); }
  void SetTextColor(TColor c) override { Note("SetTextColor", {static_cast<int>(c.GetValue())}); }
  void SetBkColor(TColor c) override { Note("SetBkColor", {static_cast<int>(c.GetValue())}); }
  void SetBkMode(TBkMode m) override { Note("SetBkMode", {static_cast<int>(m)}); }
  void TextOut(const TPoint& p, const std::string& t) override { Note("TextOut", {p.x, p.y}, t); }
  void InvalidateRect(const TRect& r, bool e) override {
    Note("InvalidateRect", {r.left, r.top, r.right, r.bottom, e ? 1 : 0});
  }

  std::vector<Appel> Appels;
  TSize ExtFenetre{1, 1};
  TSize ExtVue{1, 1};

private:
  void Note(std::string nom, std::vector<int> v, std::string texte = {}) {
    Appels.push_back({std::move(nom), std::move(v), std::move(texte)});
  }
};

class TDialoguesScriptes : public TDialogues {
public:
  struct Boite {
    std::string Texte;
    std::string Titre;
    TBoutons Boutons;
    TIcone Icone;
  };

  TReponse MessageBox(const std::string& texte, const std::string& titre, TBoutons boutons,
                      TIcone icone) override {
    Boites.push_back({texte, titre, boutons, icone});
    if (Reponses.empty()) return ParDefaut;
    const TReponse r = Reponses.front();
    Reponses.pop_front();
    return r;
  }
  void MessageBeep(int) override { ++Bips; }
  void MessageStatut(const std::string& texte) override { Statuts.push_back(texte); }
  std::optional<std::string> FichierAOuvrir(TDialogueFichier& d) override {
    Fichiers.push_back(d);
    return Prochain();
  }
  std::optional<std::string> FichierAEnregistrer(TDialogueFichier& d) override {
    Fichiers.push_back(d);
    return Prochain();
  }
  std::optional<std::string> Saisie(const std::string& titre, const std::string& invite,
                                    const std::string& valeur) override {
    Saisies.push_back({titre, invite, valeur});
    return Prochain();
  }
  void SetCurseur(TCurseur c) override { Curseur = c; }

  std::deque<TReponse> Reponses;  // answers to the next boxes
  TReponse ParDefaut = TReponse::OK;  // the answer once they are used up
  std::deque<std::optional<std::string>> Textes;  // answers to the next file or input dialogs
  std::vector<Boite> Boites;
  std::vector<TDialogueFichier> Fichiers;  // the file dialogs shown, as they were asked
  struct DemandeSaisie {
    std::string Titre;
    std::string Invite;
    std::string Valeur;
  };
  std::vector<DemandeSaisie> Saisies;  // the input dialogs shown, with their first value
  std::vector<std::string> Statuts;
  int Bips = 0;
  TCurseur Curseur = TCurseur::Fleche;

private:
  std::optional<std::string> Prochain() {
    if (Textes.empty()) return std::nullopt;
    auto t = Textes.front();
    Textes.pop_front();
    return t;
  }
};

// A clock that moves only when the test moves it.
class THorlogeTest : public THorloge {
public:
  std::uint32_t GetTickCount() override { return Ms; }
  std::uint32_t Ms = 0;
};
