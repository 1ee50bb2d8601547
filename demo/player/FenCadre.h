#pragma once
// The player frame, captioned "CV": it holds what its bars show, keeps its client twice as
// wide as high, and cannot be closed by itself: it ends with the program. The window that
// shows it is a view over this object, told of every change through TVueLecteur.
#include <memory>
#include <string>

class TFenApp;

// Where the player writes a text: the status bar's message area, its gadgets T, V and Pas,
// the start-instant gadget of the control bar, and the closest two kites' distance.
enum class TZoneLecteur { Message, T, V, Pas, Debut, Distance };
inline constexpr int NB_ZONES_LECTEUR = 6;

// How the frame was resized; the numbers are those of the platform's size event.
enum class TTypeTaille { Normale = 0, Minimisee = 1, Maximisee = 2, MaxAffichee = 3, MaxCachee = 4 };

class TVueLecteur {
public:
  virtual ~TVueLecteur() = default;
  virtual void TexteChange(TZoneLecteur zone, const std::string& texte) = 0;
  // The team item checked in "&Options"; the four others are unchecked.
  virtual void EquipeCochee(int team) = 0;
  // The player wants an idle step (TFenApp::ImageAttendue has become true); a view that
  // draws nothing has nothing to do.
  virtual void ImageDemandee() {}
};

class TFenCadre {
public:
  // Makes its client, the player TFenApp.
  TFenCadre();
  ~TFenCadre();
  TFenCadre(const TFenCadre&) = delete;
  TFenCadre& operator=(const TFenCadre&) = delete;

  TFenApp& Client() { return *pClient; }
  // The view to tell of changes (not owned); null for none.
  void SetVue(TVueLecteur* vue) { pVue = vue; }

  void SetTexte(TZoneLecteur zone, const std::string& texte);
  const std::string& GetTexte(TZoneLecteur zone) const { return Textes[static_cast<int>(zone)]; }
  void CocheEquipe(int team);
  int GetEquipeCochee() const { return EquipeCochee; }
  // Tells the view that the player wants an idle step.
  void DemandeImage() {
    if (pVue) pVue->ImageDemandee();
  }

  bool CanClose();
  // After a resize: the scene stops drawing while minimised or hidden, else gets a device at
  // the new size. Returns the frame height that keeps the client twice as wide as high; the
  // view applies it without moving the frame or changing its width.
  int EvSize(TTypeTaille type, int hauteurCadre, int largeurClient, int hauteurClient);

private:
  std::unique_ptr<TFenApp> pClient;
  TVueLecteur* pVue = nullptr;
  std::string Textes[NB_ZONES_LECTEUR] = {"", "", "", "", "0", ""};
  int EquipeCochee = 1;
};
