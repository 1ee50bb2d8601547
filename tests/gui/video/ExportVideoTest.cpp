// The player's export in the background: the companion run on the routine as it stands, its
// progress followed, and "Annuler" leaving no file behind.
#include <gtest/gtest.h>

#include <QProgressDialog>
#include <QPushButton>
#include <QSignalSpy>

#include <filesystem>

#include "LectureFilm.h"
#include "gui/video/QExportVideo.h"
#include "support/Fichiers.h"
#include "support/Wav.h"

namespace {

class ExportVideoTest : public FichiersTest {
protected:
  // The 2-second routine, its music named by its full path: the companion runs elsewhere.
  std::string Routine() {
    EcritWav();
    const std::string routine = Donnee("video/deux_secondes.rou");
    return "MUSIQUE   " + (dossier / "musique.wav").string() + " \n" + routine.substr(routine.find('\n') + 1);
  }
  void EcritWav() {
    // One second of silence, 8-bit mono at 8 kHz: enough for a sound stream.
    Ecrit("musique.wav", EnteteWav(1, 8000, 8, 8000) + std::string(8000, '\x80'));
  }
  static std::vector<std::string> Fichiers() {
    std::vector<std::string> noms;
    for (const auto& f : std::filesystem::directory_iterator(".")) noms.push_back(f.path().filename().string());
    std::sort(noms.begin(), noms.end());
    return noms;
  }
  TParametresFilm Demande(int largeur, int hauteur, int fps) {
    TParametresFilm p;
    p.Sortie = (dossier / "film.mp4").string();
    p.Largeur = largeur;
    p.Hauteur = hauteur;
    p.Fps = fps;
    return p;
  }
  QExportVideo exporte{nullptr, QStringLiteral(TRAJ_CLI)};
};

TEST_F(ExportVideoTest, FilmFaitEnFondAvecSaProgression) {
  QSignalSpy fini(&exporte, &QExportVideo::Fini);
  ASSERT_TRUE(exporte.Lance(Routine(), Demande(160, 90, 25)));
  ASSERT_NE(exporte.Progres(), nullptr);
  EXPECT_FALSE(exporte.Progres()->isModal());  // the player goes on meanwhile
  // The box learns the count of frames from the companion's first progress line.
  int maximum = 0;
  while (fini.isEmpty()) {
    if (exporte.Progres()) maximum = std::max(maximum, exporte.Progres()->maximum());
    fini.wait(50);
  }
  ASSERT_EQ(fini.size(), 1);
  EXPECT_TRUE(fini[0][0].toBool()) << fini[0][1].toString().toStdString();
  EXPECT_EQ(maximum, 50);
  EXPECT_EQ(exporte.Progres(), nullptr);
  const TFilmLu film = LitFilm("film.mp4", 0);
  EXPECT_EQ(film.Images, 50);
  EXPECT_EQ(film.CodecSon, "aac");
  EXPECT_EQ(Fichiers(), (std::vector<std::string>{"film.mp4", "musique.wav"}));
}

TEST_F(ExportVideoTest, AnnulerNeLaissePasDeFichier) {
  QSignalSpy fini(&exporte, &QExportVideo::Fini);
  ASSERT_TRUE(exporte.Lance(Routine(), Demande(640, 360, 120)));
  // Cancelled once the first frames are written, as the user would from the box.
  while (fini.isEmpty() && exporte.Progres()->value() < 2) fini.wait(20);
  ASSERT_TRUE(fini.isEmpty()) << "fini avant l'annulation";
  QPushButton* annuler = exporte.Progres()->findChild<QPushButton*>();
  ASSERT_NE(annuler, nullptr);
  EXPECT_EQ(annuler->text(), QStringLiteral("Annuler"));
  annuler->click();
  while (fini.isEmpty()) fini.wait(50);
  EXPECT_FALSE(fini[0][0].toBool());
  EXPECT_EQ(fini[0][1].toString(), QString::fromUtf8("Export annulé : le fichier n'est pas écrit."));
  EXPECT_EQ(Fichiers(), std::vector<std::string>{"musique.wav"});
}

}  // namespace
