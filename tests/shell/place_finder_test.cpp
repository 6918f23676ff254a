// The birth form's place finder: typing a name lists the places of the atlas
// and the city master; choosing one fills the country, city, place and zone,
// and "&OK" calculates the chart there.
#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QLineEdit>
#include <QTest>

#include "shell/birth_form_dialog.h"
#include "shell_test_support.h"

namespace kelvaro::shell {
namespace {

using testing::DetailsValue;

class PlaceFinderTest : public testing::ShellTest {
 protected:
  void SetUp() override {
    ShellTest::SetUp();
    window_ = StartWindow();
    form_ = window_->OpenBirthForm();
    ASSERT_NE(form_, nullptr);
    find_ = form_->findChild<QLineEdit*>("txtFindPlace");
    ASSERT_NE(find_, nullptr);
  }
  QString Text(const char* name) {
    if (auto* c = form_->findChild<QComboBox*>(name)) return c->currentText();
    return form_->findChild<QLineEdit*>(name)->text();
  }
  // What the popup lists, top to bottom.
  QStringList Listed() {
    QStringList items;
    const QAbstractItemModel* m = find_->completer()->completionModel();
    for (int r = 0; r < m->rowCount(); ++r) items << m->index(r, 0).data().toString();
    return items;
  }

  std::unique_ptr<MainWindow> window_;
  BirthFormDialog* form_ = nullptr;
  QLineEdit* find_ = nullptr;
};

TEST_F(PlaceFinderTest, ChoosingANamesakeFillsItsCountryPlaceAndZone) {
  find_->setFocus();
  QTest::keyClicks(find_, "hyderab");
  const QStringList listed = Listed();
  ASSERT_GE(listed.size(), 3);
  EXPECT_EQ(listed[0], "Hyderabad (A.P)  (India)");
  EXPECT_EQ(listed[1], "Hyderabad, Telangana  (India)");
  EXPECT_EQ(listed[2], "Hyderabad, Sindh  (Pakistan)");

  // Down twice to the third line, then Enter, as on the keyboard.
  QAbstractItemView* popup = find_->completer()->popup();
  ASSERT_TRUE(popup->isVisible());
  for (int i = 0; i < 3; ++i) QTest::keyClick(popup, Qt::Key_Down);
  QTest::keyClick(popup, Qt::Key_Return);

  EXPECT_EQ(Text("txt_VC_Country"), "Pakistan");
  EXPECT_EQ(Text("txt_VC_City"), "Hyderabad, Sindh");
  // 25.3924 N, 68.3737 E to the nearest minute.
  EXPECT_EQ(Text("txtLatDetails"), "25 N 24");
  EXPECT_EQ(Text("txtLonDetails"), "68 E 22");
  EXPECT_TRUE(Text("cbTimeZone").startsWith("Asia/Karachi  (")) << Text("cbTimeZone").toStdString();
  EXPECT_EQ(find_->text(), "");
  EXPECT_EQ(form_->focusWidget()->objectName(), "cmdSave");

  form_->findChild<QLineEdit*>("Txt_VC_ChartName")->setText("Sana");
  EXPECT_TRUE(testing::Click(form_, "cmdSave").empty());
  EXPECT_EQ(DetailsValue(*window_, "City"), "Hyderabad, Sindh");
  EXPECT_EQ(DetailsValue(*window_, "Country"), "Pakistan");
  EXPECT_EQ(DetailsValue(*window_, "Latitude"), "25 24 N");
}

TEST_F(PlaceFinderTest, AccentsAndCaseDoNotMatterAndNothingFoundListsNothing) {
  find_->setFocus();
  QTest::keyClicks(find_, "SAO PAULO");
  ASSERT_FALSE(Listed().isEmpty());
  EXPECT_EQ(Listed()[0], QString::fromUtf8("São Paulo, São Paulo  (Brazil)"));
  find_->clear();
  QTest::keyClicks(find_, "qqqzx");
  EXPECT_TRUE(Listed().isEmpty());
  EXPECT_EQ(Text("txt_VC_Country"), "");
}

}  // namespace
}  // namespace kelvaro::shell
