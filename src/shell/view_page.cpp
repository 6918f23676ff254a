#include "shell/view_page.h"

#include <QLabel>

namespace kelvaro::shell {

QLabel* MakeHeading(const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  QFont font = label->font();
  font.setBold(true);
  font.setPointSizeF(font.pointSizeF() * 1.25);
  label->setFont(font);
  return label;
}

}  // namespace kelvaro::shell
