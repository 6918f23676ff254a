#pragma once
// The views that show grids of the calculation as they stand: Planet
// Positions (with the foot notes of its marked columns), Bhava Features (the
// houses' limits and their mid points' lords), Vargas and Ashta Vargas.
#include <functional>
#include <vector>

#include "shell/grid_view.h"
#include "shell/view_page.h"

namespace kelvaro::shell {

class TablesView : public ViewPage {
  Q_OBJECT

 public:
  using GridOf = std::function<const Grid&(const CalculationContext&)>;
  TablesView(const QString& heading, std::vector<GridOf> grids, const QStringList& footnotes,
             QWidget* parent = nullptr);
  void Refresh(const ViewSource& source) override;
  GridView& Table(int i) { return *tables_[static_cast<size_t>(i)]; }

 private:
  std::vector<GridOf> grids_;
  std::vector<GridView*> tables_;
};

TablesView* MakePlanetPositionsView(QWidget* parent);
TablesView* MakeBhavaFeaturesView(QWidget* parent);
TablesView* MakeVargasView(QWidget* parent);
TablesView* MakeAshtaVargasView(QWidget* parent);

}  // namespace kelvaro::shell
