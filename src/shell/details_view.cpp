#include "shell/details_view.h"

#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

namespace kelvaro::shell {

DetailsView::DetailsView(QWidget* parent) : ViewPage(parent), table_(new GridView(this)) {
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(MakeHeading(tr("Birth Details"), this));
  layout->addWidget(table_);
  table_->setAlternatingRowColors(true);
}

void DetailsView::Refresh(const ViewSource& source) {
  const auto fields = source.ctx.summary.Fields();
  Grid grid("Birth Details");
  grid.Resize(static_cast<int>(fields.size()) + 1, 2);
  grid.SetText(0, 0, "Field");
  grid.SetText(0, 1, "Value");
  int row = 1;
  for (const auto& field : fields) {
    grid.SetText(row, 0, field.label);
    grid.SetText(row, 1, *field.text);
    grid.SetBold(row, 0, true);
    ++row;
  }
  table_->SetGrid(grid);
}

}  // namespace kelvaro::shell
