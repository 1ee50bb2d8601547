// The dialog "Suivre le meneur": the kites offered, the leader's box disabled, the choice
// handed over on OK and kept in the settings for the next session; settings that make no
// sense give the defaults.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QRadioButton>
#include <QSettings>
#include <QSpinBox>

#include "equipe/BDSuivre.h"
#include "gui/equipe/QBoiteSuivre.h"

namespace {
QCheckBox* Case(QBoiteSuivre& b, int cv) { return b.findChild<QCheckBox*>(QStringLiteral("suiveur%1").arg(cv)); }

TEST(SuivreBoiteTest, TheChoiceGoesToTheSettingsAndComesBackNextTime) {
  QSettings().clear();
  TParamSuivre p;
  TBD_Suivre bd(&p, 4, 1);
  {
    QBoiteSuivre b(bd);
    for (int cv = 1; cv <= 4; ++cv) ASSERT_NE(Case(b, cv), nullptr) << cv;
    EXPECT_EQ(Case(b, 5), nullptr);
    EXPECT_FALSE(Case(b, 2)->isEnabled());  // the leader
    EXPECT_EQ(b.findChild<QSpinBox*>(QStringLiteral("delai"))->value(), 150);
    EXPECT_TRUE(b.findChild<QRadioButton*>(QStringLiteral("551"))->isChecked());
    // Nothing ticked: the box stays open and hands nothing over.
    b.accept();
    EXPECT_NE(b.result(), QDialog::Accepted);
    EXPECT_TRUE(p.Suiveurs.empty());
    Case(b, 4)->setChecked(true);
    Case(b, 1)->setChecked(true);
    b.findChild<QSpinBox*>(QStringLiteral("delai"))->setValue(250);
    b.findChild<QRadioButton*>(QStringLiteral("553"))->setChecked(true);
    b.accept();
    EXPECT_EQ(b.result(), QDialog::Accepted);
  }
  EXPECT_EQ(p.Suiveurs, (std::vector<int>{0, 3}));
  EXPECT_EQ(p.Delai, 250);
  EXPECT_EQ(p.Mode, 553);

  // A new session: its own settings start from the defaults, the dialog reads the last choice.
  TParamSuivre q;
  TBD_Suivre bd2(&q, 4, 0);
  QBoiteSuivre b(bd2);
  EXPECT_FALSE(Case(b, 1)->isChecked());  // the leader now
  EXPECT_TRUE(Case(b, 4)->isChecked());
  EXPECT_EQ(b.findChild<QSpinBox*>(QStringLiteral("delai"))->value(), 250);
  EXPECT_TRUE(b.findChild<QRadioButton*>(QStringLiteral("553"))->isChecked());
}

TEST(SuivreBoiteTest, NonsenseInTheSettingsGivesTheDefaults) {
  QSettings reglages;
  reglages.setValue(QStringLiteral("suivre/suiveurs"), QStringLiteral("x,99,-3"));
  reglages.setValue(QStringLiteral("suivre/delai"), QStringLiteral("beaucoup"));
  reglages.setValue(QStringLiteral("suivre/mode"), 9);
  reglages.sync();
  TParamSuivre p;
  TBD_Suivre bd(&p, 3, 0);
  QBoiteSuivre b(bd);
  for (int cv = 1; cv <= 3; ++cv) EXPECT_FALSE(Case(b, cv)->isChecked()) << cv;
  EXPECT_EQ(b.findChild<QSpinBox*>(QStringLiteral("delai"))->value(), 150);
  EXPECT_TRUE(b.findChild<QRadioButton*>(QStringLiteral("551"))->isChecked());
  QSettings().clear();
}
}  // namespace
