#include "gui/qt/QtDialogues.h"

#include "gui/editeur/Curseurs.h"
#include "gui/editeur/QBoiteColler.h"
#include "gui/editeur/QBoiteFeuille.h"
#include "gui/editeur/QBoiteInsererFic.h"
#include "gui/securite/QBoiteSecurite.h"
#include "gui/equipe/QBoiteSuivre.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPushButton>
#include <QSettings>
#include <QStringList>

namespace {

QString Q(const std::string& s) { return QString::fromStdString(s); }

QMessageBox::Icon IconeQt(TIcone icone) {
  switch (icone) {
    case TIcone::Information: return QMessageBox::Information;
    case TIcone::Question: return QMessageBox::Question;
    case TIcone::Avertissement: return QMessageBox::Warning;
    case TIcone::Erreur: return QMessageBox::Critical;
    case TIcone::Aucune: break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons BoutonsQt(TBoutons boutons) {
  switch (boutons) {
    case TBoutons::OK: return QMessageBox::Ok;
    case TBoutons::OKAnnuler: return QMessageBox::Ok | QMessageBox::Cancel;
    case TBoutons::OuiNon: return QMessageBox::Yes | QMessageBox::No;
    case TBoutons::OuiNonAnnuler: return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case TBoutons::EnregistrerAbandonnerAnnuler: return QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel;
  }
  return QMessageBox::Ok;
}

// The first button is the default one, as the program's boxes were written expecting.
QMessageBox::StandardButton PremierBouton(TBoutons boutons) {
  switch (boutons) {
    case TBoutons::OK:
    case TBoutons::OKAnnuler: return QMessageBox::Ok;
    case TBoutons::OuiNon:
    case TBoutons::OuiNonAnnuler: return QMessageBox::Yes;
    case TBoutons::EnregistrerAbandonnerAnnuler: return QMessageBox::Save;
  }
  return QMessageBox::Ok;
}

// The folder a file dialog of this kind (routines, figures, music: by extension) used last,
// in this run or an earlier one.
QString CleDossier(const TDialogueFichier& d) { return QStringLiteral("dossiers/") + Q(d.Extension); }

std::optional<std::string> Chemin(const QString& chemin) {
  if (chemin.isEmpty()) return std::nullopt;
  return chemin.toStdString();
}

}  // namespace

TQtDialogues::TQtDialogues() { SetPeripheriqueImpression(&imprimantes_); }

TQtDialogues::~TQtDialogues() {
  RetireAttente();
  if (&PeripheriqueImpression() == &imprimantes_) SetPeripheriqueImpression(nullptr);
}

TReponse TQtDialogues::MessageBox(const std::string& texte, const std::string& titre, TBoutons boutons,
                                  TIcone icone) {
  QMessageBox boite(IconeQt(icone), Q(titre), Q(texte), BoutonsQt(boutons), parent_);
  boite.setDefaultButton(PremierBouton(boutons));
  if (boutons == TBoutons::EnregistrerAbandonnerAnnuler) {
    // Said in full, whatever the translation has for these buttons.
    boite.button(QMessageBox::Save)->setText(QStringLiteral("Enregistrer"));
    boite.button(QMessageBox::Discard)->setText(QStringLiteral("Ne pas enregistrer"));
    boite.button(QMessageBox::Cancel)->setText(QStringLiteral("Annuler"));
  }
  switch (boite.exec()) {
    case QMessageBox::Ok: return TReponse::OK;
    case QMessageBox::Cancel: return TReponse::Annuler;
    case QMessageBox::Yes:
    case QMessageBox::Save: return TReponse::Oui;
    case QMessageBox::No:
    case QMessageBox::Discard: return TReponse::Non;
    default: break;
  }
  // Dismissed without a button (Qt normally maps that to Cancel or No itself).
  switch (boutons) {
    case TBoutons::OK: return TReponse::OK;
    case TBoutons::OuiNon: return TReponse::Non;
    case TBoutons::OKAnnuler:
    case TBoutons::OuiNonAnnuler:
    case TBoutons::EnregistrerAbandonnerAnnuler: break;
  }
  return TReponse::Annuler;
}

void TQtDialogues::MessageBeep(int) { QApplication::beep(); }

void TQtDialogues::MessageStatut(const std::string& texte) {
  if (barre_) barre_->showMessage(Q(texte));
}

std::optional<std::string> TQtDialogues::Fichier(TDialogueFichier& d, bool enregistrer) {
  QFileDialog dialogue(parent_, Q(d.Titre), QString(), FiltreQt(d.Filtre));
  dialogue.setObjectName(QStringLiteral("dialogueFichier"));
  dialogue.setAcceptMode(enregistrer ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialogue.setFileMode(enregistrer ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  // The question about an existing file is the editor's own, in its words.
  if (enregistrer) dialogue.setOption(QFileDialog::DontConfirmOverwrite);
  dialogue.setDefaultSuffix(Q(d.Extension));
  QSettings reglages;
  if (!d.Dernier.empty()) {
    dialogue.selectFile(Q(d.Dernier));
  } else {
    // Said every time: left alone, Qt opens the folder of whichever dialog came last.
    const QString dossier = reglages.value(CleDossier(d)).toString();
    dialogue.setDirectory(!dossier.isEmpty() && QFileInfo(dossier).isDir() ? dossier : QDir::currentPath());
  }
  if (dialogue.exec() != QDialog::Accepted || dialogue.selectedFiles().isEmpty()) return std::nullopt;
  const std::optional<std::string> chemin = Chemin(dialogue.selectedFiles().first());
  if (chemin) {
    d.Dernier = *chemin;
    reglages.setValue(CleDossier(d), QFileInfo(dialogue.selectedFiles().first()).absolutePath());
  }
  return chemin;
}

std::optional<std::string> TQtDialogues::FichierAOuvrir(TDialogueFichier& d) { return Fichier(d, false); }

std::optional<std::string> TQtDialogues::FichierAEnregistrer(TDialogueFichier& d) { return Fichier(d, true); }

std::optional<std::string> TQtDialogues::Saisie(const std::string& titre, const std::string& invite,
                                                const std::string& valeur) {
  bool ok = false;
  const QString texte = QInputDialog::getText(parent_, Q(titre), Q(invite), QLineEdit::Normal, Q(valeur), &ok);
  if (!ok) return std::nullopt;
  return texte.toStdString();
}

void TQtDialogues::SetCurseur(TCurseur curseur) {
  if (curseur == TCurseur::Attente) {
    // Busy means busy everywhere, menus included: hence the application-wide override.
    if (!attente_) QApplication::setOverrideCursor(Qt::WaitCursor);
    attente_ = true;
    return;
  }
  RetireAttente();
  if (zone_) zone_->setCursor(CurseurQt(curseur));
}

bool TQtDialogues::Impression(TDonneesImprimante& donnees) {
  QPrinter printer(QPrinter::HighResolution);
  VersQPrinter(donnees, printer, true);
  QPrintDialog dialogue(&printer, parent_);
  dialogue.setWindowTitle(QStringLiteral("Imprimer"));
  // The pages are all printed: what a page holds is known only as the job runs.
  dialogue.setOption(QAbstractPrintDialog::PrintPageRange, false);
  dialogue.setOption(QAbstractPrintDialog::PrintSelection, false);
  dialogue.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
  if (dialogue.exec() != QDialog::Accepted) return false;
  DepuisQPrinter(printer, donnees);
  return true;
}

bool TQtDialogues::MiseEnPage(TDonneesImprimante& donnees) {
  // Qt sets up pages for printers only; paper and margins are the same for a file.
  TDonneesImprimante page = donnees;
  page.Fichier.clear();
  QPrinter printer(QPrinter::HighResolution);
  VersQPrinter(page, printer, true);
  QPageSetupDialog dialogue(&printer, parent_);
  dialogue.setWindowTitle(QStringLiteral("Mise en page"));
  if (dialogue.exec() != QDialog::Accepted) return false;
  DepuisQPrinter(printer, page);
  donnees.Papier = page.Papier;
  donnees.Paysage = page.Paysage;
  donnees.Marges = page.Marges;
  return true;
}

// Each box judges its own OK and stays open while its TBD refuses it.
bool TQtDialogues::Execute(TBD_Coller& bd) { return QBoiteColler(bd, parent_).exec() == QDialog::Accepted; }

bool TQtDialogues::Execute(TBD_Suivre& bd) { return QBoiteSuivre(bd, parent_).exec() == QDialog::Accepted; }

bool TQtDialogues::Execute(TBD_Feuille& bd) { return QBoiteFeuille(bd, parent_).exec() == QDialog::Accepted; }

bool TQtDialogues::Execute(TBD_InsererFic& bd) {
  return QBoiteInsererFic(bd, parent_).exec() == QDialog::Accepted;
}

bool TQtDialogues::Execute(TBD_Securite& bd) {
  return QBoiteSecurite(bd, parent_).exec() == QDialog::Accepted;
}

void TQtDialogues::RetireAttente() {
  if (!attente_) return;
  attente_ = false;
  QApplication::restoreOverrideCursor();
}

QString FiltreQt(const std::string& filtre) {
  const QString f = Q(filtre);
  if (!f.contains(u'|')) return f;
  const QStringList colonnes = f.split(u'|');
  QStringList filtres;
  for (qsizetype i = 0; i + 1 < colonnes.size(); i += 2) {
    QString description = colonnes[i].trimmed();
    // Qt reads the patterns from the brackets; rebuild them from the pattern column.
    const qsizetype parenthese = description.lastIndexOf(u'(');
    if (parenthese > 0 && description.endsWith(u')')) description = description.left(parenthese).trimmed();
    QStringList motifs;
    for (const QString& m : colonnes[i + 1].split(u';', Qt::SkipEmptyParts)) {
      const QString motif = m.trimmed();
      // "*.*" meant every file; here it would miss the names without a dot.
      motifs << (motif == QStringLiteral("*.*") ? QStringLiteral("*") : motif);
    }
    if (motifs.isEmpty()) continue;
    filtres << description + QStringLiteral(" (") + motifs.join(u' ') + u')';
  }
  return filtres.join(QStringLiteral(";;"));
}
