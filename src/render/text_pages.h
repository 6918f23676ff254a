#pragma once
// The text report on paper: each piece (the text between two form feeds) on
// a page of its own, in Liberation Mono, the metric twin of Courier New for
// which the report is laid out, so that its columns stay aligned.
#include <QPagedPaintDevice>
#include <QPainter>
#include <string>
#include <vector>

namespace kelvaro::render {

// The largest size the text is printed at, in points; a piece too wide or
// too long for the page is printed smaller, never cut.
inline constexpr double kTextPagePoints = 10;

// Paints the pieces, one per page, on a painter begun on `device`; lines
// end in CR LF or LF.
void PaintTextPages(QPainter& painter, QPagedPaintDevice& device, const std::vector<std::string>& pieces);

}  // namespace kelvaro::render
