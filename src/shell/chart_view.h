#pragma once
// The Rasi, Navamsa and Bhava views: the chart drawn in the style of the last
// calculation, at any size, with Copy, Save as PNG and Save as SVG on the
// context menu.
#include <QWidget>

#include "render/chart_painter.h"
#include "shell/view_page.h"

namespace kelvaro::shell {

enum class ChartKind { Rasi, Navamsa, Bhava };

// The picture of a chart of the finished calculation, in the style whose
// frame the fill showed; nothing when no style was drawn.
std::optional<render::ChartPicture> PictureOfChart(const CalculationContext& ctx, ChartKind kind);

class ChartWidget : public QWidget {
  Q_OBJECT

 public:
  explicit ChartWidget(QWidget* parent = nullptr);
  void SetPicture(std::optional<render::ChartPicture> picture);
  const std::optional<render::ChartPicture>& Picture() const { return picture_; }

  void CopyToClipboard() const;
  // Writes the chart; false with a message box on failure.
  bool SaveAs(const QString& path, bool svg);
  QSize sizeHint() const override { return {480, 480}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void AskAndSave(bool svg);
  std::optional<render::ChartPicture> picture_;
};

class ChartView : public ViewPage {
  Q_OBJECT

 public:
  ChartView(ChartKind kind, QWidget* parent = nullptr);
  void Refresh(const ViewSource& source) override;
  ChartWidget& Chart() { return *chart_; }

 private:
  ChartKind kind_;
  ChartWidget* chart_;
};

// Side of a copied or saved picture, in pixels.
inline constexpr int kChartExportPixels = 800;

}  // namespace kelvaro::shell
