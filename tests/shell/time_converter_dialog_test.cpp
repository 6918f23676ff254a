// The two time converters on the sample chart's day and place, typed as a
// user types them: Hyderabad's sunrise on 14 Jul 1965 is at 05:50 (the Birth
// Details view shows it), so 02:15 PM lies 505 minutes after it.
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "shell/time_converter_dialog.h"
#include "shell_test_support.h"

namespace kelvaro::shell {
namespace {

using testing::AnswerBoxes;
using testing::ShellTest;

class ConverterTest : public ShellTest {
 protected:
  TimeConverterDialog* Open(MainWindow& window, const char* entry) {
    window.findChild<QAction*>(entry)->trigger();
    for (auto* dialog : window.findChildren<TimeConverterDialog*>()) {
      if (dialog->isVisible()) return dialog;
    }
    ADD_FAILURE() << "no converter window";
    return nullptr;
  }
  static void Type(QDialog* d, const char* combo, const QString& text) {
    auto* c = d->findChild<QComboBox*>(combo);
    ASSERT_NE(c, nullptr) << combo;
    c->setFocus();
    c->clearEditText();
    QTest::keyClicks(c, text);
  }
  static std::vector<testing::SeenBox> Submit(QDialog* d) {
    return AnswerBoxes([&] { QTest::mouseClick(d->findChild<QPushButton*>("cmdSubmit"), Qt::LeftButton); });
  }
};

TEST_F(ConverterTest, BirthTimeToIshtaGhatiAndBack) {
  auto window = StartWindow();
  TimeConverterDialog* to = Open(*window, "Mnu_IshtaGhatika");
  ASSERT_NE(to, nullptr);
  EXPECT_EQ(to->windowTitle(), "Birth Time To Ishta Ghatika");
  // The place of the chart in force, and the country's first zone.
  EXPECT_EQ(to->findChild<QComboBox*>("Cmb_VP_Country")->currentText(), "India");
  EXPECT_EQ(to->findChild<QComboBox*>("Cmb_VP_City")->currentText(), "Hyderabad (A.P)");
  EXPECT_TRUE(to->findChild<QComboBox*>("cbTimeZone")->currentText().startsWith("Asia/Kolkata"));
  Type(to, "txtDate", "14");
  Type(to, "txtMonth", "Jul");
  Type(to, "txtYear", "1965");
  Type(to, "cbHour", "02");
  Type(to, "cbMins", "15");
  QTest::mouseClick(to->findChild<QRadioButton*>("Opt_PM"), Qt::LeftButton);
  // 505 minutes are 21.0417 ghatis: 21, then 0.0417 * 60 = 2.502 vighatis,
  // then 0.502 * 60 = 30.1 of the third unit.
  EXPECT_TRUE(Submit(to).empty());
  EXPECT_EQ(to->findChild<QLineEdit*>("txtIshtaGhati")->text(), "Ishta Ghati : 21:2:30");

  QTest::mouseClick(to->findChild<QPushButton*>("CMDCANCEl"), Qt::LeftButton);
  TimeConverterDialog* back = Open(*window, "mnu_BirthTime");
  ASSERT_NE(back, nullptr);
  EXPECT_EQ(back->windowTitle(), "Ishta Ghatika To Birth Time");
  EXPECT_EQ(back->findChild<QComboBox*>("cbHour")->count(), 61);  // 0 to 60 ghatis
  EXPECT_FALSE(back->findChild<QRadioButton*>("Opt_AM")->isVisible());
  Type(back, "txtDate", "14");
  Type(back, "txtMonth", "Jul");
  Type(back, "txtYear", "1965");
  Type(back, "cbHour", "21");
  Type(back, "cbMins", "02");
  // 21 ghatis are 8 h 24 min, 2 vighatis 48 s: 05:50 + 8:24:48 is 14:14:48.
  EXPECT_TRUE(Submit(back).empty());
  EXPECT_EQ(back->findChild<QLineEdit*>("txtBirthTime")->text(), "Birth Time : 02:14 PM");
}

TEST_F(ConverterTest, ChecksInOrderWithTheirFocus) {
  auto window = StartWindow();
  struct Row {
    const char* entry;
    const char* field;  // typed into, emptied when text is empty
    const char* text;
    const char* message;
    const char* focus;
  };
  const Row rows[] = {
      {"Mnu_IshtaGhatika", "txtYear", "1799", "Enter Year Between 1800 and 3000", "txtYear"},
      {"Mnu_IshtaGhatika", "txtDate", "31", "Enter Correct Date", "txtDate"},  // in June
      {"Mnu_IshtaGhatika", "cbMins", "", "Enter Correct Time", "cbMins"},
      {"Mnu_IshtaGhatika", "Cmb_VP_City", "Atlantis", "Select City", "Cmb_VP_City"},
      {"Mnu_IshtaGhatika", "Cmb_VP_Country", "", "Select Country", "Cmb_VP_Country"},
      {"mnu_BirthTime", "cbHour", "61", "Enter Correct Time", "cbHour"},
      {"mnu_BirthTime", "txtDate", "31", "Enter Correct Date", "txtDate"},  // no such day in June
  };
  for (const Row& row : rows) {
    TimeConverterDialog* d = Open(*window, row.entry);
    ASSERT_NE(d, nullptr);
    // A day that June has, whatever today is; the row's field comes after.
    Type(d, "txtDate", "14");
    Type(d, "txtMonth", "Jun");
    Type(d, row.field, row.text);
    const auto boxes = Submit(d);
    ASSERT_EQ(boxes.size(), 1u) << row.message;
    EXPECT_EQ(boxes[0].title, d->windowTitle());
    EXPECT_EQ(boxes[0].icon, QMessageBox::Information);
    EXPECT_EQ(boxes[0].text, row.message);
    EXPECT_EQ(d->focusWidget()->objectName(), row.focus) << row.message;
    EXPECT_EQ(d->Result(), "");
    d->reject();
  }
}

}  // namespace
}  // namespace kelvaro::shell
