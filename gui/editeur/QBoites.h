#pragma once
// What the editor's three dialog boxes share: their controls are named by their ids, the
// edits hold at most a given number of characters, and a group of radio buttons may show
// none checked, as the settings can ask.
#include <QDialog>
#include <QLineEdit>
#include <QRadioButton>

#include <initializer_list>
#include <string>
#include <utility>

class QDialogButtonBox;

namespace boites {

QRadioButton* Radio(const char* texte, int id);
// An edit wide enough for `longueur` characters, showing `texte`.
QLineEdit* Saisie(const std::string& texte, int id, int longueur);
std::string Texte(const QLineEdit* saisie);
// Sets every button as asked, unchecking included, which an exclusive group refuses.
void Coche(std::initializer_list<std::pair<QRadioButton*, bool>> etats);
// "OK" and "Annuler", wired to the dialog's accept() and reject().
QDialogButtonBox* OKAnnuler(QDialog* dialogue);

}  // namespace boites
