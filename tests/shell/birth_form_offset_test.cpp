// The birth form's clock offset: the line under the zone follows the date,
// time and place; a time that happened twice asks which reading; the user
// overrules the rules and goes back to them; "&OK" calculates with the
// offset, and a saved chart reopens with the offset it was saved with.
#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

#include "shell/birth_form_dialog.h"
#include "shell_test_support.h"

namespace kelvaro::shell {
namespace {

using testing::AnswerBoxes;
using testing::DetailsValue;
using testing::TypeInto;

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
  // Day, month, year, hour and minute, then AM or PM.
  void TypeBirth(const QStringList& texts, const char* amPm) {
    const char* names[] = {"txt_Date", "txt_Month", "txt_Year", "cbHour", "cbMins"};
    for (int i = 0; i < 5; ++i) TypeInto(form_, names[i], texts[i]);
    QTest::mouseClick(form_->findChild<QRadioButton*>(amPm), Qt::LeftButton);
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

  std::unique_ptr<MainWindow> window_;
  BirthFormDialog* form_ = nullptr;
  QLabel* line_ = nullptr;
  QCheckBox* automatic_ = nullptr;
  QComboBox* fold_ = nullptr;
};

TEST_F(BirthFormOffsetTest, WarTimeIsShownOverruledSavedReopenedAndCalculated) {
  form_->findChild<QLineEdit*>("Txt_VC_ChartName")->setText("Anand");
  TypeBirth({"14", "Jul", "1946", "02", "15"}, "Opt_PM");
  ChoosePlace("Kolkata", "Kolkata");
  EXPECT_EQ(line_->text(), "Asia/Kolkata: +5:30 on 14/07/1946 (standard time)");
  // The line follows the date: in 1943 the war time was in force.
  TypeInto(form_, "txt_Year", "1943");
  const QString war = "Asia/Kolkata: +6:30 on 14/07/1943 (war time)";
  EXPECT_EQ(line_->text(), war);

  // Overruled with the check box, from the keyboard, and back to the rules.
  automatic_->setFocus();
  QTest::keyClick(automatic_, Qt::Key_Space);
  EXPECT_EQ(line_->text(), war + "; overruled by the user: 5.5 E");
  EXPECT_DOUBLE_EQ(form_->Fields().timeDiff, 5.5);
  QTest::keyClick(automatic_, Qt::Key_Space);
  EXPECT_EQ(line_->text(), war);

  // Saved, then opened again after a new chart: the saved offset and line.
  EXPECT_EQ(AnswerBoxes([&] { form_->Save(); }).size(), 1u);
  const std::int64_t sno = form_->UserId();
  form_->New();
  EXPECT_EQ(line_->text(), "");
  form_->OpenChart(sno);
  EXPECT_EQ(line_->text(), war);

  EXPECT_TRUE(testing::Click(form_, "cmdSave").empty());
  EXPECT_EQ(DetailsValue(*window_, "Clock Offset"), war);
  // 14:15 at +6:30 is 07:45 at Greenwich; the zone row's +5:30 would give 08:45.
  const QString greenwich = DetailsValue(*window_, "Greenwich Time");
  EXPECT_TRUE(greenwich.contains("07:45")) << greenwich.toStdString();
}

TEST_F(BirthFormOffsetTest, ATimeThatHappenedTwiceAsksWhichReading) {
  TypeBirth({"03", "Nov", "2024", "02", "30"}, "Opt_AM");
  ChoosePlace("New York", "New York");
  EXPECT_FALSE(fold_->isVisible());
  TypeInto(form_, "cbHour", "01");
  ASSERT_TRUE(fold_->isVisible());
  EXPECT_DOUBLE_EQ(form_->Fields().timeDiff, 4);
  fold_->setFocus();
  QTest::keyClick(fold_, Qt::Key_Down);
  EXPECT_TRUE(line_->text().startsWith("America/New_York: -5:00 on 03/11/2024 (standard time)"));
  EXPECT_DOUBLE_EQ(form_->Fields().timeDiff, 5);
}

}  // namespace
}  // namespace kelvaro::shell
