// The birth form's clock offset: the line under the zone follows the date,
// time and place; a time the clocks skipped or went over twice is flagged;
// the user overrules the rules and goes back to them; "&OK" calculates with
// the offset, and a saved chart reopens with the offset it was saved with.
#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "shell/birth_form_dialog.h"
#include "shell/details_view.h"
#include "shell_test_support.h"

namespace kelvaro::shell {
namespace {

using testing::AnswerBoxes;

class BirthFormOffsetTest : public testing::ShellTest {
 protected:
  void SetUp() override {
    ShellTest::SetUp();
    window_ = StartWindow();
    form_ = window_->OpenBirthForm();
    ASSERT_NE(form_, nullptr);
    line_ = form_->findChild<QLabel*>("lblClockOffset");
    automatic_ = form_->findChild<QCheckBox*>("chkAutoOffset");
    fold_ = form_->findChild<QComboBox*>("cbClockFold");
    ASSERT_TRUE(line_ && automatic_ && fold_);
  }
  QComboBox* Combo(const char* name) { return form_->findChild<QComboBox*>(name); }
  void Type(const char* name, const QString& text) {
    QComboBox* c = Combo(name);
    c->setCurrentIndex(-1);
    c->clearEditText();
    c->setFocus();
    QTest::keyClicks(c, text);
  }
  void TypeBirth(const QString& day, const QString& month, const QString& year, const QString& hour,
                 const QString& minute, bool pm) {
    Type("txt_Date", day);
    Type("txt_Month", month);
    Type("txt_Year", year);
    Type("cbHour", hour);
    Type("cbMins", minute);
    QTest::mouseClick(form_->findChild<QRadioButton*>(pm ? "Opt_PM" : "Opt_AM"), Qt::LeftButton);
  }
  // Types into the place finder and takes the first listed place that
  // begins with `label`, with the arrow keys and Enter.
  void ChoosePlace(const QString& typed, const QString& label) {
    auto* find = form_->findChild<QLineEdit*>("txtFindPlace");
    find->setFocus();
    QTest::keyClicks(find, typed);
    const QAbstractItemModel* m = find->completer()->completionModel();
    int row = 0;
    while (row < m->rowCount() && !m->index(row, 0).data().toString().startsWith(label)) ++row;
    ASSERT_LT(row, m->rowCount()) << label.toStdString();
    QAbstractItemView* popup = find->completer()->popup();
    for (int i = 0; i <= row; ++i) QTest::keyClick(popup, Qt::Key_Down);
    QTest::keyClick(popup, Qt::Key_Return);
  }
  QString Details(const QString& label) {
    const GridModel& m = static_cast<DetailsView*>(window_->View(0))->Table().Model();
    for (int r = 0; r < m.rowCount(); ++r) {
      if (m.index(r, 0).data().toString() == label) return m.index(r, 1).data().toString();
    }
    return {};
  }

  std::unique_ptr<MainWindow> window_;
  BirthFormDialog* form_ = nullptr;
  QLabel* line_ = nullptr;
  QCheckBox* automatic_ = nullptr;
  QComboBox* fold_ = nullptr;
};

TEST_F(BirthFormOffsetTest, WarTimeIsShownCalculatedSavedAndReopened) {
  form_->findChild<QLineEdit*>("Txt_VC_ChartName")->setText("Anand");
  TypeBirth("14", "Jul", "1943", "02", "15", true);
  ChoosePlace("Kolkata", "Kolkata");
  const QString war = "Asia/Kolkata: +6:30 on 14/07/1943 (war time)";
  EXPECT_EQ(line_->text(), war);
  EXPECT_FALSE(fold_->isVisible());
  EXPECT_DOUBLE_EQ(form_->Fields().timeDiff, 6.5);

  // The line follows the date: in 1946 the war time was over.
  Type("txt_Year", "1946");
  EXPECT_EQ(line_->text(), "Asia/Kolkata: +5:30 on 14/07/1946 (standard time)");
  Type("txt_Year", "1943");
  EXPECT_EQ(line_->text(), war);

  // Saved, then opened again after a new chart: the saved offset and line.
  EXPECT_EQ(AnswerBoxes([&] { form_->Save(); }).size(), 1u);
  const std::int64_t sno = form_->UserId();
  ASSERT_GT(sno, 0);
  form_->New();
  EXPECT_EQ(line_->text(), "");
  form_->OpenChart(sno);
  EXPECT_EQ(line_->text(), war);
  EXPECT_DOUBLE_EQ(form_->Fields().timeDiff, 6.5);
  EXPECT_EQ(form_->Fields().clockOffsetNote, war.toStdString());

  EXPECT_TRUE(AnswerBoxes([&] { QTest::mouseClick(form_->findChild<QPushButton*>("cmdSave"), Qt::LeftButton); })
                  .empty());
  EXPECT_EQ(Details("Clock Offset"), war);
  // 14:15 at +6:30 is 07:45 at Greenwich; the zone row's +5:30 would give 08:45.
  EXPECT_TRUE(Details("Greenwich Time").contains("07:45")) << Details("Greenwich Time").toStdString();
}

TEST_F(BirthFormOffsetTest, TheUserOverrulesTheRulesAndGoesBackToThem) {
  TypeBirth("14", "Jul", "1943", "02", "15", true);
  ChoosePlace("Kolkata", "Kolkata");
  ASSERT_TRUE(automatic_->isEnabled());
  automatic_->setFocus();
  QTest::keyClick(automatic_, Qt::Key_Space);
  EXPECT_EQ(line_->text(), "Asia/Kolkata: +6:30 on 14/07/1943 (war time); overruled by the user: 5.5 E");
  EXPECT_DOUBLE_EQ(form_->Fields().timeDiff, 5.5);
  EXPECT_TRUE(form_->Fields().offsetByUser);
  QTest::keyClick(automatic_, Qt::Key_Space);
  EXPECT_EQ(line_->text(), "Asia/Kolkata: +6:30 on 14/07/1943 (war time)");
  EXPECT_DOUBLE_EQ(form_->Fields().timeDiff, 6.5);
}

TEST_F(BirthFormOffsetTest, ClockChangesAreFlaggedAndATwiceTimeIsChosen) {
  TypeBirth("10", "Mar", "2024", "02", "30", false);
  ChoosePlace("New York", "New York");
  EXPECT_TRUE(line_->text().contains("the clocks went from 02:00 to 03:00")) << line_->text().toStdString();
  EXPECT_FALSE(fold_->isVisible());

  Type("txt_Date", "03");
  Type("txt_Month", "Nov");
  Type("cbHour", "01");
  EXPECT_TRUE(fold_->isVisible());
  EXPECT_TRUE(line_->text().startsWith("America/New_York: -4:00 on 03/11/2024 (summer time)"));
  EXPECT_DOUBLE_EQ(form_->Fields().timeDiff, 4);
  fold_->setFocus();
  QTest::keyClick(fold_, Qt::Key_Down);
  EXPECT_TRUE(line_->text().startsWith("America/New_York: -5:00 on 03/11/2024 (standard time)"));
  EXPECT_DOUBLE_EQ(form_->Fields().timeDiff, 5);
  EXPECT_EQ(form_->Fields().timeDiffEW, "W");

  // An hour later the time is single again.
  Type("cbHour", "02");
  EXPECT_FALSE(fold_->isVisible());
}

}  // namespace
}  // namespace kelvaro::shell
