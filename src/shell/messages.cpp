#include "shell/messages.h"

#include <QMessageBox>

namespace kelvaro::shell {

QString Qs(const std::string& text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

std::string Std(const QString& text) { return text.toStdString(); }

void ShowError(QWidget* parent, const QString& text) {
  QMessageBox::critical(parent, QString(), text);
}

void ShowInformation(QWidget* parent, const QString& caption, const QString& text) {
  QMessageBox::information(parent, caption, text);
}

bool AskYesNo(QWidget* parent, const QString& caption, const QString& text) {
  return QMessageBox::question(parent, caption, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
         QMessageBox::Yes;
}

}  // namespace kelvaro::shell
