// The letterhead window: the default name at a first start, a letterhead
// typed and saved reaching the report of the Print view, and "&New" taking it
// away again.
#include <QLineEdit>

#include "shell/personal_info_dialog.h"
#include "shell/print_view.h"
#include "shell_test_support.h"
#include "store/personal_details.h"

namespace kelvaro::shell {
namespace {

using testing::Click;
using testing::ShellTest;

TEST_F(ShellTest, LetterheadTypedSavedAndShownInTheReport) {
  auto window = StartWindow();
  auto report = [&] { return static_cast<PrintView*>(window->View(9))->Text().toPlainText(); };
  auto* d = testing::OpenFromMenu<PersonalInfoDialog>(*window, "mnudetails");
  ASSERT_NE(d, nullptr);
  auto box = [&](const char* name) { return d->findChild<QLineEdit*>(name); };
  EXPECT_EQ(d->windowTitle(), "Edit Personal Info");
  EXPECT_EQ(box("txtName")->text(), "Kelvaro Technologies Pvt Ltd");
  EXPECT_TRUE(report().contains("Kelvaro Technologies Pvt Ltd"));

  // Typed box by box, Enter moving on.
  box("txtName")->setFocus();
  box("txtName")->clear();
  for (const char* text : {"Sri Jyotisha Kendra", "12 Temple Street", "Abids", "Hyderabad", "India", "500001",
                           "040 2345 6789", "kendra@example.org"}) {
    QTest::keyClicks(d->focusWidget(), text);
    QTest::keyClick(d->focusWidget(), Qt::Key_Return);
  }
  EXPECT_EQ(d->focusWidget()->objectName(), "cmdSave");
  const auto boxes = Click(d, "cmdSave");
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].title, "Edit Personal Info");
  EXPECT_EQ(boxes[0].text, "Details Saved");
  EXPECT_EQ(store::LetterheadOf(*window->Database()).address2, "Abids");
  // The report of the Print view reads it at once.
  EXPECT_TRUE(report().contains("Sri Jyotisha Kendra"));
  EXPECT_TRUE(report().contains("12 Temple Street, Abids, Hyderabad, India - 500001, Phone : 040 2345 6789"));
  EXPECT_TRUE(report().contains("E-Mail : kendra@example.org"));
  EXPECT_FALSE(report().contains("Kelvaro Technologies Pvt Ltd"));

  // "&Edit" goes to the name; the next opening reads the row.
  box("txtCity")->setFocus();
  Click(d, "cmdEdit");
  EXPECT_EQ(d->focusWidget()->objectName(), "txtName");
  Click(d, "CMDCANCEl");
  d = testing::OpenFromMenu<PersonalInfoDialog>(*window, "mnudetails");
  EXPECT_EQ(box("txtPhone")->text(), "040 2345 6789");

  // "&New" clears the boxes and the stored row; the report falls back.
  EXPECT_TRUE(Click(d, "cmdNew").empty());
  EXPECT_EQ(box("txtName")->text() + box("txtEmail")->text(), "");
  EXPECT_FALSE(store::ReadPersonalDetails(*window->Database()).has_value());
  EXPECT_TRUE(report().contains("Kelvaro Technologies Pvt Ltd"));
  EXPECT_FALSE(report().contains("Sri Jyotisha Kendra"));
}

}  // namespace
}  // namespace kelvaro::shell
