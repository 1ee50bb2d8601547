#include "demo/player/FenApp.h"

#include <climits>
#include <cstdio>
#include <cstdlib>

#include "demo/D3DDemo.h"
#include "demo/Demonstration.h"
#include "demo/player/Commandes.h"
#include "editor/FenDessin.h"
#include "model/Document.h"
#include "model/Nombres.h"
#include "platform/Dialogues.h"

bool TFenApp::PremierPaint = true;
int TFenApp::DerniereCommande = CM_PAUSE;

namespace {
[[maybe_unused]] const bool ReinitialisationEnregistree = (EnregistreReinitialisation(&TFenApp::ReinitialiseStatiques), true);
}  // namespace

void TFenApp::ReinitialiseStatiques() {
  PremierPaint = true;
  DerniereCommande = CM_PAUSE;
}

namespace {
// The scene the commands act on: none after a failed construction.
TD3DDemo* SceneUtilisable() { return Globals.blDemoOK ? Globals.pD3DDemo : nullptr; }

void Bip() { Dialogues().MessageBeep(-1); }

// A value held at its limit, with a beep when it went past.
template <typename T>
void Plancher(T& v, T limite) {
  if (v < limite) {
    v = limite;
    Bip();
  }
}
template <typename T>
void Plafond(T& v, T limite) {
  if (v > limite) {
    v = limite;
    Bip();
  }
}

std::string TexteVitesse(const TD3DDemo& s) { return "V = " + Gcvt(10.0f / static_cast<float>(s.Periode), 2); }
std::string TextePas(const TD3DDemo& s) { return "Pas = " + std::to_string(s.Pas); }

constexpr float DIX_DEGRES = 0.17453294f;
}  // namespace

TFenApp::TFenApp(TFenCadre* cadre) : pFenCadre(cadre) {
  pFenAppDemo = this;
  _FichierMusique[0] = '\0';
}

TFenApp::~TFenApp() {
  if (pFenAppDemo == this) pFenAppDemo = nullptr;
}

void TFenApp::Texte(TZoneLecteur zone, const std::string& texte) {
  if (pFenCadre) pFenCadre->SetTexte(zone, texte);
}

void TFenApp::AfficheEtat(const TD3DDemo& s) {
  Texte(TZoneLecteur::Pas, TextePas(s));
  Texte(TZoneLecteur::V, TexteVitesse(s));
}

void TFenApp::InitDemo(int nbCV_, float tFin) {
  ::InitDemo(nbCV_, tFin);
  TD3DDemo* s = SceneUtilisable();
  if (!s) return;
  // Said even though the scene is paused: it is what "&Lecture" will do.
  Texte(TZoneLecteur::Message, "Lecture avant");
  AfficheEtat(*s);
  s->tDebut = tDebut;
  s->Options = Options;
  Texte(TZoneLecteur::Debut, std::to_string(tDebut));
  Redessine();
}

void TFenApp::SetOptions(const TOptionsScene& options, double dureeTraines) {
  Options = options;
  Options.Securite = true;  // the player always joins kites that come too close
  if (dureeTraines > 0 && dureeTraines <= 60) DureeTraines = dureeTraines;
  if (Options.Traines > 0) DureeTraines = Options.Traines;
  if (TD3DDemo* s = SceneUtilisable()) s->Options = Options;
  Redessine();
}

void TFenApp::FermeDemo() { ::FermeDemo(); }

bool TFenApp::Paint() {
  if (PremierPaint) {
    InitDemo(1, 1000.0f);
    PremierPaint = false;
  }
  return Globals.blDemoOK != 0;
}

bool TFenApp::IdleAction() {
  if (Globals.blActif != 1 || Globals.blDemoOK != 1 || !Globals.pD3DDemo) return false;
  Globals.pD3DDemo->Go();
  aRedessiner = false;
  Texte(TZoneLecteur::T, "T = " + std::to_string(static_cast<int>(Globals.pD3DDemo->tCourant)));
  const auto& paire = Globals.pD3DDemo->PlusProche;
  Texte(TZoneLecteur::Distance, paire ? TexteDistanceMini(*paire) : "");
  return true;
}

bool TFenApp::ImageAttendue() const {
  if (Globals.blActif != 1 || Globals.blDemoOK != 1 || !Globals.pD3DDemo) return false;
  return aRedessiner || Globals.pD3DDemo->EnMouvement();
}

void TFenApp::Redessine() {
  aRedessiner = true;
  if (pFenCadre) pFenCadre->DemandeImage();
}

void TFenApp::Trt_Menu(unsigned id) {
  if (!TexteCommande(id)) return;
  // Whatever the command does, the picture follows at the next idle step, which the view
  // runs only after this returns.
  Redessine();
  if (id >= CM_TEAM1 && id <= CM_TEAM5) {
    ChoisitTeam(static_cast<int>(id - CM_TEAM1) + 1);
    return;
  }
  if (id == CM_TEMPS_DEBUT) {
    SaisitDebut();
    return;
  }
  // Kept with no scene too: the next one shows them.
  if (id >= CM_TRAINES && id <= CM_CAMERA_JUGE) {
    Affichage(id);
    return;
  }
  if (id == CM_EXPORTER_VIDEO) return;  // the window's box: nothing for the scene to do
  // With no usable scene the other commands have nothing to act on: a beep, and the
  // player's state, the last transport command included, stays as it was.
  TD3DDemo* s = SceneUtilisable();
  if (!s) {
    Bip();
    return;
  }
  if (id <= CM_PAS_ARRIERE)
    Transport(*s, id);
  else if (id <= CM_VITESSE_NORMALE)
    Vitesse(*s, id);
  else
    Camera(*s, id);
}

void TFenApp::Transport(TD3DDemo& s, unsigned id) {
  // A scene held still draws no frame, so the clock's reference is where the hold began:
  // what comes next counts from now, as it would after a frame drawn at each idle step.
  if (!s.EnMouvement()) TD3DDemo::RepartDeMaintenant();
  switch (id) {
    case CM_LECTURE:
      s.Mode = MODE_AVANT;
      Texte(TZoneLecteur::Message, "Lecture avant");
      AfficheEtat(s);
      break;
    case CM_PAUSE:
      s.Mode = MODE_PAUSE;
      Texte(TZoneLecteur::Message, "Pause Lecture");
      break;
    case CM_ARRIERE:
      s.Mode = MODE_ARRIERE;
      Texte(TZoneLecteur::Message, "Lecture arrière");
      break;
    case CM_DEBUT:
      s.Mode = MODE_DEBUT;
      TD3DDemo::_Debut = true;
      Texte(TZoneLecteur::Message, "Retour au début");
      break;
    case CM_PAS_AVANT:
      s.Mode = MODE_PAS_AVANT;
      Texte(TZoneLecteur::Message, "Pas à Pas Avant");
      break;
    case CM_PAS_ARRIERE:
      s.Mode = MODE_PAS_ARRIERE;
      Texte(TZoneLecteur::Message, "Pas à Pas Arrière");
      break;
    default:
      return;
  }
  DerniereCommande = static_cast<int>(id);
}

void TFenApp::Vitesse(TD3DDemo& s, unsigned id) {
  // After a step command the speed commands size the step, however long ago it was played.
  if (DerniereCommande == CM_PAS_AVANT || DerniereCommande == CM_PAS_ARRIERE) {
    if (id == CM_PLUS_RAPIDE) {
      s.Pas *= 2;
      Plafond(s.Pas, 1280);
    } else if (id == CM_PLUS_LENT) {
      s.Pas /= 2;
      Plancher(s.Pas, 5);
    } else {
      s.Pas = 80;
    }
    Texte(TZoneLecteur::Pas, TextePas(s));
    return;
  }
  // Fine steps near real time, coarse ones in the slow range.
  const int saut = s.Periode < 20 ? 2 : 6;
  if (id == CM_PLUS_RAPIDE) {
    s.Periode -= saut;
    Plancher(s.Periode, 2);
  } else if (id == CM_PLUS_LENT) {
    s.Periode += saut;
    Plafond(s.Periode, 40);
  } else {
    s.Periode = 10;
    Texte(TZoneLecteur::V, "V = 1 (normal)");
    return;
  }
  Texte(TZoneLecteur::V, TexteVitesse(s));
}

void TFenApp::Camera(TD3DDemo& s, unsigned id) {
  switch (id) {
    case CM_ROTATION_GAUCHE:
      s.AngleCamera += DIX_DEGRES;
      break;
    case CM_ROTATION_DROITE:
      s.AngleCamera -= DIX_DEGRES;
      break;
    case CM_ZOOM_PLUS:
      s.DistanceCamera -= 20.0f;
      Plancher(s.DistanceCamera, 20.0f);
      break;
    case CM_ZOOM_MOINS:
      s.DistanceCamera += 20.0f;
      Plafond(s.DistanceCamera, 300.0f);
      break;
    case CM_DEPLACEMENT_HAUT:
      s.CameraY += 5.0f;
      Plafond(s.CameraY, 100.0f);
      break;
    case CM_DEPLACEMENT_BAS:
      s.CameraY -= 5.0f;
      Plancher(s.CameraY, 0.0f);
      break;
    case CM_SOLEIL_GAUCHE:
      s.SoleilX += 0.1f;
      Plafond(s.SoleilX, 1.0f);
      break;
    case CM_SOLEIL_DROITE:
      s.SoleilX -= 0.1f;
      Plancher(s.SoleilX, -1.0f);
      break;
    case CM_REGLAGES_DEFAUT:
      s.ReglagesParDefaut();
      break;
    default:
      break;
  }
}

void TFenApp::ChoisitTeam(int team) {
  // Kept even with no scene: the next demonstration is built with it.
  Team = team;
  if (pFenCadre) pFenCadre->CocheEquipe(team);
  TFenDessin::Demo();
}

void TFenApp::SaisitDebut() {
  const auto saisie = Dialogues().Saisie("instant du début", "Saisissez un nombre :", std::to_string(tDebut));
  if (!saisie) return;
  Bip();
  // Read as sscanf's "%d" reads it (blanks, a sign, digits; nothing read keeps the value),
  // held within an int where it would overflow.
  const std::string texte = saisie->substr(0, LONGUEUR_MAX_TEMPS_DEBUT);
  char* fin = nullptr;
  const long v = std::strtol(texte.c_str(), &fin, 10);
  if (fin != texte.c_str()) tDebut = static_cast<int>(v < INT_MIN ? INT_MIN : v > INT_MAX ? INT_MAX : v);
  if (TD3DDemo* s = SceneUtilisable()) s->tDebut = tDebut;
  Texte(TZoneLecteur::Debut, std::to_string(tDebut));
}

void TFenApp::Affichage(unsigned id) {
  switch (id) {
    case CM_TRAINES: Options.Traines = Options.Traines > 0 ? 0 : DureeTraines; break;
    case CM_DUREE_TRAINES: SaisitDureeTraines(); break;
    case CM_LIGNES: Options.Lignes = !Options.Lignes; break;
    case CM_SOL: Options.Sol = !Options.Sol; break;
    case CM_FENETRE: Options.Fenetre = !Options.Fenetre; break;
    default: Options.Camera = static_cast<TCamera>(id - CM_CAMERA_PUBLIC); break;
  }
  if (TD3DDemo* s = SceneUtilisable()) s->Options = Options;
}

void TFenApp::SaisitDureeTraines() {
  char texte[32];
  std::snprintf(texte, sizeof texte, "%g", DureeTraines);
  const auto saisie = Dialogues().Saisie("durée des traînées", "Secondes de vol derrière chaque cerf-volant (au plus 60) :", texte);
  if (!saisie) return;
  // A length the trails can take, or a beep and nothing changed; a new length shows at once.
  char* fin = nullptr;
  const double d = std::strtod(saisie->c_str(), &fin);
  if (fin == saisie->c_str() || *fin != '\0' || !(d > 0 && d <= 60)) {
    Bip();
    return;
  }
  DureeTraines = d;
  Options.Traines = d;
}
