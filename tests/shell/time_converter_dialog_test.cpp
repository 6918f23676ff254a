// The two time converters on the sample chart's day and place, typed as a
// user types them: Hyderabad's sunrise on 14 Jul 1965 is at 05:50 (the Birth
// Details view shows it), so 02:15 PM lies 505 minutes after it.
#include <QLineEdit>
#include <QRadioButton>

#include "shell/time_converter_dialog.h"
#include "shell_test_support.h"

namespace kelvaro::shell {
namespace {

using testing::Click;
using testing::OpenFromMenu;
using testing::ShellTest;
using testing::TypeInto;


void TypeDate(QDialog* d, const char* day, const char* month, const char* year) {
  TypeInto(d, "txtDate", day);
  TypeInto(d, "txtMonth", month);
  TypeInto(d, "txtYear", year);
}

TEST_F(ShellTest, ConvertersBirthTimeToIshtaGhatiAndBack) {
  auto window = StartWindow();
  auto* to = OpenFromMenu<TimeConverterDialog>(*window, "Mnu_IshtaGhatika");
  ASSERT_NE(to, nullptr);
  EXPECT_EQ(to->windowTitle(), "Birth Time To Ishta Ghatika");
  // The place of the chart in force, and the country's first zone.
  EXPECT_EQ(to->findChild<QComboBox*>("Cmb_VP_City")->currentText(), "Hyderabad (A.P)");
  EXPECT_TRUE(to->findChild<QComboBox*>("cbTimeZone")->currentText().startsWith("Asia/Kolkata"));
  TypeDate(to, "14", "Jul", "1965");
  TypeInto(to, "cbHour", "02");
  TypeInto(to, "cbMins", "15");
  QTest::mouseClick(to->findChild<QRadioButton*>("Opt_PM"), Qt::LeftButton);
  // 505 minutes are 21.0417 ghatis: 21, then 0.0417 * 60 = 2.502 vighatis,
  // then 0.502 * 60 = 30.1 of the third unit.
  EXPECT_TRUE(Click(to, "cmdSubmit").empty());
  EXPECT_EQ(to->findChild<QLineEdit*>("txtIshtaGhati")->text(), "Ishta Ghati : 21:2:30");
  Click(to, "CMDCANCEl");

  auto* back = OpenFromMenu<TimeConverterDialog>(*window, "mnu_BirthTime");
  ASSERT_NE(back, nullptr);
  EXPECT_EQ(back->windowTitle(), "Ishta Ghatika To Birth Time");
  EXPECT_EQ(back->findChild<QComboBox*>("cbHour")->count(), 61);  // 0 to 60 ghatis
  TypeDate(back, "14", "Jul", "1965");
  TypeInto(back, "cbHour", "21");
  TypeInto(back, "cbMins", "02");
  // 21 ghatis are 8 h 24 min, 2 vighatis 48 s: 05:50 + 8:24:48 is 14:14:48.
  EXPECT_TRUE(Click(back, "cmdSubmit").empty());
  EXPECT_EQ(back->findChild<QLineEdit*>("txtBirthTime")->text(), "Birth Time : 02:14 PM");
}

TEST_F(ShellTest, ConverterChecksWithTheirFocus) {
  auto window = StartWindow();
  const struct {
    const char *entry, *field, *text, *message, *focus;
  } rows[] = {
      {"Mnu_IshtaGhatika", "txtYear", "1799", "Enter Year Between 1800 and 3000", "txtYear"},
      {"Mnu_IshtaGhatika", "txtDate", "31", "Enter Correct Date", "txtDate"},  // in June
      {"Mnu_IshtaGhatika", "cbMins", "", "Enter Correct Time", "cbMins"},
      {"Mnu_IshtaGhatika", "Cmb_VP_City", "Atlantis", "Select City", "Cmb_VP_City"},
      {"Mnu_IshtaGhatika", "Cmb_VP_Country", "", "Select Country", "Cmb_VP_Country"},
      {"mnu_BirthTime", "cbHour", "61", "Enter Correct Time", "cbHour"},
      {"mnu_BirthTime", "txtDate", "31", "Enter Correct Date", "txtDate"},
  };
  for (const auto& row : rows) {
    auto* d = OpenFromMenu<TimeConverterDialog>(*window, row.entry);
    ASSERT_NE(d, nullptr);
    TypeDate(d, "14", "Jun", "1965");  // a good date, whatever today is; the row's field comes after
    TypeInto(d, row.field, row.text);
    testing::ExpectCheck(d, "cmdSubmit", d->windowTitle(), row.message, row.focus);
    EXPECT_EQ(d->Result(), "");
    d->reject();
  }
}

}  // namespace
}  // namespace kelvaro::shell
