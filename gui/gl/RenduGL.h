#pragma once
// The scene's renderer on OpenGL 3.3 core: frames placed in the world's left-handed
// coordinates (x right, y up, z away from the default camera), kite models read by
// Assimp, one white directional sun with no ambient light, flat shading, the cloud
// picture behind everything, and a camera whose horizontal half-angle of view has the
// tangent 0.5, cut off at 1.0 in front and at the viewport's depth behind.
#include "platform/Rendu.h"
#include "gui/gl/Modele.h"

#include <QMatrix4x4>
#include <QOpenGLFunctions_3_3_Core>

#include <memory>
#include <vector>

class QOpenGLFramebufferObject;
class QOpenGLShaderProgram;
class QOpenGLTexture;
class TSurfaceGL;

class TRenduGL : public TRendu {
public:
  // The surface is not owned and must outlive the renderer.
  explicit TRenduGL(TSurfaceGL& surface);
  ~TRenduGL() override;

  long Connecte() override;
  long CreeCadre(TIdCadre parent, TIdCadre& cadre) override;
  void LibereCadre(TIdCadre cadre) override;
  TSize TailleClient() override;
  long CreeDispositif(int largeur, int hauteur) override;
  void LibereDispositif() override;
  long CreeVue(TIdCadre camera, float profondeur) override;
  long CreeSoleil(TIdCadre cadre) override;
  long ChargeModele(const std::string& fichier, const std::string& nomCadre, TIdCadre parent,
                    TIdCadre& cadre) override;
  long ChargeFond(const std::string& fichier) override;
  long PlaceCadre(TIdCadre cadre, const TVecteur3& position) override;
  long OrienteCadre(TIdCadre cadre, const TOrientation& orientation) override;
  long Efface() override;
  long Dessine(TIdCadre racine) override;
  long Affiche() override;
  long PoseTraits(TGenreTraits genre, const std::vector<TSommetTrait>& sommets, float largeur) override;
  long MontreSol(bool visible) override;
  long ChampVue(float demiTangente) override;

  // The device's picture, null while there is no device.
  QOpenGLFramebufferObject* ImageCourante() const { return image_.get(); }

  // The projection of the camera for a picture of that size, in the world's coordinates
  // seen from the camera: for tests and for whoever needs to know where a point lands.
  static QMatrix4x4 Projection(int largeur, int hauteur, float profondeur, float demiChamp = 0.5f);

private:
  struct TCadre {
    TIdCadre Parent = CADRE_AUCUN;
    bool Vivant = true;
    QMatrix4x4 Pose;  // relative to the world: the scene places every frame so
    int Modele = -1;  // index in modeles_, or none
  };
  struct TModeleGL {
    unsigned Vao = 0, Vbo = 0;
    int NbSommets = 0;
  };

  struct TTraitsGL {
    unsigned Vao = 0, Vbo = 0;
    int NbSommets = 0;
    std::size_t Capacite = 0;  // vertices the buffer holds
    float Largeur = 1;
  };

  bool Existe(TIdCadre cadre) const;
  void DessineSol(const QMatrix4x4& vueProjection);
  void DessineTraits(const QMatrix4x4& vueProjection);
  bool DescendDe(TIdCadre cadre, TIdCadre racine) const;
  void LibereModele(int modele);
  long CompileShaders();

  TSurfaceGL& surface_;
  QOpenGLFunctions_3_3_Core* gl_ = nullptr;
  std::vector<TCadre> cadres_;
  std::vector<TModeleGL> modeles_;
  std::unique_ptr<QOpenGLFramebufferObject> image_;
  std::unique_ptr<QOpenGLShaderProgram> programmeModele_;
  std::unique_ptr<QOpenGLShaderProgram> programmeFond_;
  std::unique_ptr<QOpenGLShaderProgram> programmeTraits_;
  std::unique_ptr<QOpenGLShaderProgram> programmeSol_;
  TTraitsGL traits_[NB_GENRES_TRAITS];
  bool sol_ = false;
  float demiChamp_ = 0.5f;
  std::unique_ptr<QOpenGLTexture> fond_;
  unsigned vaoFond_ = 0;
  TIdCadre camera_ = CADRE_AUCUN;
  TIdCadre soleil_ = CADRE_AUCUN;
  float profondeur_ = 400.0f;
  bool vue_ = false;
};
