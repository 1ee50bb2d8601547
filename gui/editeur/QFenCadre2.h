#pragma once
// The editor's main window, "Dessin Trajectoires": a view over TFenCadre2. Its menu and
// control bar are built from the editor's command tables and every command goes to the
// active sheet's Trt_Menu; under them stand the tabs, the active sheet and the strip of the
// property bars, laid out as the frame computes, and the status bar.
#include "editor/FenCadre2.h"
#include "editor/VueCadre2.h"

#include <QMainWindow>

#include <map>

class QAction;
class QAlertes;
class QBande;
class QFeuille;
class QFrise;
class QLabel;
class QMenu;
class QTabBar;

class QFenCadre2 : public QMainWindow, public TVueCadre2 {
  Q_OBJECT
public:
  explicit QFenCadre2(QWidget* parent = nullptr);
  ~QFenCadre2() override;

  TFenCadre2& Cadre() { return cadre_; }
  // The widget of the active sheet.
  QFeuille* Feuille() const { return feuille_; }
  QTabBar* Onglets_() const { return onglets_; }
  QBande* Bande() const { return bande_; }
  QFrise* Frise() const { return frise_; }
  // The action of a command, for tests.
  QAction* Action(unsigned id) const;
  QLabel* GadgetPosition() const { return position_; }
  QAlertes* Alertes() const { return alertes_; }
  QLabel* GadgetSynchro() const { return synchro_; }

  // TVueCadre2
  void Onglets() override;
  void FeuilleActive() override;
  void Invalide(TFenDessin* feuille, const TRect& r) override;
  void Textes() override;
  void Focus() override;
  void Barres() override;
  void Ferme() override;

protected:
  void closeEvent(QCloseEvent* evenement) override;
  bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
  void CreeMenu();
  void CreeBarre();
  void AjouteAlertes();
  static constexpr int HAUTEUR_ALERTES = 110;
  QAction* NouvelleAction(unsigned id, const char* texte, const char* raccourci = nullptr);
  // Fills "Fichiers &récents" with the routines still on disk.
  void Recents();
  // The client area changed size: the frame computes the places, the widgets take them.
  void Dispose();

  TFenCadre2 cadre_;
  QWidget* client_ = nullptr;
  QTabBar* onglets_ = nullptr;
  QFeuille* feuille_ = nullptr;
  QBande* bande_ = nullptr;
  QFrise* frise_ = nullptr;  // the timeline's dock under the sheet
  QLabel* position_ = nullptr;
  QAlertes* alertes_ = nullptr;
  QLabel* synchro_ = nullptr;
  QMenu* recents_ = nullptr;
  std::map<unsigned, QAction*> actions_;
  int observateur_ = 0;  // the caption follows the document's modified state
};
