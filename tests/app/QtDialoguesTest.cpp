#include <gtest/gtest.h>

#include "Attente.h"
#include "platform/qt/QtDialogues.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <functional>

namespace {

struct BoiteVue {
  QString Titre, Texte;
  QMessageBox::Icon Icone = QMessageBox::NoIcon;
  QMessageBox::StandardButtons Boutons;
  QMessageBox::StandardButton ParDefaut = QMessageBox::NoButton;
};

// Shows a box through TQtDialogues and presses `bouton` in it.
TReponse Repond(TQtDialogues& dialogues, TBoutons boutons, QMessageBox::StandardButton bouton,
                BoiteVue* vue = nullptr, TIcone icone = TIcone::Aucune) {
  QuandOuvert<QMessageBox>([=](QMessageBox* boite) {
    if (vue)
      *vue = {boite->windowTitle(), boite->text(), boite->icon(), boite->standardButtons(),
              boite->standardButton(boite->defaultButton())};
    boite->button(bouton)->click();
  });
  return dialogues.MessageBox("Enregistrer la routine ?", "Fichier", boutons, icone);
}

TEST(QtDialogues, EachButtonOfEachBoxGivesItsAnswer) {
  TQtDialogues dialogues;
  EXPECT_EQ(Repond(dialogues, TBoutons::OK, QMessageBox::Ok), TReponse::OK);
  EXPECT_EQ(Repond(dialogues, TBoutons::OKAnnuler, QMessageBox::Ok), TReponse::OK);
  EXPECT_EQ(Repond(dialogues, TBoutons::OKAnnuler, QMessageBox::Cancel), TReponse::Annuler);
  EXPECT_EQ(Repond(dialogues, TBoutons::OuiNon, QMessageBox::Yes), TReponse::Oui);
  EXPECT_EQ(Repond(dialogues, TBoutons::OuiNon, QMessageBox::No), TReponse::Non);
  EXPECT_EQ(Repond(dialogues, TBoutons::OuiNonAnnuler, QMessageBox::Yes), TReponse::Oui);
  EXPECT_EQ(Repond(dialogues, TBoutons::OuiNonAnnuler, QMessageBox::No), TReponse::Non);
  EXPECT_EQ(Repond(dialogues, TBoutons::OuiNonAnnuler, QMessageBox::Cancel), TReponse::Annuler);
}

TEST(QtDialogues, TheBoxShowsCaptionTextIconAndOnlyTheAskedButtons) {
  TQtDialogues dialogues;
  BoiteVue vue;
  Repond(dialogues, TBoutons::OKAnnuler, QMessageBox::Cancel, &vue, TIcone::Question);
  EXPECT_EQ(vue.Titre, QStringLiteral("Fichier"));
  EXPECT_EQ(vue.Texte, QStringLiteral("Enregistrer la routine ?"));
  EXPECT_EQ(vue.Icone, QMessageBox::Question);
  EXPECT_EQ(vue.Boutons, QMessageBox::Ok | QMessageBox::Cancel);
  EXPECT_EQ(vue.ParDefaut, QMessageBox::Ok);
}

TEST(QtDialogues, InputGivesTheTypedTextOrNothingOnCancel) {
  TQtDialogues dialogues;
  QString initiale;
  QuandOuvert<QInputDialog>([&](QInputDialog* d) {
    initiale = d->textValue();
    d->setTextValue(QStringLiteral("Vitesse élevée"));
    d->accept();
  });
  EXPECT_EQ(dialogues.Saisie("Figure", "Nom :", "Boucle"), std::optional<std::string>("Vitesse élevée"));
  EXPECT_EQ(initiale, QStringLiteral("Boucle"));

  QuandOuvert<QInputDialog>([](QInputDialog* d) { d->reject(); });
  EXPECT_EQ(dialogues.Saisie("Figure", "Nom :", "Boucle"), std::nullopt);
}

TEST(FiltreQt, TwoColumnFiltersBecomeQtFilters) {
  EXPECT_EQ(FiltreQt("Routines (*.rou)|*.rou|Tous les fichiers (*.*)|*.*|"),
            QStringLiteral("Routines (*.rou);;Tous les fichiers (*)"));
  EXPECT_EQ(FiltreQt("Musique|*.wav;*.mp3"), QStringLiteral("Musique (*.wav *.mp3)"));
  EXPECT_EQ(FiltreQt("Modèles 3D (*.x *.3ds)"), QStringLiteral("Modèles 3D (*.x *.3ds)"));
  EXPECT_EQ(FiltreQt("Vide|"), QString());
}

}  // namespace
