#pragma once
// One view of the horoscope beside the tree. After every complete
// calculation each view takes what it shows from the context; a failed one
// leaves them as they were.
#include <QWidget>

class QLabel;

#include "horoscope/calculation_context.h"
#include "report/report_pages.h"

namespace kelvaro::shell {

// What the views read: the finished calculation and the letterhead.
struct ViewSource {
  const CalculationContext& ctx;
  const OwnerDetails& owner;
};

class ViewPage : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;
  virtual void Refresh(const ViewSource& source) = 0;
};

// A bold heading over a view.
QLabel* MakeHeading(const QString& text, QWidget* parent);

}  // namespace kelvaro::shell
