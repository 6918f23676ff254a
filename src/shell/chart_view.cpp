#include "shell/chart_view.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QVBoxLayout>

#include "analysis/rasi_number.h"
#include "shell/messages.h"

namespace kelvaro::shell {

namespace {

const char* TitleOf(ChartKind kind) {
  switch (kind) {
    case ChartKind::Rasi:
      return "Rasi";
    case ChartKind::Navamsa:
      return "Navamsa";
    case ChartKind::Bhava:
      return "Bhava";
  }
  return "";
}

}  // namespace

std::optional<render::ChartPicture> PictureOfChart(const CalculationContext& ctx, ChartKind kind) {
  const ChartWindow& window =
      kind == ChartKind::Rasi ? ctx.cells.rasi : kind == ChartKind::Navamsa ? ctx.cells.navamsa : ctx.cells.bhava;
  const auto frame = window.VisibleFrame();
  if (!frame) return std::nullopt;
  // The houses of the Bhava chart run sign by sign from the Lagna's sign, so
  // it marks the Rasi Lagna; the Navamsa marks the Lagna's navamsa sign.
  const int lagna = kind == ChartKind::Navamsa ? RasiOfLongitude(ctx.state.LagnaLon, kNavamsaDivision)
                                               : RasiOfLongitude(ctx.state.LagnaLon, kRasiDivision);
  return render::PictureOf(window, *frame, lagna, TitleOf(kind));
}

ChartWidget::ChartWidget(QWidget* parent) : QWidget(parent) {
  setMinimumSize(160, 160);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setFocusPolicy(Qt::StrongFocus);
}

void ChartWidget::SetPicture(std::optional<render::ChartPicture> picture) {
  picture_ = std::move(picture);
  update();
}

void ChartWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().base());
  if (!picture_) {
    painter.drawText(rect(), Qt::AlignCenter, tr("No chart: the chart style is none of South, North and East."));
    return;
  }
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::TextAntialiasing);
  render::PaintChart(painter, QRectF(rect()).adjusted(8, 8, -8, -8), *picture_);
}

void ChartWidget::CopyToClipboard() const {
  if (picture_) QApplication::clipboard()->setImage(render::ChartImage(*picture_, kChartExportPixels));
}

bool ChartWidget::SaveAs(const QString& path, bool svg) {
  if (!picture_) return false;
  QString error;
  const bool ok = svg ? render::SaveChartSvg(*picture_, path, kChartExportPixels, &error)
                      : render::SaveChartPng(*picture_, path, kChartExportPixels, &error);
  if (!ok) ShowError(this, error);
  return ok;
}

void ChartWidget::AskAndSave(bool svg) {
  if (!picture_) return;
  const QString suggested = Qs(picture_->title) + (svg ? ".svg" : ".png");
  const QString path = QFileDialog::getSaveFileName(this, svg ? tr("Save as SVG") : tr("Save as PNG"), suggested,
                                                    svg ? tr("SVG pictures (*.svg)") : tr("PNG pictures (*.png)"));
  if (!path.isEmpty()) SaveAs(path, svg);
}

void ChartWidget::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu(this);
  auto* copy = menu.addAction(tr("&Copy"), this, &ChartWidget::CopyToClipboard);
  auto* png = menu.addAction(tr("Save as &PNG..."), this, [this] { AskAndSave(false); });
  auto* svg = menu.addAction(tr("Save as &SVG..."), this, [this] { AskAndSave(true); });
  for (auto* action : {copy, png, svg}) action->setEnabled(picture_.has_value());
  menu.exec(event->globalPos());
}

ChartView::ChartView(ChartKind kind, QWidget* parent) : ViewPage(parent), kind_(kind), chart_(new ChartWidget(this)) {
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(MakeHeading(tr(TitleOf(kind)), this));
  layout->addWidget(chart_, 1);
}

void ChartView::Refresh(const ViewSource& source) { chart_->SetPicture(PictureOfChart(source.ctx, kind_)); }

}  // namespace kelvaro::shell
