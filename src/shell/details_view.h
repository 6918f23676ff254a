#pragma once
// Birth Details: every field of the birth summary, labelled, in order.
#include "shell/grid_view.h"
#include "shell/view_page.h"

namespace kelvaro::shell {

class DetailsView : public ViewPage {
  Q_OBJECT

 public:
  explicit DetailsView(QWidget* parent = nullptr);
  void Refresh(const ViewSource& source) override;
  GridView& Table() { return *table_; }

 private:
  GridView* table_;
};

}  // namespace kelvaro::shell
