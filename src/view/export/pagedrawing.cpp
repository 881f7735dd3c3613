#include "export/pagedrawing.h"

#include <algorithm>

namespace {

/// Texts and lines that were light on a dark screen are to be seen on paper, too.
PlotSettings onPaper(PlotSettings settings) {
  constexpr int Pale = 160;
  const PlotSettings usual;
  if (ColorScale::isDark(settings.bgrColor)) {
    for (auto color : {&PlotSettings::edgeColorNoFlow, &PlotSettings::edgeColorInactive}) {
      if ((settings.*color).lightness() > Pale)
        settings.*color = usual.*color;
    }
  }
  settings.bgrColor = Qt::white;
  for (QColor *color : {&settings.edgeLabelsColor, &settings.nodeLabelsColor}) {
    if (color->lightness() > Pale)
      *color = Qt::black;
  }
  return settings;
}

/// As much wider or higher about its middle as it needs for the shape of the other.
QRectF grown(const QRectF &area, const QSizeF &shape) {
  const double scale = std::max(area.width() / shape.width(), area.height() / shape.height());
  QRectF whole(QPointF(), shape * scale);
  whole.moveCenter(area.center());
  return whole;
}

} // namespace

PageDrawing::PageDrawing(DrawingSource source)
    : m_source(std::move(source))
    , m_settings(onPaper(m_source.settings))
    , m_update(
          m_settings, [this] { return view(); }, Told()) {
  m_update.setNetData(m_source.net);
  m_update.setFolder(m_source.folder, m_source.subnetIcons);
  m_update.setLabelTable(m_source.labels);
  m_update.setLayers(m_source.layers);
  m_update.setDisplayMode(m_source.mode);
  m_update.updatePlot(NetUpdate::Elements::Renewed, NetUpdate::Which::EdgesAndNodes, NetUpdate::Labels::Kept);
  m_selection.setGeometry(&m_update.geometry());
  m_selection.setFilter(&m_update.layers());
  m_selection.setSizes(m_update.drawnSizes());
  m_selection.setGround(m_settings.bgrColor, false);
  m_selection.setIsInDocument(true);
  m_selection.setItems(m_source.selection);
}

NetUpdate::View PageDrawing::view() const {
  const QRectF canvas(QPointF(), m_frame);
  return {m_visible,
          {m_visible.width() / m_frame.width(), m_visible.height() / m_frame.height()},
          Projection(m_xMap, m_yMap, canvas),
          {},
          m_visible.size(),
          false};
}

/// With room at the edge for what is drawn of the outermost elements, and for their labels.
QRectF PageDrawing::wholeNetwork(const QSizeF &frame) const {
  constexpr double Room = 34.0;     // px
  constexpr double MostRoom = 0.15; // of the frame
  constexpr double Least = 1.0;     // plot units: one node alone has no extent
  const NetGeometry &geometry = m_update.geometry();
  if (!geometry.hasExtent())
    return {0.0, 0.0, Least, Least};
  QRectF extent = geometry.mainExtent();
  if (extent.width() < Least && extent.height() < Least)
    extent.adjust(-Least, -Least, Least, Least);
  const double right = std::min(Room, frame.width() * MostRoom);
  const double above = std::min(Room, frame.height() * MostRoom);
  const QSizeF inner(frame.width() - 2.0 * right, frame.height() - 2.0 * above);
  if (!m_settings.fixAxesRatio) {
    const double x = right / inner.width() * std::max(extent.width(), Least);
    const double y = above / inner.height() * std::max(extent.height(), Least);
    return extent.adjusted(-x, -y, x, y);
  }
  const double units = std::max(extent.width() / inner.width(), extent.height() / inner.height());
  QRectF whole(QPointF(), frame * units);
  whole.moveCenter(extent.center());
  return whole;
}

void PageDrawing::setView(const QSizeF &frame, const std::optional<QRectF> &area) {
  aim(frame, area);
  m_update.showForView();
}

void PageDrawing::aim(const QSizeF &frame, const std::optional<QRectF> &area) {
  m_frame = frame.expandedTo({1.0, 1.0});
  const bool hasArea = area && area->width() > 0.0 && area->height() > 0.0;
  m_visible = hasArea ? m_update.geometry().toPlot(*area) : wholeNetwork(m_frame);
  if (m_settings.fixAxesRatio)
    m_visible = grown(m_visible, m_frame);
  m_xMap.setScaleInterval(m_visible.left(), m_visible.right());
  m_xMap.setPaintInterval(0.0, m_frame.width());
  m_yMap.setScaleInterval(m_visible.top(), m_visible.bottom()); // plot coordinates grow upwards
  m_yMap.setPaintInterval(m_frame.height(), 0.0);
}

void PageDrawing::paint(QPainter &painter, bool marksSelection) const {
  const std::vector<QwtPlotItem *> items =
      const_cast<NetUpdate &>(m_update).items(); // NOLINT: painting changes none of them
  std::vector<const QwtPlotItem *> shown(items.begin(), items.end());
  if (marksSelection)
    shown.push_back(&m_selection);
  std::stable_sort(shown.begin(), shown.end(), [](const QwtPlotItem *a, const QwtPlotItem *b) { return a->z() < b->z(); });
  const QRectF canvas(QPointF(), m_frame);
  for (const QwtPlotItem *item : shown) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, item->testRenderHint(QwtPlotItem::RenderAntialiased));
    item->draw(&painter, m_xMap, m_yMap, canvas);
    painter.restore();
  }
}
