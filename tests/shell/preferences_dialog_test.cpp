// The preferences window driven from the keyboard and the mouse: what it
// shows of the stored row, the custom ayanamsa's checks with their focus,
// and "&Save" against "&Apply" against "&Close" in the database and in the
// views.
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include "shell/chart_view.h"
#include "shell/details_view.h"
#include "shell/preferences_dialog.h"
#include "shell_test_support.h"
#include "store/preferences.h"

namespace kelvaro::shell {
namespace {

using testing::AnswerBoxes;
using testing::ShellTest;

class PreferencesTest : public ShellTest {
 protected:
  void SetUp() override {
    ShellTest::SetUp();
    window_ = StartWindow();
    ASSERT_TRUE(startBoxes_.empty());
  }

  // Opens the window from its menu entry, as a user does.
  PreferencesDialog* Open() {
    auto* entry = window_->findChild<QAction*>("mnuPreferences");
    EXPECT_NE(entry, nullptr);
    entry->trigger();
    // A window closed before may wait for its deletion: the open one is meant.
    for (auto* dialog : window_->findChildren<PreferencesDialog*>()) {
      if (dialog->isVisible()) return dialog;
    }
    ADD_FAILURE() << "no preferences window";
    return nullptr;
  }

  // Types the first letters of an item into a closed list.
  static void Choose(PreferencesDialog* d, const char* combo, const char* letters) {
    auto* c = d->findChild<QComboBox*>(combo);
    ASSERT_NE(c, nullptr) << combo;
    c->setFocus();
    QTest::keyClicks(c, letters);
  }

  static void Type(PreferencesDialog* d, const char* field, const QString& text) {
    auto* e = d->findChild<QLineEdit*>(field);
    ASSERT_NE(e, nullptr) << field;
    e->clear();
    QTest::keyClicks(e, text);
  }

  static std::vector<testing::SeenBox> Press(PreferencesDialog* d, const char* button) {
    auto* b = d->findChild<QPushButton*>(button);
    EXPECT_NE(b, nullptr) << button;
    return AnswerBoxes([&] { QTest::mouseClick(b, Qt::LeftButton); });
  }

  QString Detail(const char* label) const {
    const GridModel& model = static_cast<DetailsView*>(window_->View(0))->Table().Model();
    for (int r = 0; r < model.rowCount(); ++r) {
      if (model.data(model.index(r, 0), Qt::DisplayRole).toString() == label) {
        return model.data(model.index(r, 1), Qt::DisplayRole).toString();
      }
    }
    return "(no such field)";
  }

  ChartFrame RasiStyle() const { return static_cast<ChartView*>(window_->View(1))->Chart().Picture()->style; }
  store::Preferences Stored() const { return store::ReadPreferences(*window_->Database()); }

  std::unique_ptr<MainWindow> window_;
};

QStringList Items(const QComboBox* c) {
  QStringList items;
  for (int i = 0; i < c->count(); ++i) items << c->itemText(i);
  return items;
}

TEST_F(PreferencesTest, ListsHintsAndTheStoredRow) {
  PreferencesDialog* d = Open();
  ASSERT_NE(d, nullptr);
  EXPECT_EQ(d->windowTitle(), "Preferences");
  EXPECT_EQ(Items(d->findChild<QComboBox*>("cbAyanamsa")),
            QStringList({"Chitrapaksha Ayanamsa (Lahiri)", "Raman Ayanamsa", "Krishnamoorthy Ayanamsa",
                         "Tropical Ayanamsa (Sayana)", "Custom Ayanamsa"}));
  EXPECT_EQ(Items(d->findChild<QComboBox*>("Cbdays")), QStringList({"365.25", "360"}));
  EXPECT_EQ(Items(d->findChild<QComboBox*>("cbBhava")), QStringList({"Equal House", "Placidius"}));
  EXPECT_EQ(Items(d->findChild<QComboBox*>("cbChart")), QStringList({"South Indian", "North Indian", "East Indian"}));
  EXPECT_EQ(Items(d->findChild<QComboBox*>("cbLanguage")), QStringList({"English", "Sanskrit"}));
  // The seed row: Lahiri, 365.25, Equal, South, English.
  for (const auto& [combo, text] : {std::pair{"cbAyanamsa", "Chitrapaksha Ayanamsa (Lahiri)"},
                                    {"Cbdays", "365.25"}, {"cbBhava", "Equal House"}, {"cbChart", "South Indian"},
                                    {"cbLanguage", "English"}}) {
    EXPECT_EQ(d->findChild<QComboBox*>(combo)->currentText(), text) << combo;
  }
  QStringList labels;
  for (const QLabel* l : d->findChildren<QLabel*>()) labels << l->text();
  EXPECT_TRUE(labels.contains("(Planets and House Names Will be displayed in the Language Selected )"));
  EXPECT_TRUE(labels.contains("(Days Selected will be used to calculate vimsottari dasa)"));
  EXPECT_TRUE(labels.contains("Enter Zero Year :"));

  // The custom frame comes and goes with "Custom Ayanamsa"; Enter skips it
  // while it is hidden.
  auto* frame = d->findChild<QGroupBox*>("FRAMECUSTOM");
  EXPECT_FALSE(frame->isVisible());
  QTest::keyClick(d->findChild<QComboBox*>("cbAyanamsa"), Qt::Key_Return);
  EXPECT_EQ(d->focusWidget()->objectName(), "Cbdays");
  Choose(d, "cbAyanamsa", "Cu");
  EXPECT_TRUE(frame->isVisible());
  QTest::keyClick(d->findChild<QComboBox*>("cbAyanamsa"), Qt::Key_Return);
  EXPECT_EQ(d->focusWidget()->objectName(), "txtZero");
  QTest::keyClick(d->findChild<QComboBox*>("cbAyanamsa"), Qt::Key_Up);
  EXPECT_EQ(d->findChild<QComboBox*>("cbAyanamsa")->currentText(), "Tropical Ayanamsa (Sayana)");
  EXPECT_FALSE(frame->isVisible());
}

TEST_F(PreferencesTest, CustomAyanamsaChecksInOrderWithTheirFocus) {
  struct Row {
    const char* zero;
    const char* progression;
    const char* message;
    const char* focus;
  };
  const Row rows[] = {
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
  Choose(d, "cbAyanamsa", "Cu");
  for (const char* button : {"cmdSave", "Command1"}) {
    for (const Row& row : rows) {
      Type(d, "txtZero", row.zero);
      Type(d, "txtPogression", row.progression);
      const auto boxes = Press(d, button);
      ASSERT_EQ(boxes.size(), 1u) << row.message;
      EXPECT_EQ(boxes[0].title, "Preferences");
      EXPECT_EQ(boxes[0].icon, QMessageBox::Information);
      EXPECT_EQ(boxes[0].text, row.message) << button;
      EXPECT_EQ(d->focusWidget()->objectName(), row.focus) << row.message;
      EXPECT_TRUE(d->isVisible());
    }
  }
  EXPECT_EQ(Stored().ayanamsa, "Lahiri");
  // The limits themselves pass.
  Type(d, "txtZero", "2003");
  Type(d, "txtPogression", "1000");
  EXPECT_TRUE(Press(d, "cmdSave").empty());
  EXPECT_EQ(Stored().customYear, 2003);
  EXPECT_EQ(Stored().customProgress, 1000);
}

TEST_F(PreferencesTest, SaveApplyAndCloseInTheDatabaseAndTheViews) {
  const QString lahiri = Detail("Ayanamsa");
  ASSERT_TRUE(lahiri.endsWith("(Lahiri)")) << lahiri.toStdString();
  ASSERT_EQ(Detail("Lagna"), "Libra");

  // "&Close": nothing changes.
  PreferencesDialog* d = Open();
  Choose(d, "cbChart", "N");
  Choose(d, "cbLanguage", "S");
  EXPECT_TRUE(Press(d, "CMDCANCEl").empty());
  EXPECT_EQ(RasiStyle(), ChartFrame::South);
  EXPECT_EQ(Detail("Lagna"), "Libra");
  EXPECT_EQ(Stored().chartStyle, "South");

  // "&Apply": every view at once, nothing stored, the house system kept.
  d = Open();
  Choose(d, "cbAyanamsa", "R");
  Choose(d, "cbChart", "N");
  Choose(d, "cbLanguage", "S");
  Choose(d, "cbBhava", "P");
  const QPointer<PreferencesDialog> applied(d);
  EXPECT_TRUE(Press(d, "Command1").empty());
  EXPECT_TRUE(applied.isNull() || !applied->isVisible());
  EXPECT_EQ(RasiStyle(), ChartFrame::North);
  EXPECT_EQ(Detail("Lagna"), "Tula");
  EXPECT_TRUE(Detail("Ayanamsa").endsWith("(Raman)")) << Detail("Ayanamsa").toStdString();
  EXPECT_EQ(window_->Context()->state.BhavaSystem, "Equal");
  const store::Preferences kept = Stored();
  EXPECT_EQ(kept.ayanamsa, "Lahiri");
  EXPECT_EQ(kept.chartStyle, "South");
  EXPECT_EQ(kept.language, "English");
  EXPECT_EQ(kept.bhava, "Equal");

  // Opened again it shows the stored row, not what was applied.
  d = Open();
  EXPECT_EQ(d->findChild<QComboBox*>("cbChart")->currentText(), "South Indian");

  // "&Save": stored and shown. Custom 285 at 50.3 seconds a year, worked by
  // hand for 14 Jul 1965: 1680 years make 84504 seconds, the 194.4 days of the
  // year 26.8 more, so 84530.8 seconds, 23 degrees 28 minutes 51 seconds
  // (the summary shows it with the minus of a correction, as for Lahiri).
  Choose(d, "cbAyanamsa", "Cu");
  Type(d, "txtZero", "285");
  Type(d, "txtPogression", "50.3");
  Choose(d, "cbChart", "E");
  Choose(d, "cbBhava", "P");
  Choose(d, "Cbdays", "3");
  EXPECT_TRUE(Press(d, "cmdSave").empty());
  const store::Preferences saved = Stored();
  EXPECT_EQ(saved.ayanamsa, "Custom");
  EXPECT_EQ(saved.customYear, 285);
  EXPECT_DOUBLE_EQ(saved.customProgress, 50.3);
  EXPECT_EQ(saved.chartStyle, "East");
  EXPECT_EQ(saved.bhava, "Not Equal");
  EXPECT_EQ(saved.dayInYear, 360);
  EXPECT_EQ(RasiStyle(), ChartFrame::East);
  EXPECT_EQ(window_->Context()->state.BhavaSystem, "Not Equal");
  EXPECT_EQ(Detail("Ayanamsa"), "-23.28.51  (Custom)");

  // A stored "Not Equal" shows as "Placidius".
  d = Open();
  EXPECT_EQ(d->findChild<QComboBox*>("cbBhava")->currentText(), "Placidius");
  EXPECT_TRUE(d->findChild<QGroupBox*>("FRAMECUSTOM")->isVisible());
  EXPECT_EQ(d->findChild<QLineEdit*>("txtPogression")->text(), "50.3");
}

}  // namespace
}  // namespace kelvaro::shell
