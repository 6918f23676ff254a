// The letterhead window: the default name at a first start, a letterhead
// typed and saved reaching the report of the Print view, and "&New" taking it
// away again.
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include "shell/personal_info_dialog.h"
#include "shell/print_view.h"
#include "shell_test_support.h"
#include "store/personal_details.h"

namespace kelvaro::shell {
namespace {

using testing::AnswerBoxes;
using testing::ShellTest;

class PersonalInfoTest : public ShellTest {
 protected:
  PersonalInfoDialog* Open(MainWindow& window) {
    window.findChild<QAction*>("mnudetails")->trigger();
    for (auto* dialog : window.findChildren<PersonalInfoDialog*>()) {
      if (dialog->isVisible()) return dialog;
    }
    ADD_FAILURE() << "no personal info window";
    return nullptr;
  }
  static QLineEdit* Box(PersonalInfoDialog* d, const char* name) { return d->findChild<QLineEdit*>(name); }
  static std::vector<testing::SeenBox> Press(PersonalInfoDialog* d, const char* button) {
    return AnswerBoxes([&] { QTest::mouseClick(d->findChild<QPushButton*>(button), Qt::LeftButton); });
  }
  static QString Report(MainWindow& window) { return static_cast<PrintView*>(window.View(9))->Text().toPlainText(); }
};

TEST_F(PersonalInfoTest, LetterheadTypedSavedAndShownInTheReport) {
  auto window = StartWindow();
  PersonalInfoDialog* d = Open(*window);
  ASSERT_NE(d, nullptr);
  EXPECT_EQ(d->windowTitle(), "Edit Personal Info");
  EXPECT_EQ(Box(d, "txtName")->text(), "Kelvaro Technologies Pvt Ltd");
  EXPECT_TRUE(Report(*window).contains("Kelvaro Technologies Pvt Ltd"));

  // Typed box by box, Enter moving on, as a user fills the form.
  Box(d, "txtName")->setFocus();
  Box(d, "txtName")->clear();
  for (const char* text : {"Sri Jyotisha Kendra", "12 Temple Street", "Abids", "Hyderabad", "India", "500001",
                           "040 2345 6789", "kendra@example.org"}) {
    QTest::keyClicks(d->focusWidget(), text);
    QTest::keyClick(d->focusWidget(), Qt::Key_Return);
  }
  EXPECT_EQ(d->focusWidget()->objectName(), "cmdSave");
  const auto boxes = Press(d, "cmdSave");
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].title, "Edit Personal Info");
  EXPECT_EQ(boxes[0].text, "Details Saved");
  EXPECT_EQ(boxes[0].icon, QMessageBox::Information);
  const store::PersonalDetails stored = store::LetterheadOf(*window->Database());
  EXPECT_EQ(stored.address2, "Abids");
  EXPECT_EQ(stored.email, "kendra@example.org");

  // The report of the Print view reads it at once.
  const QString report = Report(*window);
  EXPECT_TRUE(report.contains("Sri Jyotisha Kendra"));
  EXPECT_TRUE(report.contains("12 Temple Street, Abids, Hyderabad, India - 500001, Phone : 040 2345 6789"));
  EXPECT_TRUE(report.contains("E-Mail : kendra@example.org"));
  EXPECT_FALSE(report.contains("Kelvaro Technologies Pvt Ltd"));

  // "&Edit" goes to the name; "&Close" leaves and the next opening reads the row.
  Box(d, "txtCity")->setFocus();
  QTest::mouseClick(d->findChild<QPushButton*>("cmdEdit"), Qt::LeftButton);
  EXPECT_EQ(d->focusWidget()->objectName(), "txtName");
  QTest::mouseClick(d->findChild<QPushButton*>("CMDCANCEl"), Qt::LeftButton);
  d = Open(*window);
  EXPECT_EQ(Box(d, "txtPhone")->text(), "040 2345 6789");

  // "&New" clears the boxes and the stored row; the report falls back.
  EXPECT_TRUE(Press(d, "cmdNew").empty());
  EXPECT_EQ(Box(d, "txtName")->text(), "");
  EXPECT_EQ(Box(d, "txtEmail")->text(), "");
  EXPECT_FALSE(store::ReadPersonalDetails(*window->Database()).has_value());
  EXPECT_TRUE(Report(*window).contains("Kelvaro Technologies Pvt Ltd"));
  EXPECT_FALSE(Report(*window).contains("Sri Jyotisha Kendra"));
}

}  // namespace
}  // namespace kelvaro::shell
