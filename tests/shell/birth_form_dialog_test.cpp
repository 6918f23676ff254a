// The birth form driven from the keyboard and the mouse: its checks in order
// with the focus after each, the type-ahead and the choices it leads to,
// "&OK" filling the views, a failed calculation, and a chart saved, opened
// and deleted.
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "shell/birth_form_dialog.h"
#include "shell/details_view.h"
#include "shell/saved_charts_dialog.h"
#include "shell_test_support.h"

namespace kelvaro::shell {
namespace {

using testing::AnswerBoxes;
using testing::SeenBox;
using testing::ShellTest;

class BirthFormTest : public ShellTest {
 protected:
  void SetUp() override {
    ShellTest::SetUp();
    window_ = StartWindow();
    form_ = window_->OpenBirthForm();
    ASSERT_NE(form_, nullptr);
  }

  template <class W>
  W* Control(const char* name) {
    auto* w = form_->findChild<W*>(name);
    EXPECT_NE(w, nullptr) << name;
    return w;
  }
  QComboBox* Combo(const char* name) { return Control<QComboBox>(name); }

  // Clears a field and types into it, as a user does.
  void Type(const char* name, const QString& text) {
    QWidget* w = Control<QWidget>(name);
    if (auto* c = qobject_cast<QComboBox*>(w)) {
      c->setCurrentIndex(-1);
      c->clearEditText();
    } else if (auto* e = qobject_cast<QLineEdit*>(w)) {
      e->clear();
    }
    w->setFocus();
    TypeText(w, text);
  }

  // QTest spells only ASCII keys; other letters arrive as the text of a key
  // the keyboard does not name, as an input method sends them.
  static void TypeText(QWidget* w, const QString& text) {
    for (const QChar c : text) {
      if (c.unicode() < 128) {
        QTest::keyClick(w, c.toLatin1());
      } else {
        QTest::sendKeyEvent(QTest::Press, w, Qt::Key_unknown, QString(c), Qt::NoModifier);
        QTest::sendKeyEvent(QTest::Release, w, Qt::Key_unknown, QString(c), Qt::NoModifier);
      }
    }
  }

  std::vector<SeenBox> PressOk() { return testing::Click(form_, "cmdSave"); }

  // A whole birth in Chennai, chosen from the lists by typing.
  void EnterChennai(const QString& name) {
    Type("Txt_VC_ChartName", name);
    Type("txt_Date", "05");
    Type("txt_Month", "Jan");
    Type("txt_Year", "1990");
    Type("cbHour", "12");
    Type("cbMins", "05");
    Control<QRadioButton>("Opt_AM")->setChecked(true);
    Type("txt_VC_Country", "indi");
    QTest::keyClick(Combo("txt_VC_Country"), Qt::Key_Return);
    Type("txt_VC_City", "chenn");
    QTest::keyClick(Combo("txt_VC_City"), Qt::Key_Return);
  }

  QString DetailsName() {
    const GridModel& m = static_cast<DetailsView*>(window_->View(0))->Table().Model();
    return m.data(m.index(0, 1), Qt::DisplayRole).toString();
  }

  std::unique_ptr<MainWindow> window_;
  BirthFormDialog* form_ = nullptr;
};

TEST_F(BirthFormTest, DefaultsAreNow) {
  EXPECT_EQ(form_->windowTitle(), "Enter Birth Details");
  EXPECT_TRUE(form_->isModal());
  const QDateTime now = QDateTime::currentDateTime();
  EXPECT_EQ(Combo("txt_Date")->currentText().toInt(), now.date().day());
  EXPECT_EQ(Combo("txt_Year")->currentText().toInt(), now.date().year());
  EXPECT_EQ(Combo("cbGender")->currentText(), "Male");
  EXPECT_EQ(Combo("txt_Year")->itemText(0), "1900");
  EXPECT_EQ(Combo("cbHour")->count(), 12);
  EXPECT_EQ(Combo("txt_VC_Country")->currentText(), "");
  // The countries stand in the table's order, by id.
  EXPECT_LT(Combo("txt_VC_Country")->itemData(0).toLongLong(), Combo("txt_VC_Country")->itemData(1).toLongLong());
}

TEST_F(BirthFormTest, ChecksInOrderWithTheirFocus) {
  form_->New();
  struct Step {
    const char* field;  // typed into before the next OK
    const char* text;
    const char* message;
    const char* focus;  // the button pressed when no field takes it
  } steps[] = {
      {"Txt_VC_ChartName", "Ravi", "Enter Name", "Txt_VC_ChartName"},
      {"txt_Date", "31", "Enter Date of Birth", "txt_Date"},
      {"txt_Month", "Jun", "Enter Month", "txt_Month"},
      {"txt_Year", "1799", "Enter Year", "txt_Year"},
      {"txt_Year", "1990", "Enter Year Between 1800 and 3000", "txt_Year"},
      {"txt_Date", "30", "Enter Correct Date", "cmdSave"},
      {"cbHour", "10", "Enter Correct Time", "cbHour"},
      {"cbMins", "75", "Enter Correct Time", "cbMins"},
      {"cbMins", "45", "Enter Correct Time", "cbMins"},
      {"txt_VC_Country", "Ind", "Select Country", "txt_VC_Country"},
      {"txt_VC_City", "Mum", "Select City", "txt_VC_City"},
  };
  for (const Step& step : steps) {
    testing::ExpectCheck(form_, "cmdSave", "Enter Birth Details", step.message, step.focus);
    Type(step.field, step.text);
  }
  // India has one zone, which its choice took; a country typed but never
  // chosen is chosen by Enter, and "Mum" completed to a city of it.
  QTest::keyClick(Combo("txt_VC_Country"), Qt::Key_Return);
  Type("txt_VC_City", "Mum");
  QTest::keyClick(Combo("txt_VC_City"), Qt::Key_Return);
  Combo("cbTimeZone")->setCurrentIndex(-1);
  Combo("cbTimeZone")->clearEditText();
  testing::ExpectCheck(form_, "cmdSave", "Enter Birth Details", "Select Timezone", "cbTimeZone");
}

TEST_F(BirthFormTest, TypeAheadCompletesWithoutChoosingAndEnterChooses) {
  QComboBox* country = Combo("txt_VC_Country");
  Type("txt_VC_Country", "iNd");
  EXPECT_EQ(country->currentText(), "India");
  EXPECT_EQ(country->lineEdit()->selectedText(), "ia");
  EXPECT_EQ(Combo("txt_VC_City")->count(), 0);  // completion is not a choice
  QTest::keyClicks(country, "o");                 // the caret stood after "iNd"
  EXPECT_EQ(country->currentText(), "Indonesia");
  QTest::keyClick(country, Qt::Key_Backspace);    // removes the completion
  QTest::keyClick(country, Qt::Key_Backspace);
  QTest::keyClicks(country, "ia");
  QTest::keyClick(country, Qt::Key_Return);
  EXPECT_EQ(form_->focusWidget()->objectName(), "txt_VC_City");
  EXPECT_GT(Combo("txt_VC_City")->count(), 10);
  ASSERT_EQ(Combo("cbTimeZone")->count(), 1);
  EXPECT_EQ(Combo("cbTimeZone")->currentText(), "Asia/Kolkata  (5.5 hrs E)");
  Type("txt_VC_City", "hyd");
  EXPECT_EQ(Control<QLineEdit>("txtLatDetails")->text(), "");
  QTest::keyClick(Combo("txt_VC_City"), Qt::Key_Return);
  EXPECT_EQ(Combo("txt_VC_City")->currentText(), "Hyderabad (A.P)");
  EXPECT_EQ(Control<QLineEdit>("txtLatDetails")->text(), "17 N 20");
  EXPECT_EQ(Control<QLineEdit>("txtLonDetails")->text(), "78 E 30");
  // No completion: the key goes in as typed. Digits only in the year.
  Type("txt_VC_City", "Zq");
  EXPECT_EQ(Combo("txt_VC_City")->currentText(), "Zq");
  Type("txt_Year", "19x8a5");
  EXPECT_EQ(Combo("txt_Year")->currentText(), "1985");
}

TEST_F(BirthFormTest, OkFillsTheViewsAndAFailureLeavesThem) {
  EnterChennai("Ananya");
  EXPECT_TRUE(PressOk().empty());
  EXPECT_EQ(DetailsName(), "Ananya");
  EXPECT_EQ(window_->Context()->state.BirthHour, "0");  // 12 AM
  EXPECT_FALSE(window_->findChild<BirthFormDialog*>(QString(), Qt::FindDirectChildrenOnly) &&
               window_->findChild<BirthFormDialog*>()->isVisible());

  // Hour 24 passes the checks but makes no moment: a critical box, the form
  // stays, the views keep the last chart.
  QApplication::processEvents();
  form_ = window_->OpenBirthForm();
  EnterChennai("Nobody");
  Type("cbHour", "24");
  const auto boxes = PressOk();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].icon, QMessageBox::Critical);
  EXPECT_TRUE(boxes[0].title.isEmpty());
  EXPECT_TRUE(form_->isVisible());
  EXPECT_EQ(DetailsName(), "Ananya");
  EXPECT_EQ(window_->Context()->state.ChartName, "Ananya");
}

TEST_F(BirthFormTest, SaveReopenAndDeleteKeepAnAwkwardName) {
  const QString name = QString::fromUtf8("O'Brien; \xE0\xA4\xB0\xE0\xA4\xBE\xE0\xA4\xAE");
  EnterChennai(name);
  auto saved = AnswerBoxes([&] { form_->SaveAction()->trigger(); });
  ASSERT_EQ(saved.size(), 1u);
  EXPECT_EQ(saved[0].text, "Chart Successfully Saved");
  const std::int64_t sno = form_->UserId();
  EXPECT_GT(sno, 0);
  // Saved again: an update of the same chart, not a second one.
  saved = AnswerBoxes([&] { form_->SaveAction()->trigger(); });
  ASSERT_EQ(saved.size(), 1u);
  EXPECT_EQ(saved[0].text, "Details are Sucessfully Updated");
  EXPECT_EQ(form_->UserId(), sno);

  // New, then Open: the list is read anew and a click opens the chart.
  form_->NewAction()->trigger();
  EXPECT_EQ(form_->UserId(), 0);
  EXPECT_EQ(Control<QLineEdit>("Txt_VC_ChartName")->text(), "");
  form_->OpenAction()->trigger();
  auto* list = form_->findChild<SavedChartsDialog*>();
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(list->windowTitle(), "Available Users");
  const auto found = list->List().findItems(name + "~05-Jan-1990", Qt::MatchExactly);
  ASSERT_EQ(found.size(), 1);
  QListWidget& items = list->List();
  QTest::mouseClick(items.viewport(), Qt::LeftButton, {}, items.visualItemRect(found[0]).center());
  EXPECT_EQ(form_->UserId(), sno);
  EXPECT_EQ(Control<QLineEdit>("Txt_VC_ChartName")->text(), name);
  EXPECT_EQ(Combo("cbHour")->currentText(), "12");
  EXPECT_TRUE(Control<QRadioButton>("Opt_AM")->isChecked());
  EXPECT_EQ(Combo("txt_VC_Country")->currentText(), "India");
  EXPECT_EQ(Combo("cbTimeZone")->currentText(), "Asia/Kolkata  (5.5 hrs E)");
  EXPECT_EQ(Control<QLineEdit>("txtLatDetails")->text(), "13 N 5");

  // The saved chart opens at the next start.
  {
    auto next = StartWindow();
    const GridModel& m = static_cast<DetailsView*>(next->View(0))->Table().Model();
    EXPECT_EQ(m.data(m.index(0, 1), Qt::DisplayRole).toString(), name);
  }

  // Delete asks first; No keeps the chart, Yes deletes it and clears the form.
  EXPECT_EQ(AnswerBoxes([&] { form_->DeleteAction()->trigger(); }, QMessageBox::No).size(), 1u);
  EXPECT_EQ(form_->UserId(), sno);
  const auto deleted = AnswerBoxes([&] { form_->DeleteAction()->trigger(); }, QMessageBox::Yes);
  ASSERT_EQ(deleted.size(), 2u);
  EXPECT_EQ(deleted[0].text, "Are You Sure You want to delete ?");
  EXPECT_EQ(deleted[1].text, "Successfully Deleted");
  EXPECT_EQ(form_->UserId(), 0);
  EXPECT_EQ(Control<QLineEdit>("Txt_VC_ChartName")->text(), "");
}

}  // namespace
}  // namespace kelvaro::shell
