// The preferences window driven from the keyboard and the mouse: what it
// shows of the stored row, the custom ayanamsa's checks with their focus,
// and "&Save" against "&Apply" against "&Close" in the database and the views.
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

#include "shell/chart_view.h"
#include "shell/preferences_dialog.h"
#include "shell_test_support.h"
#include "store/preferences.h"

namespace kelvaro::shell {
namespace {

using testing::Click;
using testing::ShellTest;
using testing::TypeInto;

class PreferencesTest : public ShellTest {
 protected:
  void SetUp() override {
    ShellTest::SetUp();
    window_ = StartWindow();
  }
  PreferencesDialog* Open() { return testing::OpenFromMenu<PreferencesDialog>(*window_, "mnuPreferences"); }

  static QString Shown(QDialog* d, const char* combo) { return d->findChild<QComboBox*>(combo)->currentText(); }

  QString Detail(const char* label) const { return testing::DetailsValue(*window_, label); }
  ChartFrame RasiStyle() const { return static_cast<ChartView*>(window_->View(1))->Chart().Picture()->style; }
  store::Preferences Stored() const { return store::ReadPreferences(*window_->Database()); }

  std::unique_ptr<MainWindow> window_;
};

TEST_F(PreferencesTest, ListsHintsAndTheStoredRow) {
  PreferencesDialog* d = Open();
  ASSERT_NE(d, nullptr);
  EXPECT_EQ(d->windowTitle(), "Preferences");
  const std::pair<const char*, QStringList> lists[] = {
      {"cbAyanamsa", {"Chitrapaksha Ayanamsa (Lahiri)", "Raman Ayanamsa", "Krishnamoorthy Ayanamsa",
                      "Tropical Ayanamsa (Sayana)", "Custom Ayanamsa"}},
      {"Cbdays", {"365.25", "360"}},
      {"cbBhava", {"Equal House", "Placidius"}},
      {"cbChart", {"South Indian", "North Indian", "East Indian"}},
      {"cbLanguage", {"English", "Sanskrit"}}};
  for (const auto& [name, items] : lists) {
    const auto* combo = d->findChild<QComboBox*>(name);
    QStringList shown;
    for (int i = 0; i < combo->count(); ++i) shown << combo->itemText(i);
    EXPECT_EQ(shown, items) << name;
    EXPECT_EQ(combo->currentText(), items[0]) << name;  // the seed row has the first of each
  }
  QStringList labels;
  for (const QLabel* l : d->findChildren<QLabel*>()) labels << l->text();
  EXPECT_TRUE(labels.contains("(Planets and House Names Will be displayed in the Language Selected )"));
  EXPECT_TRUE(labels.contains("(Days Selected will be used to calculate vimsottari dasa)"));

  // The custom frame comes and goes with "Custom Ayanamsa"; Enter skips it while hidden.
  auto* frame = d->findChild<QGroupBox*>("FRAMECUSTOM");
  auto* ayanamsa = d->findChild<QComboBox*>("cbAyanamsa");
  EXPECT_FALSE(frame->isVisible());
  QTest::keyClick(ayanamsa, Qt::Key_Return);
  EXPECT_EQ(d->focusWidget()->objectName(), "Cbdays");
  TypeInto(d, "cbAyanamsa", "Cu");
  EXPECT_TRUE(frame->isVisible());
  QTest::keyClick(ayanamsa, Qt::Key_Return);
  EXPECT_EQ(d->focusWidget()->objectName(), "txtZero");
  QTest::keyClick(ayanamsa, Qt::Key_Up);
  EXPECT_EQ(ayanamsa->currentText(), "Tropical Ayanamsa (Sayana)");
  EXPECT_FALSE(frame->isVisible());
}

TEST_F(PreferencesTest, CustomAyanamsaChecksWithTheirFocus) {
  const struct {
    const char *zero, *progression, *message, *focus;
  } rows[] = {
      {"", "50.3", "Enter Zero Year", "txtZero"},
      {"285", "", "Enter Progression", "txtPogression"},
      {"two", "50.3", "Enter Year in Number", "txtZero"},
      {"285", "fifty", "Enter Progression in Number ", "txtPogression"},
      {"2004", "50.3", "Enter Zero Year Less than current Year ", "txtZero"},
      {"-1", "50.3", "Enter Positive Zero Year ", "txtZero"},
      {"285", "-0.5", "Enter Positive Progression ", "txtPogression"},
      {"285", "1000.5", "Enter Progression less than 1000", "txtPogression"},
  };
  PreferencesDialog* d = Open();
  ASSERT_NE(d, nullptr);
  TypeInto(d, "cbAyanamsa", "Cu");
  for (const char* button : {"cmdSave", "Command1"}) {
    for (const auto& row : rows) {
      TypeInto(d, "txtZero", row.zero);
      TypeInto(d, "txtPogression", row.progression);
      SCOPED_TRACE(button);
      testing::ExpectCheck(d, button, "Preferences", row.message, row.focus);
    }
  }
  EXPECT_EQ(Stored().ayanamsa, "Lahiri");
  // The limits themselves pass.
  TypeInto(d, "txtZero", "2003");
  TypeInto(d, "txtPogression", "1000");
  EXPECT_TRUE(Click(d, "cmdSave").empty());
  EXPECT_EQ(Stored().customYear, 2003);
  EXPECT_EQ(Stored().customProgress, 1000);
}

TEST_F(PreferencesTest, SaveApplyAndCloseInTheDatabaseAndTheViews) {
  ASSERT_TRUE(Detail("Ayanamsa").endsWith("(Lahiri)"));
  ASSERT_EQ(Detail("Lagna"), "Libra");

  // "&Close": nothing changes.
  PreferencesDialog* d = Open();
  TypeInto(d, "cbChart", "N");
  TypeInto(d, "cbLanguage", "S");
  EXPECT_TRUE(Click(d, "CMDCANCEl").empty());
  EXPECT_EQ(RasiStyle(), ChartFrame::South);
  EXPECT_EQ(Detail("Lagna"), "Libra");

  // "&Apply": every view at once, nothing stored, the house system kept.
  d = Open();
  for (const auto& [combo, letters] : {std::pair{"cbAyanamsa", "R"}, {"cbChart", "N"}, {"cbLanguage", "S"},
                                       {"cbBhava", "P"}}) {
    TypeInto(d, combo, letters);
  }
  EXPECT_TRUE(Click(d, "Command1").empty());
  EXPECT_EQ(RasiStyle(), ChartFrame::North);
  EXPECT_EQ(Detail("Lagna"), "Tula");
  EXPECT_TRUE(Detail("Ayanamsa").endsWith("(Raman)"));
  EXPECT_EQ(window_->Context()->state.BhavaSystem, "Equal");
  const store::Preferences kept = Stored();
  EXPECT_EQ(kept.ayanamsa + kept.chartStyle + kept.language + kept.bhava, "LahiriSouthEnglishEqual");
  d = Open();  // shows the stored row, not what was applied
  EXPECT_EQ(Shown(d, "cbChart"), "South Indian");

  // "&Save": stored and shown. Custom 285 at 50.3 seconds a year, worked by
  // hand for 14 Jul 1965: 1680 years make 84504 seconds, the 194.4 days of the
  // year 26.8 more, so 84530.8 seconds, 23 degrees 28 minutes 51 seconds
  // (the summary shows it with the minus of a correction, as for Lahiri).
  TypeInto(d, "cbAyanamsa", "Cu");
  TypeInto(d, "txtZero", "285");
  TypeInto(d, "txtPogression", "50.3");
  for (const auto& [combo, letters] : {std::pair{"cbChart", "E"}, {"cbBhava", "P"}, {"Cbdays", "3"}}) {
    TypeInto(d, combo, letters);
  }
  EXPECT_TRUE(Click(d, "cmdSave").empty());
  const store::Preferences saved = Stored();
  EXPECT_EQ(saved.ayanamsa + saved.chartStyle + saved.bhava, "CustomEastNot Equal");
  EXPECT_EQ(saved.customYear, 285);
  EXPECT_DOUBLE_EQ(saved.customProgress, 50.3);
  EXPECT_EQ(saved.dayInYear, 360);
  EXPECT_EQ(RasiStyle(), ChartFrame::East);
  EXPECT_EQ(window_->Context()->state.BhavaSystem, "Not Equal");
  EXPECT_EQ(Detail("Ayanamsa"), "-23.28.51  (Custom)");
  d = Open();  // a stored "Not Equal" shows as "Placidius"
  EXPECT_EQ(Shown(d, "cbBhava"), "Placidius");
  EXPECT_EQ(d->findChild<QLineEdit*>("txtPogression")->text(), "50.3");

  // The window comes back at the size it was left.
  d->resize(d->width() + 120, d->height() + 40);
  const QSize left = d->size();
  Click(d, "CMDCANCEl");
  EXPECT_EQ(Open()->size(), left);
}

}  // namespace
}  // namespace kelvaro::shell
