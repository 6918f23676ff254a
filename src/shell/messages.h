#pragma once
// The program's three kinds of message box: an unexpected error (critical,
// with no title of its own), a validation message (information, titled with
// the window's caption), and a question with Yes and No.
#include <QString>
#include <string>

class QWidget;

namespace kelvaro::shell {

QString Qs(const std::string& text);
std::string Std(const QString& text);

void ShowError(QWidget* parent, const QString& text);
void ShowInformation(QWidget* parent, const QString& caption, const QString& text);
bool AskYesNo(QWidget* parent, const QString& caption, const QString& text);

}  // namespace kelvaro::shell
