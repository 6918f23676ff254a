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
  // Composes the report of the last calculation, without or with antra, as
  // the choice stands.
  void ShowText();
  QRadioButton* withoutAntra_;
  QRadioButton* withAntra_;
  QPlainTextEdit* text_;
  // The context lives as long as the main window; its models are always
  // those of the last complete calculation.
  const CalculationContext* ctx_ = nullptr;
  OwnerDetails owner_;
};

}  // namespace kelvaro::shell
