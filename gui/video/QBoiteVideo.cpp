#include "gui/video/QBoiteVideo.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>

#include "platform/Dialogues.h"
#include "video/Film.h"

namespace {
QSpinBox* Nombre(const char* nom, int mini, int maxi, int valeur, const char* suffixe = "") {
  auto* s = new QSpinBox;
  s->setObjectName(QString::fromLatin1(nom));
  s->setRange(mini, maxi);
  s->setValue(valeur);
  s->setSuffix(QString::fromUtf8(suffixe));
  return s;
}
}  // namespace

QBoiteVideo::QBoiteVideo(const TParametresFilm& depart, int fin, QWidget* parent)
    : QDialog(parent), depart_(depart) {
  setWindowTitle(QStringLiteral("Exporter une vidéo"));
  auto* formulaire = new QFormLayout(this);
  auto* taille = new QHBoxLayout;
  largeur_ = Nombre("largeur", 2, LARGEUR_FILM_MAX, depart.Largeur);
  hauteur_ = Nombre("hauteur", 2, HAUTEUR_FILM_MAX, depart.Hauteur);
  // The encoders take even sizes only.
  largeur_->setSingleStep(2);
  hauteur_->setSingleStep(2);
  taille->addWidget(largeur_);
  taille->addWidget(hauteur_);
  formulaire->addRow(QStringLiteral("Taille (largeur, hauteur) :"), taille);
  fps_ = Nombre("fps", 1, 120, depart.Fps, " images/s");
  formulaire->addRow(QStringLiteral("Cadence :"), fps_);
  de_ = Nombre("de", 0, std::max(fin - 1, 0), std::clamp(depart.De, 0, std::max(fin - 1, 0)));
  a_ = Nombre("a", 1, std::max(fin, 1), depart.A < 0 ? fin : std::min(depart.A, fin));
  auto* plage = new QHBoxLayout;
  plage->addWidget(de_);
  plage->addWidget(a_);
  formulaire->addRow(QString::fromUtf8("De, à (centièmes de seconde) :"), plage);
  traines_ = new QDoubleSpinBox;
  traines_->setRange(0, 60);
  traines_->setDecimals(1);
  traines_->setSpecialValueText(QStringLiteral("aucune"));
  traines_->setValue(depart.Scene.Traines);
  formulaire->addRow(QString::fromUtf8("Traînées (secondes) :"), traines_);
  lignes_ = new QCheckBox(QStringLiteral("Pilotes et lignes"));
  lignes_->setChecked(depart.Scene.Lignes);
  sol_ = new QCheckBox(QStringLiteral("Sol"));
  sol_->setChecked(depart.Scene.Sol);
  fenetre_ = new QCheckBox(QString::fromUtf8("Fenêtre de vent"));
  fenetre_->setChecked(depart.Scene.Fenetre);
  formulaire->addRow(lignes_);
  formulaire->addRow(sol_);
  formulaire->addRow(fenetre_);
  camera_ = new QComboBox;
  camera_->addItems({QStringLiteral("Public"), QStringLiteral("Pilotes"), QStringLiteral("Juge")});
  camera_->setCurrentIndex(static_cast<int>(depart.Scene.Camera));
  formulaire->addRow(QString::fromUtf8("Caméra :"), camera_);
  auto* ligneFichier = new QHBoxLayout;
  fichier_ = new QLineEdit(QString::fromStdString(depart.Sortie));
  fichier_->setObjectName(QStringLiteral("fichier"));
  auto* parcourir = new QPushButton(QStringLiteral("Parcourir..."));
  connect(parcourir, &QPushButton::clicked, this, &QBoiteVideo::ChoisitFichier);
  ligneFichier->addWidget(fichier_);
  ligneFichier->addWidget(parcourir);
  formulaire->addRow(QStringLiteral("Fichier (.mp4 ou .webm) :"), ligneFichier);
  auto* boutons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  boutons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("Exporter"));
  boutons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Annuler"));
  connect(boutons, &QDialogButtonBox::accepted, this, &QBoiteVideo::accept);
  connect(boutons, &QDialogButtonBox::rejected, this, &QBoiteVideo::reject);
  formulaire->addRow(boutons);
}

TParametresFilm QBoiteVideo::Parametres() const {
  TParametresFilm p = depart_;
  p.Largeur = largeur_->value();
  p.Hauteur = hauteur_->value();
  p.Fps = fps_->value();
  p.De = de_->value();
  p.A = a_->value();
  p.Scene.Traines = traines_->value();
  p.Scene.Lignes = lignes_->isChecked();
  p.Scene.Sol = sol_->isChecked();
  p.Scene.Fenetre = fenetre_->isChecked();
  p.Scene.Camera = static_cast<TCamera>(camera_->currentIndex());
  p.Sortie = fichier_->text().toStdString();
  return p;
}

void QBoiteVideo::ChoisitFichier() {
  static TDialogueFichier dialogue{"Exporter une vidéo", "Films MP4 (*.mp4)|*.mp4|Films WebM (*.webm)|*.webm", "mp4",
                                   ""};
  QSettings reglages;
  // A value that is not text gives an empty one: the dialog's own start.
  dialogue.Dernier = reglages.value(QString::fromLatin1(CLE_DOSSIER_VIDEO)).toString().toStdString();
  if (const auto chemin = Dialogues().FichierAEnregistrer(dialogue)) {
    fichier_->setText(QString::fromStdString(*chemin));
    reglages.setValue(QString::fromLatin1(CLE_DOSSIER_VIDEO), QString::fromStdString(*chemin));
  }
}

void QBoiteVideo::accept() {
  const TParametresFilm p = Parametres();
  TConteneur conteneur;
  std::string message;
  int l = p.Largeur, h = p.Hauteur;
  if (!ConteneurDuNom(p.Sortie, conteneur))
    message = "Le fichier doit finir par .mp4 ou .webm.";
  else if (p.A <= p.De)
    message = "La fin de la plage doit venir après son début.";
  else if (!AjusteTailleFilm(l, h, message))
    message[0] = 'T';
  else
    message.clear();
  if (!message.empty()) {
    Dialogues().MessageBox(message, "Exporter une vidéo", TBoutons::OK, TIcone::Avertissement);
    return;
  }
  QDialog::accept();
}
