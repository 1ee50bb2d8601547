// A film's rules without an encoder: its size, its range, its frames' times, the music under
// them, and the file that appears only whole.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "platform/EncodeurVideoJournal.h"
#include "support/Fichiers.h"
#include "video/ExportFilm.h"
#include "video/Film.h"

namespace {

struct TCasTaille {
  int Largeur, Hauteur;
  bool Accepte;
  int LargeurFinale, HauteurFinale;
  const char* Message;  // a part of the message; "" when none is due
};

TEST(FilmTaille, PairesGardeesImpairesArrondiesAbsurdesRefusees) {
  const TCasTaille cas[] = {
      {1280, 720, true, 1280, 720, ""},
      {320, 180, true, 320, 180, ""},
      {3840, 2160, true, 3840, 2160, ""},
      {2, 2, true, 2, 2, ""},
      {641, 361, true, 640, 360, "taille 641x361 arrondie à 640x360 : l'encodeur veut des tailles paires"},
      {3, 200, true, 2, 200, "arrondie à 2x200"},
      {3841, 2160, false, 3841, 2160, "taille 3841x2160 refusée : de 2x2 à 3840x2160"},
      {3840, 2161, false, 3840, 2161, "refusée"},
      {1, 100, false, 1, 100, "refusée"},
      {0, 0, false, 0, 0, "refusée"},
      {100000, 100000, false, 100000, 100000, "refusée"},
  };
  for (const TCasTaille& c : cas) {
    int l = c.Largeur, h = c.Hauteur;
    std::string message;
    SCOPED_TRACE(std::to_string(c.Largeur) + "x" + std::to_string(c.Hauteur));
    EXPECT_EQ(AjusteTailleFilm(l, h, message), c.Accepte);
    EXPECT_EQ(l, c.LargeurFinale);
    EXPECT_EQ(h, c.HauteurFinale);
    if (*c.Message) EXPECT_NE(message.find(c.Message), std::string::npos) << message;
    else EXPECT_EQ(message, "");
  }
}

TEST(FilmConteneur, ChoisiParLExtension) {
  const std::pair<const char*, int> cas[] = {
      {"a.mp4", 0}, {"dossier/a.MP4", 0}, {"a.webm", 1}, {"./b.WebM", 1}, {"a.mkv", -1},
      {"a", -1},    {"dos.mp4/film", -1}, {"a.mp4.txt", -1}, {"", -1},
  };
  for (const auto& [nom, attendu] : cas) {
    TConteneur c = TConteneur::Webm;
    const bool connu = ConteneurDuNom(nom, c);
    EXPECT_EQ(connu ? static_cast<int>(c) : -1, attendu) << nom;
  }
}

TEST(FilmPlage, DansLaRoutineSeulement) {
  struct {
    int De, A, Fin;
    bool Bonne;
    int AFinal;
  } cas[] = {
      {0, -1, 200, true, 200}, {50, 150, 200, true, 150}, {199, -1, 200, true, 200},
      {0, 200, 200, true, 200}, {200, -1, 200, false, 200}, {-1, 100, 200, false, 100},
      {0, 201, 200, false, 201}, {100, 100, 200, false, 100}, {150, 100, 200, false, 100},
      {0, -1, 0, false, 0},
  };
  for (auto& c : cas) {
    std::string erreur;
    int de = c.De, a = c.A;
    EXPECT_EQ(VerifiePlage(de, a, c.Fin, erreur), c.Bonne) << c.De << ".." << c.A;
    EXPECT_EQ(a, c.AFinal);
    EXPECT_EQ(erreur.empty(), c.Bonne) << erreur;
  }
}

TEST(FilmImages, TempsEnCentiemesEntiersJusquAvantLaFin) {
  // 25 frames a second: one every 4 hundredths, 50 in 2 s.
  EXPECT_EQ(NbImages(0, 200, 25), 50);
  for (int i = 0; i < 50; ++i) EXPECT_EQ(TempsImage(0, 25, i), 4 * i);
  // 30 a second: 3.33 hundredths, truncated as the player's clock is.
  EXPECT_EQ(NbImages(0, 200, 30), 60);
  const int attendus[] = {0, 3, 6, 10, 13, 16, 20};
  for (int i = 0; i < 7; ++i) EXPECT_EQ(TempsImage(0, 30, i), attendus[i]);
  EXPECT_EQ(TempsImage(0, 30, 59), 196);
  // From elsewhere, and ranges that do not fall on a frame.
  EXPECT_EQ(TempsImage(150, 24, 1), 154);
  EXPECT_EQ(NbImages(150, 157, 24), 2);  // 150, 154
  EXPECT_EQ(NbImages(0, 1, 1), 1);
  EXPECT_EQ(NbImages(0, 101, 1), 2);
  // Three minutes at 60: a product past 32 bits of hundredths times frames stays exact.
  EXPECT_EQ(NbImages(0, 18000, 60), 10800);
  EXPECT_EQ(TempsImage(0, 60, 10799), 17998);
  // The sound lasts as long as the frames.
  EXPECT_EQ(NbEchantillons(50, 25), 96000);
  EXPECT_EQ(NbEchantillons(1, 30), 1600);
  EXPECT_EQ(PremierEchantillon(150), 72000);
}

TEST(FilmMusique, DecoupeeEtCompleteeDeSilence) {
  // A music of 5 samples whose left is k + 1 and right -(k + 1).
  std::vector<float> musique;
  for (int k = 1; k <= 5; ++k) musique.insert(musique.end(), {float(k), float(-k)});
  float sortie[8];
  ExtraitMusique(musique.data(), 5, 2, 1, sortie, 4);
  const float attendu[] = {4, -4, 5, -5, 0, 0, 0, 0};
  for (int i = 0; i < 8; ++i) EXPECT_EQ(sortie[i], attendu[i]) << i;
  // Past its end altogether, and before its start.
  ExtraitMusique(musique.data(), 5, 9, 0, sortie, 2);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(sortie[i], 0.0f);
  ExtraitMusique(musique.data(), 5, -1, 0, sortie, 3);
  const float avant[] = {0, 0, 1, -1, 2, -2};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(sortie[i], avant[i]) << i;
}

class ExportFilmTest : public FichiersTest {
protected:
  // Each picture carries its time in its first pixel.
  TDessinFilm Dessin() {
    return [this](int t, int& pas) -> const unsigned char* {
      image.assign(4 * 4 * 2, 0);
      image[0] = static_cast<unsigned char>(t % 256);
      image[1] = static_cast<unsigned char>(t / 256);
      pas = 16;
      return image.data();
    };
  }
  TDemandeFilm Demande(const std::string& sortie, int de, int a, int fps) {
    TDemandeFilm d;
    d.Sortie = sortie;
    d.Format.Largeur = 4;
    d.Format.Hauteur = 2;
    d.Format.Fps = fps;
    d.De = de;
    d.A = a;
    return d;
  }
  static std::vector<std::string> Fichiers() {
    std::vector<std::string> noms;
    for (const auto& f : std::filesystem::directory_iterator(".")) noms.push_back(f.path().filename().string());
    return noms;
  }
  std::vector<unsigned char> image;
  TEncodeurVideoJournal encodeur;
  std::string erreur;
};

TEST_F(ExportFilmTest, ChaqueImageASonTempsEtLaMusiqueSuitLaRoutine) {
  // Music of 1.5 s whose sample k is k: the film from 0.5 s to 2.5 s starts on its sample
  // 24000 and falls silent after 1 s.
  std::vector<float> musique;
  for (int k = 0; k < 72000; ++k) musique.insert(musique.end(), {float(k), -float(k)});
  TDemandeFilm d = Demande("film.mp4", 50, 250, 25);
  d.Musique = &musique;
  std::vector<int> progres;
  const auto suivi = [&](int fait, int total) {
    progres.push_back(fait);
    EXPECT_EQ(total, 50);
    return true;
  };
  ASSERT_EQ(ExporteFilm(encodeur, d, Dessin(), suivi, erreur), TIssueFilm::Fait) << erreur;
  EXPECT_TRUE(encodeur.Termine_);
  EXPECT_TRUE(encodeur.Format.AvecSon);
  ASSERT_EQ(encodeur.Images.size(), 50u);
  for (int i = 0; i < 50; ++i) EXPECT_EQ(encodeur.Images[i], 50 + 4 * i);
  EXPECT_EQ(progres.size(), 50u);
  EXPECT_EQ(progres.back(), 50);
  ASSERT_EQ(encodeur.Son.size(), 2u * 96000);
  EXPECT_EQ(encodeur.Son[0], 24000.0f);
  EXPECT_EQ(encodeur.Son[1], -24000.0f);
  EXPECT_EQ(encodeur.Son[2 * 47999], 71999.0f);
  EXPECT_EQ(encodeur.Son[2 * 48000], 0.0f);
  EXPECT_EQ(encodeur.Son.back(), 0.0f);
  // Written elsewhere, then renamed: only the film is left.
  EXPECT_NE(encodeur.Chemin, "film.mp4");
  EXPECT_EQ(Fichiers(), std::vector<std::string>{"film.mp4"});
  EXPECT_EQ(LitFichier("film.mp4").value_or(""), "film\n");
}

TEST_F(ExportFilmTest, SansMusiquePasDeSon) {
  ASSERT_EQ(ExporteFilm(encodeur, Demande("film.webm", 0, 10, 30), Dessin(), nullptr, erreur), TIssueFilm::Fait);
  EXPECT_FALSE(encodeur.Format.AvecSon);
  EXPECT_TRUE(encodeur.Son.empty());
  EXPECT_EQ(encodeur.Images, (std::vector<int>{0, 3, 6}));
}

TEST_F(ExportFilmTest, EchecEtAnnulationNeLaissentRienEtGardentLAncienFichier) {
  Ecrit("ancien.mp4", "ancien");
  encodeur.EchecALImage = 10;
  EXPECT_EQ(ExporteFilm(encodeur, Demande("film.mp4", 0, 200, 25), Dessin(), nullptr, erreur), TIssueFilm::Echec);
  EXPECT_EQ(erreur, "disque plein");
  EXPECT_FALSE(encodeur.Termine_);
  EXPECT_EQ(Fichiers(), std::vector<std::string>{"ancien.mp4"});

  TEncodeurVideoJournal autre;
  const auto annule = [](int fait, int) { return fait < 5; };
  EXPECT_EQ(ExporteFilm(autre, Demande("ancien.mp4", 0, 200, 25), Dessin(), annule, erreur), TIssueFilm::Annule);
  EXPECT_EQ(autre.Images.size(), 5u);
  EXPECT_EQ(Fichiers(), std::vector<std::string>{"ancien.mp4"});
  EXPECT_EQ(LitFichier("ancien.mp4").value_or(""), "ancien");

  // A picture the renderer could not draw.
  TEncodeurVideoJournal troisieme;
  const TDessinFilm rien = [](int, int&) -> const unsigned char* { return nullptr; };
  EXPECT_EQ(ExporteFilm(troisieme, Demande("film.mp4", 8, 200, 25), rien, nullptr, erreur), TIssueFilm::Echec);
  EXPECT_EQ(erreur, "image au temps 8 impossible à dessiner");
  EXPECT_EQ(Fichiers(), std::vector<std::string>{"ancien.mp4"});
}

TEST_F(ExportFilmTest, DossierAbsentOuFermeRefuse) {
  EXPECT_EQ(ExporteFilm(encodeur, Demande("nulle/part/film.mp4", 0, 10, 25), Dessin(), nullptr, erreur),
            TIssueFilm::Echec);
  EXPECT_EQ(erreur, "impossible d'écrire dans le dossier de « nulle/part/film.mp4 »");
  EXPECT_TRUE(encodeur.Images.empty());
  // A name that is a folder: written beside it, but not renamed over it.
  std::filesystem::create_directory("pris.mp4");
  Ecrit("pris.mp4/dedans", "x");
  EXPECT_EQ(ExporteFilm(encodeur, Demande("pris.mp4", 0, 10, 25), Dessin(), nullptr, erreur), TIssueFilm::Echec);
  EXPECT_EQ(erreur, "impossible d'écrire « pris.mp4 »");
  EXPECT_EQ(Fichiers(), std::vector<std::string>{"pris.mp4"});
}

}  // namespace
