#pragma once
// Print: the composed horoscope as it will be printed, without or with the
// antra pages, in a fixed-pitch box.
#include <QPlainTextEdit>
#include <QRadioButton>

#include "shell/view_page.h"

namespace kelvaro::shell {

class PrintView : public ViewPage {
  Q_OBJECT

 public:
  explicit PrintView(QWidget* parent = nullptr);
  void Refresh(const ViewSource& source) override;
  QPlainTextEdit& Text() { return *text_; }
  QRadioButton& WithAntra() { return *withAntra_; }

 private:
  void ShowText();
  QRadioButton* withoutAntra_;
  QRadioButton* withAntra_;
  QPlainTextEdit* text_;
  QString without_, with_;
};

}  // namespace kelvaro::shell
