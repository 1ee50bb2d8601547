#include "demo/D3DDemo.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>

#include "demo/Journal.h"
#include "model/ListeCV.h"
#include "platform/Dialogues.h"
#include "platform/Donnees.h"
#include "platform/Horloge.h"
#include "platform/Son.h"
#include "scene/Cameras.h"
#include "scene/Decor.h"
#include "scene/Pilotes.h"
#include "scene/Traine.h"
#include "securite/Reglages.h"

bool TD3DDemo::_Debut = true;
bool TD3DDemo::MusiqueEnCours = false;
unsigned TD3DDemo::tPrecedent = 0;
float TD3DDemo::tReference = 0;
unsigned TD3DDemo::TickReference = 0;
unsigned TD3DDemo::TickCourant = 0;
int TD3DDemo::PeriodePrecedente = 0;
int TD3DDemo::ModePrecedent = MODE_AVANT;

namespace {
// The running scene is owned through Globals: a new document has none.
[[maybe_unused]] const bool ReinitialisationEnregistree = (EnregistreReinitialisation([] {
  delete Globals.pD3DDemo;
  Globals.pD3DDemo = nullptr;
  TD3DDemo::ReinitialiseStatiques();
}), true);
}  // namespace

void TD3DDemo::ReinitialiseStatiques() {
  _Debut = true;
  MusiqueEnCours = false;
  tPrecedent = 0;
  tReference = 0;
  TickReference = 0;
  TickCourant = 0;
  PeriodePrecedente = 0;
  ModePrecedent = MODE_AVANT;
}

TD3DDemo::TD3DDemo(TRendu& rendu, int* pOK, int nbCV_, float tFin_, int Team_)
    : nbCV(nbCV_), tFin(tFin_), Team(Team_), Rendu(rendu) {
  *pOK = 0;
  ReglagesParDefaut();
  for (int i = 0; i < NB_CV_MAX; ++i) TabCV[i].Trajectoire(&Trajectoires[i]);
  // Our renderer needs no steps of its own between connecting and the two first frames:
  // the numbers the log gives are those of the steps that exist.
  if (long r = Rendu.Connecte()) {
    DXERROR_DirectDraw(FichierJournal(), 0, r);
    return;
  }
  if (long r = Rendu.CreeCadre(CADRE_AUCUN, Monde)) {
    DXERROR_Direct3DRM(FichierJournal(), 6, r);
    return;
  }
  if (long r = Rendu.CreeCadre(Monde, Vue)) {
    DXERROR_Direct3DRM(FichierJournal(), 7, r);
    return;
  }
  PlaceCamera();
  if (!blCreateDeviceAndViewport()) return;
  if (!blCreateScene()) {
    // Only a camera that cannot be turned gives the scene up; without a backdrop it plays.
    if (long r = Rendu.OrienteCadre(Vue, {{DirX, 0, DirZ}, {0, 1.0f, 0}})) {
      DXERROR_Direct3DRM(FichierJournal(), 9, r);
      return;
    }
  }
  *pOK = 1;
}

const char* TD3DDemo::FichierJournal() {
  // Found at the first failure only: a scene that never fails never looks for its log.
  if (Journal.empty()) Journal = CheminJournal();
  return Journal.c_str();
}

TD3DDemo::~TD3DDemo() {
  if (Monde != CADRE_AUCUN) Rendu.LibereCadre(Monde);
  Rendu.LibereDispositif();
}

bool TD3DDemo::blCreateDeviceAndViewport() {
  Rendu.LibereDispositif();
  const TSize taille = Rendu.TailleClient();
  if (long r = Rendu.CreeDispositif(taille.cx, taille.cy)) {
    DXERROR_Direct3DRM(FichierJournal(), 0, r);
    return false;
  }
  if (long r = Rendu.CreeVue(Vue, 400.0f)) {
    DXERROR_Direct3DRM(FichierJournal(), 2, r);
    return false;
  }
  return true;
}

bool TD3DDemo::blCreateScene() {
  // The sun: no result tested, as a scene without light still shows its kites.
  if (Rendu.CreeCadre(Monde, Soleil) == 0) {
    PlaceSoleil();
    Rendu.CreeSoleil(Soleil);
  }
  // A kite whose model cannot be had is left out of the scene: its keys are laid all the
  // same, but nothing is drawn for it.
  for (int i = 0; i < nbCV && i < NB_CV_MAX; ++i) ChargerFrameCV(i, &Modeles[i], Team);
  if (long r = Rendu.ChargeFond(CheminDonnee("Nuages.bmp"))) {
    DXERROR_Direct3DRM(FichierJournal(), 30, r);
    return false;
  }
  return true;
}

bool TD3DDemo::ChargerFrameCV(int i, TIdCadre* pCadre, int Team_) {
  const int k = i + 1;
  char fichier[52];
  std::snprintf(fichier, sizeof fichier, "CV%d_%d.x", Team_, k);
  char texte[128];
  const std::string chemin = CheminDonnee(fichier);
  std::error_code erreur;
  if (!std::filesystem::is_regular_file(chemin, erreur)) {
    std::snprintf(texte, sizeof texte, "fichier CV%d.x inexistant", k);
    Dialogues().MessageBox(texte, "Ouvrir fichier CV.x");
    return false;
  }
  char nom[32];
  std::snprintf(nom, sizeof nom, "FRAME_CV%d", k);
  if (Rendu.ChargeModele(chemin, nom, Monde, *pCadre)) {
    *pCadre = CADRE_AUCUN;
    std::snprintf(texte, sizeof texte, "Echec chargement CV%d.x : ça va planter!!!", k);
    Dialogues().MessageBox(texte, "CreateScene()");
    return false;
  }
  return true;
}

void TD3DDemo::PlaceSoleil() { Rendu.OrienteCadre(Soleil, {{SoleilX, 0, 0.7f}, {0, 1.0f, 0}}); }

void TD3DDemo::PlaceCamera() {
  // The camera chosen, with the player's moves: turned about the vertical axis, at its
  // distance, at its height.
  const TPoseCamera pose = PoseCamera(Options.Camera, ReglagesSecurite, AngleCamera, DistanceCamera, CameraY);
  CameraX = pose.Position.x;
  CameraZ = pose.Position.z;
  DirX = pose.Direction.x;
  DirZ = pose.Direction.z;
  Rendu.PlaceCadre(Vue, pose.Position);
  Rendu.OrienteCadre(Vue, {pose.Direction, {0, 1.0f, 0}});
  Rendu.ChampVue(pose.DemiChamp);
}

void TD3DDemo::SegmentSecurite(const TVecteur3& a, const TVecteur3& b) {
  const auto egal = [](const TVecteur3& u, const TVecteur3& v) { return u.x == v.x && u.y == v.y && u.z == v.z; };
  if (Securite && egal(Securite->first, a) && egal(Securite->second, b)) return;
  Securite = std::make_pair(a, b);
  SecuriteChangee = true;
}

void TD3DDemo::SansSegmentSecurite() {
  SecuriteChangee = SecuriteChangee || Securite.has_value();
  Securite.reset();
}

namespace {
// Widths in pixels of a picture 800 across.
constexpr float LARGEUR_TRAINE = 4, LARGEUR_LIGNE = 1, LARGEUR_PILOTE = 2, LARGEUR_FENETRE = 1.5f,
                LARGEUR_SECURITE = 3;
constexpr TSommetTrait Sommet(const TVecteur3& p, float r, float g, float b, float a) { return {p, r, g, b, a}; }
}  // namespace

void TD3DDemo::PoseDecor() {
  // The camera and the trails' length move none of the fixed strokes.
  const bool fixes = !DecorPose || DecorPose->Lignes != Options.Lignes || DecorPose->Sol != Options.Sol ||
                     DecorPose->Fenetre != Options.Fenetre;
  if (fixes) {
    std::vector<TSommetTrait> fenetre, pilotes;
    if (Options.Fenetre) {
      const std::vector<TVecteur3> traits = TraitsFenetre();
      // The edge a little stronger than the quarter lines, both faint against the sky.
      for (std::size_t k = 0; k < traits.size(); ++k)
        fenetre.push_back(Sommet(traits[k], 1, 1, 1, k < 8 ? 0.55f : 0.3f));
    }
    if (Options.Lignes)
      for (int i = 0; i < nbCV && i < NB_CV_MAX; ++i)
        for (const TVecteur3& p : SilhouettePilote(PositionPilote(i, nbCV, ReglagesSecurite), ReglagesSecurite))
          pilotes.push_back(Sommet(p, 0.12f, 0.12f, 0.14f, 1));
    Rendu.PoseTraits(TGenreTraits::Fenetre, fenetre, LARGEUR_FENETRE);
    Rendu.PoseTraits(TGenreTraits::Pilotes, pilotes, LARGEUR_PILOTE);
    Rendu.MontreSol(Options.Sol);
  }
  const float t = static_cast<float>(tCourant);
  if (fixes || t != tDecor || Arriere != ArrierePose || DecorPose->Traines != Options.Traines) {
    std::vector<TSommetTrait> lignes, traines;
    for (int i = 0; i < nbCV && i < NB_CV_MAX; ++i) {
      const TTrajectoire& trajectoire = Trajectoires[i];
      if (Modeles[i] == CADRE_AUCUN || trajectoire.Positions.IsVide()) continue;
      if (Options.Lignes) {
        const TPaire mains = MainsPilote(PositionPilote(i, nbCV, ReglagesSecurite), ReglagesSecurite);
        const TPaire bouts = BoutsAiles(trajectoire.Positions.Echantillonne(t), trajectoire.Orientations.Echantillonne(t));
        for (const TVecteur3& p : {mains.Gauche, bouts.Gauche, mains.Droite, bouts.Droite})
          lignes.push_back(Sommet(p, 0.08f, 0.08f, 0.1f, 0.9f));
      }
      if (Options.Traines > 0) {
        const TColor c = TabLElt[i].Couleur;
        const float r = static_cast<float>(c.Red()) / 255, g = static_cast<float>(c.Green()) / 255,
                    b = static_cast<float>(c.Blue()) / 255;
        const std::vector<TPointTraine> points =
            PointsTraine(trajectoire.Positions, t, static_cast<float>(Options.Traines * 100), Arriere);
        for (std::size_t k = 1; k < points.size(); ++k) {
          traines.push_back(Sommet(points[k - 1].P, r, g, b, points[k - 1].Opacite));
          traines.push_back(Sommet(points[k].P, r, g, b, points[k].Opacite));
        }
      }
    }
    Rendu.PoseTraits(TGenreTraits::Lignes, lignes, LARGEUR_LIGNE);
    Rendu.PoseTraits(TGenreTraits::Traines, traines, LARGEUR_TRAINE);
    tDecor = t;
    ArrierePose = Arriere;
  }
  if (fixes || SecuriteChangee) {
    std::vector<TSommetTrait> rouge;
    if (Securite)
      for (const TVecteur3& p : {Securite->first, Securite->second}) rouge.push_back(Sommet(p, 0.9f, 0, 0, 1));
    Rendu.PoseTraits(TGenreTraits::Securite, rouge, LARGEUR_SECURITE);
    SecuriteChangee = false;
  }
  DecorPose = Options;
}

void TD3DDemo::Go() {
  if (static_cast<float>(tDebut) >= tFin) tDebut = 0;
  if (_Debut) {
    tCourant = static_cast<unsigned>(tDebut);
    tReference = static_cast<float>(tDebut);
  }
  if (long r = Rendu.Efface()) return DXERROR_Direct3DRM(FichierJournal(), 0, r);
  TickCourant = Horloge().GetTickCount();
  if (_Debut) TickReference = TickCourant;

  const float ecoule = static_cast<float>(TickCourant - TickReference) / static_cast<float>(Periode);
  float r = tReference;
  switch (Mode) {
    case MODE_AVANT: r = ecoule + tReference; break;
    case MODE_ARRIERE: r = tReference - ecoule; break;
    case MODE_DEBUT:
      r = static_cast<float>(tDebut);
      TickReference = TickCourant;
      break;
    case MODE_PAS_ARRIERE:
      r = tReference - static_cast<float>(Pas);
      TickReference = TickCourant;
      Mode = MODE_APRES_PAS_ARRIERE;
      break;
    case MODE_PAS_AVANT:
      r = tReference + static_cast<float>(Pas);
      TickReference = TickCourant;
      Mode = MODE_APRES_PAS_AVANT;
      break;
    default:  // pause, and holding after a step
      TickReference = TickCourant;
      break;
  }
  if (r < 0) {
    tCourant = 0;
    r = 0;
    TickReference = TickCourant;
  } else {
    tCourant = static_cast<unsigned>(r);
  }
  // The reference moves up at each whole hundredth, the fraction kept in r: a change of
  // Periode takes effect at once and no rounding gathers.
  if (tCourant != tPrecedent) {
    TickReference = TickCourant;
    tReference = r;
  }
  if (static_cast<float>(tCourant) >= tFin - 1.0f && (Mode == MODE_AVANT || Mode == MODE_APRES_PAS_AVANT)) {
    tCourant = static_cast<unsigned>(tFin - 1.0f);
    tReference = static_cast<float>(tCourant);
  }
  if (static_cast<int>(tCourant) <= tDebut && (Mode == MODE_ARRIERE || Mode == MODE_APRES_PAS_ARRIERE)) {
    tCourant = static_cast<unsigned>(tDebut);
    tReference = static_cast<float>(tCourant);
  }
  tPrecedent = tCourant;

  // The music follows only by being restarted: at normal speed and forward it plays from
  // tCourant x 10 ms; any other mode or speed silences it.
  if (Periode != PeriodePrecedente || _Debut || Mode != ModePrecedent) {
    if (MusiqueEnCours) {
      const int resultat = Periode == 10 && Mode == MODE_AVANT
                               ? Son().Jouer("musique", static_cast<int>(tCourant) * Periode)
                               : Son().Arreter("musique");
      if (resultat) {
        char texte[64];
        std::snprintf(texte, sizeof texte, "play ou stop  raté :%d ", resultat);
        Dialogues().MessageBox(texte, "fonction go()", TBoutons::OK, TIcone::Avertissement);
      }
    }
  }
  PeriodePrecedente = Periode;
  _Debut = false;
  ModePrecedent = Mode;

  for (int i = 0; i < NB_CV_MAX; ++i) {
    if (Modeles[i] == CADRE_AUCUN || Trajectoires[i].Positions.IsVide()) continue;
    const float t = static_cast<float>(tCourant);
    long res = Rendu.PlaceCadre(Modeles[i], Trajectoires[i].Positions.Echantillonne(t));
    if (!res && !Trajectoires[i].Orientations.IsVide())
      res = Rendu.OrienteCadre(Modeles[i], Trajectoires[i].Orientations.Echantillonne(t));
    if (res) return DXERROR_Direct3DRM(FichierJournal(), 1, res);
  }
  TPairePlusProche paire;
  if (PairePlusProche(Trajectoires, nbCV, static_cast<float>(tCourant), ReglagesSecurite, paire))
    PlusProche = paire;
  else
    PlusProche.reset();
  // The closest two kites, joined in red while they are closer than the designer allows.
  if (Options.Securite && PlusProche && TropProche(PlusProche->Centimetres, ReglagesSecurite))
    SegmentSecurite(PlusProche->P1, PlusProche->P2);
  else
    SansSegmentSecurite();
  // The trails look the way the kites are going: back along the flight in backward play.
  if (Mode == MODE_ARRIERE || Mode == MODE_APRES_PAS_ARRIERE)
    Arriere = true;
  else if (Mode == MODE_AVANT || Mode == MODE_APRES_PAS_AVANT)
    Arriere = false;
  PoseDecor();
  PlaceSoleil();
  PlaceCamera();
  if (long res = Rendu.Dessine(Monde)) return DXERROR_Direct3DRM(FichierJournal(), 2, res);
  if (long res = Rendu.Affiche()) return DXERROR_Direct3DRM(FichierJournal(), 5, res);
}

void TD3DDemo::RepartDeMaintenant() { TickReference = Horloge().GetTickCount(); }

void TD3DDemo::Positionne(float t) {
  if (!std::isfinite(t)) return;
  t = std::clamp(t, 0.0f, std::max(tFin - 1.0f, 0.0f));
  tCourant = tPrecedent = static_cast<unsigned>(t);
  tReference = t;
  TickReference = Horloge().GetTickCount();
  // A scene just made starts at its first frame from tDebut, unless it is placed before that
  // frame: the place chosen wins.
  _Debut = false;
  // Playing, as a change of mode would, so that the music starts again at the new time;
  // paused, it is silent already.
  if (Mode == MODE_AVANT) ModePrecedent = 0;
}

bool TD3DDemo::EnMouvement() const {
  if (_Debut) return true;
  switch (Mode) {
    case MODE_PAS_AVANT:
    case MODE_PAS_ARRIERE:
      return true;
    // Go holds forward play at the last whole hundredth before tFin, and backward play at
    // tDebut or at 0, whichever comes first.
    case MODE_AVANT:
      return static_cast<float>(tCourant) < std::floor(tFin - 1.0f);
    case MODE_ARRIERE:
      return static_cast<int>(tCourant) > std::max(tDebut, 0);
    default:  // paused, held at the start or after a step
      return false;
  }
}
