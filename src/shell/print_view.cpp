#include "shell/print_view.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "horoscope/report_input.h"
#include "shell/messages.h"

namespace kelvaro::shell {

namespace {

// The report is laid out for Courier New; fontconfig gives Liberation Mono,
// its metric twin, where Courier New itself is missing.
QFont ReportFont() {
  QFont font("Courier New");
  font.setStyleHint(QFont::TypeWriter);
  font.setFixedPitch(true);
  font.setPointSize(9);
  return font;
}

// The page breaks of the text are form feeds and its lines end in CR LF;
// the box shows a rule where a page ends.
QString ScreenText(const std::string& report) {
  QString text = Qs(report);
  text.remove('\r');
  text.replace('\f', QString("\n") + QString(70, QChar(0x2500)) + "\n");
  return text;
}

}  // namespace

PrintView::PrintView(QWidget* parent)
    : ViewPage(parent),
      withoutAntra_(new QRadioButton(tr("Without Antra"), this)),
      withAntra_(new QRadioButton(tr("With Antra"), this)),
      text_(new QPlainTextEdit(this)) {
  withoutAntra_->setChecked(true);
  text_->setReadOnly(true);
  text_->setLineWrapMode(QPlainTextEdit::NoWrap);
  text_->setFont(ReportFont());
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(MakeHeading(tr("Print"), this));
  auto* choice = new QHBoxLayout;
  choice->addWidget(withoutAntra_);
  choice->addWidget(withAntra_);
  choice->addStretch(1);
  layout->addLayout(choice);
  layout->addWidget(text_, 1);
  connect(withAntra_, &QRadioButton::toggled, this, [this] { ShowText(); });
}

void PrintView::Refresh(const ViewSource& source) {
  ctx_ = &source.ctx;
  owner_ = source.owner;
  ShowText();
}

void PrintView::ShowText() {
  if (!ctx_) return;
  text_->setPlainText(ScreenText(ComposeReport(ReportInputOf(*ctx_, owner_, withAntra_->isChecked()))));
}

}  // namespace kelvaro::shell
