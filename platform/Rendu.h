#pragma once
// What the 3D scene asks of a renderer: a connection to the player's window, frames in a
// tree, a drawing device at the client's size with a viewport from the camera, a
// directional sun, kite models, a cloud backdrop, and one picture drawn at a time. Every
// call returns 0 on success or a failure code of the renderer (platform/ErreursRendu.h),
// which the scene writes to its log; the scene never draws by itself.
#include <string>
#include <vector>

#include "platform/Types.h"

using TIdCadre = int;  // a frame of the scene
inline constexpr TIdCadre CADRE_AUCUN = -1;

struct TVecteur3 {
  float x = 0, y = 0, z = 0;
};

// An orientation: the model's z axis (normal to the sail) and y axis (where the nose points).
// Neither needs unit length.
struct TOrientation {
  TVecteur3 Z{0, 0, 1};
  TVecteur3 Y{0, 1, 0};
};

// What the scene draws beyond its models, each kind kept by the renderer in a buffer of its
// own and sent again only when it moved.
enum class TGenreTraits : int { Fenetre, Pilotes, Lignes, Traines, Securite };
inline constexpr int NB_GENRES_TRAITS = 5;

struct TSommetTrait {
  TVecteur3 P;
  float r = 0, g = 0, b = 0, a = 1;  // colour and opacity, 0 to 1
};

class TRendu {
public:
  virtual ~TRendu() = default;

  // Binds the renderer to the player's window.
  virtual long Connecte() = 0;
  // A new frame under `parent`, or a root with CADRE_AUCUN.
  virtual long CreeCadre(TIdCadre parent, TIdCadre& cadre) = 0;
  // Releases a frame with everything under it (models included).
  virtual void LibereCadre(TIdCadre cadre) = 0;
  // The client area's present size, in pixels.
  virtual TSize TailleClient() = 0;
  // The drawing device at that size, made again when the window's size changes.
  virtual long CreeDispositif(int largeur, int hauteur) = 0;
  virtual void LibereDispositif() = 0;
  // The viewport that looks from `camera`, cut off at `profondeur`.
  virtual long CreeVue(TIdCadre camera, float profondeur) = 0;
  // A white directional light carried by `cadre`, along its z axis.
  virtual long CreeSoleil(TIdCadre cadre) = 0;
  // Loads a model file under `parent`; `cadre` is its frame named `nomCadre`.
  virtual long ChargeModele(const std::string& fichier, const std::string& nomCadre, TIdCadre parent,
                            TIdCadre& cadre) = 0;
  // The picture that fills the background behind the kites.
  virtual long ChargeFond(const std::string& fichier) = 0;
  // Position and orientation are given relative to the world, as the scene places every frame.
  virtual long PlaceCadre(TIdCadre cadre, const TVecteur3& position) = 0;
  virtual long OrienteCadre(TIdCadre cadre, const TOrientation& orientation) = 0;
  // One picture: cleared, drawn from the root frame, then shown.
  virtual long Efface() = 0;
  virtual long Dessine(TIdCadre racine) = 0;
  virtual long Affiche() = 0;

  // The strokes of one kind, pairs of vertices, each stroke `largeur` pixels wide in a
  // picture 800 pixels across (in proportion in others), drawn over the models with the
  // opacity of its vertices; an empty list draws nothing of that kind. A renderer that
  // draws no more than the models may take them and draw nothing.
  virtual long PoseTraits(TGenreTraits, const std::vector<TSommetTrait>&, float /*largeur*/) { return 0; }
  // The tangent of the camera's horizontal half-angle of view, 0.5 until told.
  virtual long ChampVue(float) { return 0; }
  // A ground plane at y = 0, under the scene.
  virtual long MontreSol(bool) { return 0; }
};

// Draws nothing and fails at nothing: the scene of a program that has no window, such as
// the command-line companion, still builds and plays its flight.
class TRenduAbsent : public TRendu {
public:
  long Connecte() override { return 0; }
  long CreeCadre(TIdCadre, TIdCadre& cadre) override {
    cadre = Suivant++;
    return 0;
  }
  void LibereCadre(TIdCadre) override {}
  TSize TailleClient() override { return TSize{400, 200}; }
  long CreeDispositif(int, int) override { return 0; }
  void LibereDispositif() override {}
  long CreeVue(TIdCadre, float) override { return 0; }
  long CreeSoleil(TIdCadre) override { return 0; }
  long ChargeModele(const std::string&, const std::string&, TIdCadre, TIdCadre& cadre) override {
    cadre = Suivant++;
    return 0;
  }
  long ChargeFond(const std::string&) override { return 0; }
  long PlaceCadre(TIdCadre, const TVecteur3&) override { return 0; }
  long OrienteCadre(TIdCadre, const TOrientation&) override { return 0; }
  long Efface() override { return 0; }
  long Dessine(TIdCadre) override { return 0; }
  long Affiche() override { return 0; }

private:
  TIdCadre Suivant = 0;
};

TRendu& Rendu();
// Installs r (not owned); null brings back the absent renderer.
void SetRendu(TRendu* r);
