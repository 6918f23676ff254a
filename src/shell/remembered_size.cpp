#include "shell/remembered_size.h"

#include <QEvent>
#include <QSettings>
#include <QWidget>

namespace kelvaro::shell {

namespace {

class SizeKeeper final : public QObject {
 public:
  SizeKeeper(QWidget* window, QSettings* settings, QString key)
      : QObject(window), window_(window), settings_(settings), key_(std::move(key)) {}
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == window_ && event->type() == QEvent::Hide) settings_->setValue(key_, window_->saveGeometry());
    return false;
  }

 private:
  QWidget* window_;
  QSettings* settings_;
  QString key_;
};

}  // namespace

void RememberSize(QWidget* window, QSettings* settings, const QString& key) {
  if (!settings) return;
  window->restoreGeometry(settings->value(key).toByteArray());
  window->installEventFilter(new SizeKeeper(window, settings, key));
}

}  // namespace kelvaro::shell
