#include "gui/gl/RenduGL.h"

#include "platform/ErreursRendu.h"
#include "gui/gl/SurfaceGL.h"

#include <QImage>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLShaderProgram>
#include <QOpenGLTexture>
#include <QOpenGLVersionFunctionsFactory>

#include <algorithm>

namespace {
// Flat shading: colour and normal are the face's, taken from its first vertex. Sails are
// thin, so a face lit from behind shows the side that looks at the camera.
const char* const SOMMETS_MODELE = R"(#version 330 core
layout(location = 0) in vec3 position;
layout(location = 1) in vec3 normale;
layout(location = 2) in vec3 couleur;
uniform mat4 modele;
uniform mat4 vueProjection;
flat out vec3 normaleMonde;
flat out vec3 couleurFace;
out vec3 positionMonde;
void main() {
  vec4 p = modele * vec4(position, 1.0);
  positionMonde = p.xyz;
  normaleMonde = mat3(modele) * normale;
  couleurFace = couleur;
  gl_Position = vueProjection * p;
}
)";
const char* const PIXELS_MODELE = R"(#version 330 core
flat in vec3 normaleMonde;
flat in vec3 couleurFace;
in vec3 positionMonde;
uniform vec3 lumiere;   // where the sun's light goes; zero with no sun
uniform vec3 camera;
out vec4 couleur;
void main() {
  vec3 n = normalize(normaleMonde);
  if (dot(n, camera - positionMonde) < 0.0) n = -n;
  float eclairement = max(dot(n, -lumiere), 0.0);
  couleur = vec4(couleurFace * eclairement, 1.0);
}
)";
// The backdrop: one triangle that covers the whole picture, behind everything.
const char* const SOMMETS_FOND = R"(#version 330 core
out vec2 coord;
void main() {
  vec2 p = vec2(float((gl_VertexID << 1) & 2), float(gl_VertexID & 2));
  coord = p;
  gl_Position = vec4(p * 2.0 - 1.0, 1.0, 1.0);
}
)";
const char* const PIXELS_FOND = R"(#version 330 core
in vec2 coord;
uniform sampler2D image;
out vec4 couleur;
void main() { couleur = texture(image, coord); }
)";

// Strokes: each segment becomes a band of constant width on the picture, cut at the front
// plane first so that a line passing beside the camera keeps the part in front of it.
const char* const SOMMETS_TRAITS = R"(#version 330 core
layout(location = 0) in vec3 position;
layout(location = 1) in vec4 couleur;
uniform mat4 vueProjection;
out vec4 couleurSommet;
void main() {
  couleurSommet = couleur;
  gl_Position = vueProjection * vec4(position, 1.0);
}
)";
const char* const BANDES_TRAITS = R"(#version 330 core
layout(lines) in;
layout(triangle_strip, max_vertices = 4) out;
in vec4 couleurSommet[];
out vec4 couleurTrait;
uniform vec2 demiTaille;  // half the picture, pixels
uniform float largeur;    // pixels
void main() {
  vec4 a = gl_in[0].gl_Position, b = gl_in[1].gl_Position;
  vec4 ca = couleurSommet[0], cb = couleurSommet[1];
  float da = a.z + a.w, db = b.z + b.w;
  if (da < 0.0 && db < 0.0) return;
  if (da < 0.0) { float f = da / (da - db); a = mix(a, b, f); ca = mix(ca, cb, f); }
  else if (db < 0.0) { float f = db / (db - da); b = mix(b, a, f); cb = mix(cb, ca, f); }
  vec2 d = (b.xy / b.w - a.xy / a.w) * demiTaille;
  if (dot(d, d) < 1e-8) d = vec2(1.0, 0.0);
  vec2 n = normalize(vec2(-d.y, d.x)) * (0.5 * largeur) / demiTaille;
  gl_Position = a + vec4(n * a.w, 0.0, 0.0); couleurTrait = ca; EmitVertex();
  gl_Position = a - vec4(n * a.w, 0.0, 0.0); couleurTrait = ca; EmitVertex();
  gl_Position = b + vec4(n * b.w, 0.0, 0.0); couleurTrait = cb; EmitVertex();
  gl_Position = b - vec4(n * b.w, 0.0, 0.0); couleurTrait = cb; EmitVertex();
  EndPrimitive();
}
)";
const char* const PIXELS_TRAITS = R"(#version 330 core
in vec4 couleurTrait;
out vec4 couleur;
void main() { couleur = couleurTrait; }
)";
// The ground: a square of the plane y = 0 around the window, a pale meadow crossed by a faint
// grid every 10 units, so that distance and slope read.
const char* const SOMMETS_SOL = R"(#version 330 core
uniform mat4 vueProjection;
out vec2 sol;
void main() {
  const vec2 coins[6] = vec2[6](vec2(-1, -1), vec2(1, -1), vec2(1, 1), vec2(-1, -1), vec2(1, 1), vec2(-1, 1));
  sol = coins[gl_VertexID] * 600.0;
  gl_Position = vueProjection * vec4(sol.x, 0.0, sol.y, 1.0);
}
)";
const char* const PIXELS_SOL = R"(#version 330 core
in vec2 sol;
out vec4 couleur;
void main() {
  vec2 g = abs(fract(sol / 10.0 - 0.5) - 0.5) / fwidth(sol / 10.0);
  float trait = 1.0 - min(min(g.x, g.y), 1.0);
  float touffes = fract(sin(dot(floor(sol * 0.5), vec2(12.9898, 78.233))) * 43758.5453);
  vec3 pre = vec3(0.62, 0.74, 0.50) * (0.94 + 0.06 * touffes);
  couleur = vec4(mix(pre, vec3(0.48, 0.58, 0.40), 0.6 * trait), 1.0);
}
)";

// The front clipping plane, at the distance the camera's field of view is told for.
constexpr float AVANT = 1.0f;
// Tangent of the horizontal half-angle of view.
constexpr float DEMI_CHAMP = 0.5f;

QVector3D Vers(const TVecteur3& v) { return {v.x, v.y, v.z}; }
}  // namespace

TRenduGL::TRenduGL(TSurfaceGL& surface) : surface_(surface) {}

TRenduGL::~TRenduGL() {
  if (!gl_ || !surface_.Active()) return;
  for (std::size_t m = 0; m < modeles_.size(); ++m) LibereModele(static_cast<int>(m));
  if (vaoFond_) gl_->glDeleteVertexArrays(1, &vaoFond_);
  for (TTraitsGL& t : traits_)
    if (t.Vao) {
      gl_->glDeleteVertexArrays(1, &t.Vao);
      gl_->glDeleteBuffers(1, &t.Vbo);
    }
  fond_.reset();
  image_.reset();
  programmeModele_.reset();
  programmeFond_.reset();
  programmeTraits_.reset();
  programmeSol_.reset();
}

long TRenduGL::Connecte() {
  if (gl_) return 0;
  if (!surface_.Active()) return DISPERR_PASDECONTEXTE;
  QOpenGLContext* contexte = surface_.Contexte();
  const QSurfaceFormat format = contexte->format();
  if (contexte->isOpenGLES() || format.version() < qMakePair(3, 3)) return DISPERR_VERSIONGL;
  auto* fonctions = QOpenGLVersionFunctionsFactory::get<QOpenGLFunctions_3_3_Core>(contexte);
  if (!fonctions || !fonctions->initializeOpenGLFunctions()) return DISPERR_VERSIONGL;
  gl_ = fonctions;
  if (long r = CompileShaders()) {
    gl_ = nullptr;
    return r;
  }
  gl_->glGenVertexArrays(1, &vaoFond_);
  return 0;
}

long TRenduGL::CompileShaders() {
  programmeModele_ = std::make_unique<QOpenGLShaderProgram>();
  programmeFond_ = std::make_unique<QOpenGLShaderProgram>();
  programmeTraits_ = std::make_unique<QOpenGLShaderProgram>();
  programmeSol_ = std::make_unique<QOpenGLShaderProgram>();
  const bool ok = programmeModele_->addShaderFromSourceCode(QOpenGLShader::Vertex, SOMMETS_MODELE) &&
                  programmeModele_->addShaderFromSourceCode(QOpenGLShader::Fragment, PIXELS_MODELE) &&
                  programmeModele_->link() &&
                  programmeFond_->addShaderFromSourceCode(QOpenGLShader::Vertex, SOMMETS_FOND) &&
                  programmeFond_->addShaderFromSourceCode(QOpenGLShader::Fragment, PIXELS_FOND) &&
                  programmeFond_->link() &&
                  programmeTraits_->addShaderFromSourceCode(QOpenGLShader::Vertex, SOMMETS_TRAITS) &&
                  programmeTraits_->addShaderFromSourceCode(QOpenGLShader::Geometry, BANDES_TRAITS) &&
                  programmeTraits_->addShaderFromSourceCode(QOpenGLShader::Fragment, PIXELS_TRAITS) &&
                  programmeTraits_->link() &&
                  programmeSol_->addShaderFromSourceCode(QOpenGLShader::Vertex, SOMMETS_SOL) &&
                  programmeSol_->addShaderFromSourceCode(QOpenGLShader::Fragment, PIXELS_SOL) &&
                  programmeSol_->link();
  return ok ? 0L : long{DISPERR_SHADER};
}

bool TRenduGL::Existe(TIdCadre cadre) const {
  return cadre >= 0 && static_cast<std::size_t>(cadre) < cadres_.size() && cadres_[cadre].Vivant;
}

bool TRenduGL::DescendDe(TIdCadre cadre, TIdCadre racine) const {
  // Parents are always made before their children, so the walk goes down in number.
  for (TIdCadre c = cadre; c != CADRE_AUCUN; c = cadres_[c].Parent)
    if (c == racine) return true;
  return false;
}

long TRenduGL::CreeCadre(TIdCadre parent, TIdCadre& cadre) {
  if (parent != CADRE_AUCUN && !Existe(parent)) return SCENEERR_CADREINCONNU;
  TCadre nouveau;
  nouveau.Parent = parent;
  cadres_.push_back(nouveau);
  cadre = static_cast<TIdCadre>(cadres_.size() - 1);
  return 0;
}

void TRenduGL::LibereModele(int modele) {
  TModeleGL& m = modeles_[modele];
  if (gl_ && m.Vao) {
    gl_->glDeleteVertexArrays(1, &m.Vao);
    gl_->glDeleteBuffers(1, &m.Vbo);
  }
  m = TModeleGL{};
}

void TRenduGL::LibereCadre(TIdCadre cadre) {
  if (!Existe(cadre)) return;
  const bool actif = gl_ && surface_.Active();
  // While any frame lives, numbers are never given again, so a released frame cannot be
  // mistaken for a new one.
  for (std::size_t c = static_cast<std::size_t>(cadre); c < cadres_.size(); ++c) {
    TCadre& f = cadres_[c];
    if (!f.Vivant || !DescendDe(static_cast<TIdCadre>(c), cadre)) continue;
    if (f.Modele >= 0 && actif) LibereModele(f.Modele);
    f.Vivant = false;
    f.Modele = -1;
  }
  if (!Existe(camera_)) {
    camera_ = CADRE_AUCUN;
    vue_ = false;
  }
  if (!Existe(soleil_)) soleil_ = CADRE_AUCUN;
  // A scene releases its whole world when it ends: the next one starts from empty tables,
  // so that a picture never walks the frames of all the scenes made before it.
  if (std::none_of(cadres_.begin(), cadres_.end(), [](const TCadre& f) { return f.Vivant; })) {
    cadres_.clear();
    modeles_.clear();
    for (TTraitsGL& t : traits_) t.NbSommets = 0;
    sol_ = false;
    demiChamp_ = DEMI_CHAMP;
  }
}

TSize TRenduGL::TailleClient() {
  const QSize t = surface_.Taille();
  return TSize{t.width(), t.height()};
}

long TRenduGL::CreeDispositif(int largeur, int hauteur) {
  if (!gl_) return DISPERR_NONINITIALISE;
  if (largeur <= 0 || hauteur <= 0) return DISPERR_TAILLENULLE;
  if (!surface_.Active()) return DISPERR_PASDECONTEXTE;
  image_.reset();
  auto image = std::make_unique<QOpenGLFramebufferObject>(largeur, hauteur,
                                                          QOpenGLFramebufferObject::CombinedDepthStencil);
  if (!image->isValid()) return DISPERR_TAMPONIMAGE;
  image_ = std::move(image);
  return 0;
}

void TRenduGL::LibereDispositif() {
  // Released with its context current where there is one; Qt defers the rest otherwise.
  if (image_) surface_.Active();
  image_.reset();
  vue_ = false;
}

long TRenduGL::CreeVue(TIdCadre camera, float profondeur) {
  if (!image_) return DISPERR_NONINITIALISE;
  if (!Existe(camera)) return SCENEERR_CADREINCONNU;
  if (!(profondeur > AVANT)) return DISPERR_PARAMETRE;
  camera_ = camera;
  profondeur_ = profondeur;
  vue_ = true;
  return 0;
}

long TRenduGL::CreeSoleil(TIdCadre cadre) {
  if (!Existe(cadre)) return SCENEERR_CADREINCONNU;
  soleil_ = cadre;
  return 0;
}

long TRenduGL::ChargeModele(const std::string& fichier, const std::string& nomCadre, TIdCadre parent,
                            TIdCadre& cadre) {
  if (!gl_ || !surface_.Active()) return DISPERR_NONINITIALISE;
  if (!Existe(parent)) return SCENEERR_CADREINCONNU;
  TModele modele;
  if (long r = ChargeModeleX(fichier, nomCadre, modele)) return r;

  TModeleGL m;
  m.NbSommets = static_cast<int>(modele.Sommets.size());
  gl_->glGenVertexArrays(1, &m.Vao);
  gl_->glGenBuffers(1, &m.Vbo);
  gl_->glBindVertexArray(m.Vao);
  gl_->glBindBuffer(GL_ARRAY_BUFFER, m.Vbo);
  gl_->glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(modele.Sommets.size() * sizeof(TSommetModele)),
                    modele.Sommets.data(), GL_STATIC_DRAW);
  const auto pas = static_cast<GLsizei>(sizeof(TSommetModele));
  gl_->glEnableVertexAttribArray(0);
  gl_->glVertexAttribPointer(0, 3, GL_FLOAT, GL_FALSE, pas,
                             reinterpret_cast<void*>(offsetof(TSommetModele, Position)));
  gl_->glEnableVertexAttribArray(1);
  gl_->glVertexAttribPointer(1, 3, GL_FLOAT, GL_FALSE, pas,
                             reinterpret_cast<void*>(offsetof(TSommetModele, Normale)));
  gl_->glEnableVertexAttribArray(2);
  gl_->glVertexAttribPointer(2, 3, GL_FLOAT, GL_FALSE, pas,
                             reinterpret_cast<void*>(offsetof(TSommetModele, Couleur)));
  gl_->glBindVertexArray(0);
  if (gl_->glGetError() == GL_OUT_OF_MEMORY) {
    modeles_.push_back(m);
    LibereModele(static_cast<int>(modeles_.size() - 1));
    return DISPERR_MEMOIRE;
  }
  modeles_.push_back(m);
  if (long r = CreeCadre(parent, cadre)) return r;
  cadres_[cadre].Modele = static_cast<int>(modeles_.size() - 1);
  return 0;
}

long TRenduGL::ChargeFond(const std::string& fichier) {
  if (!gl_ || !surface_.Active()) return DISPERR_NONINITIALISE;
  QImage image;
  if (!image.load(QString::fromStdString(fichier))) return SCENEERR_FICHIERFOND;
  // Pictures start at their top row, textures at their bottom one.
  fond_ = std::make_unique<QOpenGLTexture>(image.mirrored(), QOpenGLTexture::DontGenerateMipMaps);
  fond_->setMinificationFilter(QOpenGLTexture::Linear);
  fond_->setMagnificationFilter(QOpenGLTexture::Linear);
  fond_->setWrapMode(QOpenGLTexture::ClampToEdge);
  return 0;
}

long TRenduGL::PlaceCadre(TIdCadre cadre, const TVecteur3& position) {
  if (!Existe(cadre)) return SCENEERR_CADREINCONNU;
  QMatrix4x4& pose = cadres_[cadre].Pose;
  pose.setColumn(3, QVector4D(Vers(position), 1.0f));
  return 0;
}

long TRenduGL::OrienteCadre(TIdCadre cadre, const TOrientation& orientation) {
  if (!Existe(cadre)) return SCENEERR_CADREINCONNU;
  // z along vector Z; y is vector Y made square to it; x completes the left-handed frame
  // (the same formula as the right-handed cross product, read in left-handed axes).
  const QVector3D z = Vers(orientation.Z).normalized();
  QVector3D y = Vers(orientation.Y);
  y = (y - QVector3D::dotProduct(y, z) * z).normalized();
  if (z.isNull() || y.isNull()) return DISPERR_PARAMETRE;
  const QVector3D x = QVector3D::crossProduct(y, z);
  QMatrix4x4& pose = cadres_[cadre].Pose;
  pose.setColumn(0, QVector4D(x, 0));
  pose.setColumn(1, QVector4D(y, 0));
  pose.setColumn(2, QVector4D(z, 0));
  return 0;
}

QMatrix4x4 TRenduGL::Projection(int largeur, int hauteur, float profondeur, float demiChamp) {
  // Seen from the camera: x to the right, y up, z ahead. The picture's width spans a
  // half-tangent of 0.5, its height as much as its proportions give.
  const float tx = demiChamp;
  const float ty = demiChamp * static_cast<float>(hauteur) / static_cast<float>(largeur);
  const float n = AVANT, f = profondeur;
  return QMatrix4x4(1 / tx, 0, 0, 0,
                    0, 1 / ty, 0, 0,
                    0, 0, (f + n) / (f - n), -2 * f * n / (f - n),
                    0, 0, 1, 0);
}

long TRenduGL::Efface() {
  if (!gl_ || !image_) return DISPERR_NONINITIALISE;
  if (!surface_.Active()) return DISPERR_PASDECONTEXTE;
  image_->bind();
  gl_->glViewport(0, 0, image_->width(), image_->height());
  gl_->glClearColor(0, 0, 0, 1);
  gl_->glClearDepth(1.0);
  gl_->glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
  if (fond_) {
    gl_->glDisable(GL_DEPTH_TEST);
    programmeFond_->bind();
    fond_->bind(0);
    programmeFond_->setUniformValue("image", 0);
    gl_->glBindVertexArray(vaoFond_);
    gl_->glDrawArrays(GL_TRIANGLES, 0, 3);
    gl_->glBindVertexArray(0);
    fond_->release();
    programmeFond_->release();
  }
  return 0;
}

long TRenduGL::Dessine(TIdCadre racine) {
  if (!gl_ || !image_) return DISPERR_NONINITIALISE;
  if (!vue_) return SCENEERR_PASDEVUE;
  if (!Existe(camera_)) return SCENEERR_PASDECAMERA;
  if (!Existe(racine)) return SCENEERR_CADREINCONNU;
  if (!surface_.Active()) return DISPERR_PASDECONTEXTE;
  // Making the context current may set the viewport back to its surface's size.
  image_->bind();
  gl_->glViewport(0, 0, image_->width(), image_->height());

  const QMatrix4x4& poseCamera = cadres_[camera_].Pose;
  const QMatrix4x4 vueProjection = Projection(image_->width(), image_->height(), profondeur_, demiChamp_) *
                                   poseCamera.inverted();
  const QVector3D lumiere =
      Existe(soleil_) ? cadres_[soleil_].Pose.column(2).toVector3D().normalized() : QVector3D();

  gl_->glEnable(GL_DEPTH_TEST);
  gl_->glDepthFunc(GL_LESS);
  gl_->glDisable(GL_CULL_FACE);
  if (sol_) DessineSol(vueProjection);
  programmeModele_->bind();
  programmeModele_->setUniformValue("vueProjection", vueProjection);
  programmeModele_->setUniformValue("lumiere", lumiere);
  programmeModele_->setUniformValue("camera", poseCamera.column(3).toVector3D());
  for (std::size_t c = 0; c < cadres_.size(); ++c) {
    const TCadre& f = cadres_[c];
    if (!f.Vivant || f.Modele < 0 || !DescendDe(static_cast<TIdCadre>(c), racine)) continue;
    const TModeleGL& m = modeles_[f.Modele];
    programmeModele_->setUniformValue("modele", f.Pose);
    gl_->glBindVertexArray(m.Vao);
    gl_->glDrawArrays(GL_TRIANGLES, 0, m.NbSommets);
  }
  gl_->glBindVertexArray(0);
  programmeModele_->release();
  DessineTraits(vueProjection);
  return gl_->glGetError() == GL_OUT_OF_MEMORY ? long{DISPERR_MEMOIRE} : 0L;
}

long TRenduGL::Affiche() {
  if (!image_) return DISPERR_NONINITIALISE;
  image_->release();
  surface_.Presente(*image_);
  return 0;
}

long TRenduGL::PoseTraits(TGenreTraits genre, const std::vector<TSommetTrait>& sommets, float largeur) {
  const int g = static_cast<int>(genre);
  if (g < 0 || g >= NB_GENRES_TRAITS || !(largeur > 0)) return DISPERR_PARAMETRE;
  if (!gl_ || !surface_.Active()) return DISPERR_NONINITIALISE;
  TTraitsGL& t = traits_[g];
  t.Largeur = largeur;
  t.NbSommets = static_cast<int>(sommets.size() & ~std::size_t{1});
  if (sommets.empty()) return 0;
  if (!t.Vao) {
    gl_->glGenVertexArrays(1, &t.Vao);
    gl_->glGenBuffers(1, &t.Vbo);
    gl_->glBindVertexArray(t.Vao);
    gl_->glBindBuffer(GL_ARRAY_BUFFER, t.Vbo);
    const auto pas = static_cast<GLsizei>(sizeof(TSommetTrait));
    gl_->glEnableVertexAttribArray(0);
    gl_->glVertexAttribPointer(0, 3, GL_FLOAT, GL_FALSE, pas, reinterpret_cast<void*>(offsetof(TSommetTrait, P)));
    gl_->glEnableVertexAttribArray(1);
    gl_->glVertexAttribPointer(1, 4, GL_FLOAT, GL_FALSE, pas, reinterpret_cast<void*>(offsetof(TSommetTrait, r)));
    gl_->glBindVertexArray(0);
  }
  gl_->glBindBuffer(GL_ARRAY_BUFFER, t.Vbo);
  const auto octets = static_cast<GLsizeiptr>(sommets.size() * sizeof(TSommetTrait));
  // The buffer grows when it must and is rewritten in place otherwise.
  if (sommets.size() > t.Capacite) {
    gl_->glBufferData(GL_ARRAY_BUFFER, octets, sommets.data(), GL_DYNAMIC_DRAW);
    t.Capacite = sommets.size();
  } else {
    gl_->glBufferSubData(GL_ARRAY_BUFFER, 0, octets, sommets.data());
  }
  gl_->glBindBuffer(GL_ARRAY_BUFFER, 0);
  return gl_->glGetError() == GL_OUT_OF_MEMORY ? long{DISPERR_MEMOIRE} : 0L;
}

long TRenduGL::ChampVue(float demiTangente) {
  if (!(demiTangente > 0.05f && demiTangente < 20.0f)) return DISPERR_PARAMETRE;
  demiChamp_ = demiTangente;
  return 0;
}

long TRenduGL::MontreSol(bool visible) {
  sol_ = visible;
  return 0;
}

void TRenduGL::DessineSol(const QMatrix4x4& vueProjection) {
  programmeSol_->bind();
  programmeSol_->setUniformValue("vueProjection", vueProjection);
  gl_->glBindVertexArray(vaoFond_);
  gl_->glDrawArrays(GL_TRIANGLES, 0, 6);
  gl_->glBindVertexArray(0);
  programmeSol_->release();
}

void TRenduGL::DessineTraits(const QMatrix4x4& vueProjection) {
  if (std::none_of(std::begin(traits_), std::end(traits_), [](const TTraitsGL& t) { return t.NbSommets > 0; }))
    return;
  // Over the models, hidden by them where they pass behind, blended with what lies under;
  // the picture's own opacity stays whole.
  gl_->glEnable(GL_BLEND);
  gl_->glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ZERO, GL_ONE);
  gl_->glDepthMask(GL_FALSE);
  programmeTraits_->bind();
  programmeTraits_->setUniformValue("vueProjection", vueProjection);
  programmeTraits_->setUniformValue("demiTaille", QVector2D(image_->width() / 2.0f, image_->height() / 2.0f));
  const float echelle = static_cast<float>(image_->width()) / 800.0f;
  for (const TTraitsGL& t : traits_) {
    if (t.NbSommets == 0) continue;
    programmeTraits_->setUniformValue("largeur", std::max(t.Largeur * echelle, 1.0f));
    gl_->glBindVertexArray(t.Vao);
    gl_->glDrawArrays(GL_LINES, 0, t.NbSommets);
  }
  gl_->glBindVertexArray(0);
  programmeTraits_->release();
  gl_->glDepthMask(GL_TRUE);
  gl_->glDisable(GL_BLEND);
}
