#pragma once
// What the widget tests share: a main window over a new database and a
// settings file in a temporary folder, and the message boxes that an action
// opens, read and answered as a user would.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QMessageBox>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>
#include <vector>

#include "shell/details_view.h"
#include "shell/main_window.h"

namespace kelvaro::shell::testing {

struct SeenBox {
  QString title;
  QString text;
  QMessageBox::Icon icon = QMessageBox::NoIcon;
};

// Runs `action`; each message box that opens meanwhile is recorded and
// answered with `answer` (or its default button when it has no such one).
inline std::vector<SeenBox> AnswerBoxes(const std::function<void()>& action,
                                        QMessageBox::StandardButton answer = QMessageBox::Ok) {
  std::vector<SeenBox> seen;
  QTimer timer;
  timer.setInterval(5);
  QObject::connect(&timer, &QTimer::timeout, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box || !box->isVisible()) return;
    seen.push_back({box->windowTitle(), box->text(), box->icon()});
    QAbstractButton* button = box->button(answer);
    if (!button) button = box->defaultButton();
    if (button) {
      button->click();
    } else {
      box->done(0);
    }
  });
  timer.start();
  action();
  QApplication::processEvents();
  timer.stop();
  return seen;
}

// The window of type W that the menu entry named `entry` opens from `main`.
// A window closed before may still await its deletion: the visible one is meant.
template <class W>
W* OpenFromMenu(QWidget& main, const char* entry) {
  main.findChild<QAction*>(entry)->trigger();
  for (W* w : main.findChildren<W*>()) {
    if (w->isVisible()) return w;
  }
  ADD_FAILURE() << "nothing opened from " << entry;
  return nullptr;
}

// Types into the field of `window` named `name` as a user does: it takes the
// focus, a line edit or an editable list is cleared first, and a closed list
// chooses the item whose first letters are typed.
inline void TypeInto(QWidget* window, const char* name, const QString& text) {
  QWidget* w = window->findChild<QWidget*>(name);
  ASSERT_NE(w, nullptr) << name;
  w->setFocus();
  if (auto* e = qobject_cast<QLineEdit*>(w)) e->clear();
  auto* combo = qobject_cast<QComboBox*>(w);
  if (combo && combo->isEditable()) combo->clearEditText();
  QTest::keyClicks(w, text);
}

// Clicks the button of `window` named `button`; the boxes it opens are answered.
inline std::vector<SeenBox> Click(QWidget* window, const char* button) {
  return AnswerBoxes([&] { QTest::mouseClick(window->findChild<QPushButton*>(button), Qt::LeftButton); });
}

// The value beside `label` on the Birth Details view of `window`.
inline QString DetailsValue(MainWindow& window, const char* label) {
  const GridModel& model = static_cast<DetailsView*>(window.View(0))->Table().Model();
  for (int r = 0; r < model.rowCount(); ++r) {
    if (model.data(model.index(r, 0), Qt::DisplayRole).toString() == label) {
      return model.data(model.index(r, 1), Qt::DisplayRole).toString();
    }
  }
  return "(no such field)";
}

// Presses `button` of `window`: one information box titled `title` must say
// `message`, and the focus then stand on the field named `focus`.
inline void ExpectCheck(QWidget* window, const char* button, const QString& title, const char* message,
                        const char* focus) {
  const std::vector<SeenBox> boxes = Click(window, button);
  ASSERT_EQ(boxes.size(), 1u) << message;
  EXPECT_EQ(boxes[0].text.toStdString(), message);
  EXPECT_EQ(boxes[0].title, title) << message;
  EXPECT_EQ(boxes[0].icon, QMessageBox::Information) << message;
  EXPECT_EQ(window->focusWidget()->objectName().toStdString(), focus) << message;
}

class ShellTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(folder_.isValid());
    settings_ = std::make_unique<QSettings>(folder_.filePath("settings.ini"), QSettings::IniFormat);
  }

  QString DatabasePath() const { return folder_.filePath("data/DBMirvaneBasic.db"); }

  // A started main window; the boxes of its start-up are answered and kept.
  std::unique_ptr<MainWindow> StartWindow(const QString& databasePath = {}) {
    MainWindow::Options options;
    options.databasePath = databasePath.isEmpty() ? DatabasePath() : databasePath;
    options.settings = settings_.get();
    auto window = std::make_unique<MainWindow>(options);
    window->show();
    startBoxes_ = AnswerBoxes([&] { window->Start(); });
    return window;
  }

  QTemporaryDir folder_;
  std::unique_ptr<QSettings> settings_;
  std::vector<SeenBox> startBoxes_;
};

}  // namespace kelvaro::shell::testing
