#include "shell/table_views.h"

#include <QLabel>
#include <QVBoxLayout>

namespace kelvaro::shell {

TablesView::TablesView(const QString& heading, std::vector<GridOf> grids, const QStringList& footnotes,
                       QWidget* parent)
    : ViewPage(parent), grids_(std::move(grids)) {
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(MakeHeading(heading, this));
  for (size_t i = 0; i < grids_.size(); ++i) {
    tables_.push_back(new GridView(this));
    layout->addWidget(tables_.back(), 1);
  }
  for (const QString& note : footnotes) {
    auto* label = new QLabel(note, this);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(label);
  }
}

void TablesView::Refresh(const ViewSource& source) {
  for (size_t i = 0; i < grids_.size(); ++i) tables_[i]->SetGrid(grids_[i](source.ctx));
}

TablesView* MakePlanetPositionsView(QWidget* parent) {
  return new TablesView(
      QObject::tr("Planet Positions"), {[](const CalculationContext& c) -> const Grid& { return c.planets.mshNirayana; }},
      {QObject::tr("* Karaka: the Jaimini chara karaka, ranked by the degrees each planet has gone in its rasi."),
       QObject::tr("** Avasthas: the Sayanadi avastha of each planet.")},
      parent);
}

TablesView* MakeBhavaFeaturesView(QWidget* parent) {
  return new TablesView(QObject::tr("Bhava Features"),
                        {[](const CalculationContext& c) -> const Grid& { return c.bhava.msh_Bhava; },
                         [](const CalculationContext& c) -> const Grid& { return c.bhava.mshBhavaDetails; }},
                        {}, parent);
}

TablesView* MakeVargasView(QWidget* parent) {
  return new TablesView(QObject::tr("Vargas"),
                        {[](const CalculationContext& c) -> const Grid& { return c.vargas.mshVargas; }}, {}, parent);
}

TablesView* MakeAshtaVargasView(QWidget* parent) {
  return new TablesView(QObject::tr("Ashta Vargas"),
                        {[](const CalculationContext& c) -> const Grid& { return c.ashtakavarga.mshAshtaVarga; }}, {},
                        parent);
}

}  // namespace kelvaro::shell
