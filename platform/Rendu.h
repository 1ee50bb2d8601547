#pragma once
// What the 3D scene asks of a renderer: a device at the player's size, frames in a tree,
// a camera with its far plane, a directional sun, kite models and a backdrop, and one
// picture drawn at a time. Every call returns 0 on success or a failure code of the
// renderer, which the scene writes to its log; the scene never draws by itself.
#include <string>

using TIdCadre = int;  // a frame of the scene; 0 is the root

struct TVecteur3 {
  float x = 0, y = 0, z = 0;
};

class TRendu {
public:
  virtual ~TRendu() = default;

  // The drawing device and its viewport, made again when the client area changes size.
  virtual int CreeDispositif(int largeur, int hauteur) = 0;
  virtual void LibereDispositif() = 0;

  virtual int CreeCadre(TIdCadre parent, TIdCadre& cadre) = 0;
  virtual int CreeVue(TIdCadre camera, float profondeur) = 0;
  virtual int CreeSoleil(TIdCadre cadre, float r, float g, float b) = 0;
  // Loads a model file under parent; the frame named nomCadre inside it is returned.
  virtual int ChargeModele(const std::string& fichier, const std::string& nomCadre, TIdCadre parent,
                           TIdCadre& cadre) = 0;
  virtual int ChargeFond(const std::string& fichier) = 0;

  // Places a frame: position, then the orientation given by its forward and up vectors.
  virtual int PlaceCadre(TIdCadre cadre, const TVecteur3& position, const TVecteur3& devant,
                         const TVecteur3& haut) = 0;
  virtual int Dessine() = 0;
};
