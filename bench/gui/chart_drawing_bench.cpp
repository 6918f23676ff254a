// Drawing one chart of the sample horoscope into a 600 pixel image, text
// layout included, as a window repaints it. Target: under 5 ms per chart.
#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

#include "presentation/chart_cells.h"
#include "render/chart_painter.h"
#include "support/sample_chart.h"

namespace {

using kelvaro::ChartFrame;

void BM_DrawChart(benchmark::State& state) {
  const auto style = static_cast<ChartFrame>(state.range(0));
  const char* names[] = {"South", "East", "North"};
  kelvaro::ChartCells cells;
  kelvaro::FillRasiChart(kelvaro::testing::SampleChartData(names[state.range(0)], false), cells);
  const kelvaro::render::ChartPicture chart = kelvaro::render::PictureOf(cells.rasi, style, 7, "Rasi");
  QImage image(600, 600, QImage::Format_ARGB32_Premultiplied);
  for (auto _ : state) {
    image.fill(Qt::white);
    QPainter painter(&image);
    kelvaro::render::PaintChart(painter, QRectF(0, 0, 600, 600), chart);
    painter.end();
    benchmark::DoNotOptimize(image.constBits());
  }
  state.SetLabel(names[state.range(0)]);
}
BENCHMARK(BM_DrawChart)
    ->Arg(static_cast<int>(ChartFrame::South))
    ->Arg(static_cast<int>(ChartFrame::East))
    ->Arg(static_cast<int>(ChartFrame::North))
    ->Unit(benchmark::kMillisecond);

}  // namespace
