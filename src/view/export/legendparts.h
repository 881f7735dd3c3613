#pragma once

#include <drawing/drawvalues.h>
#include <paper/pagecontent.h>

#include <qwt_color_map.h>

#include <memory>

/// Parts of a legend: a heading with something below it.
namespace LegendParts {

constexpr double LineHeight = 16.0;

/// What a scale says: its colours over the range of the values, in the display unit, with round numbers below.
PaperLegendPart colors(const QString &title, std::shared_ptr<const QwtColorMap> map, const DrawValues::Column &values);

/// A sign and what it means.
struct Row {
  std::function<void(QPainter &painter, const QPointF &center)> paint;
  QString text;
};
/// \param signWidth the room for the signs
PaperLegendPart rows(const QString &title, std::vector<Row> rows, double signWidth);

} // namespace LegendParts
