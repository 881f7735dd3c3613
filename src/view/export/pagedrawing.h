#pragma once

#include <drawing/netupdate.h>
#include <drawing/selectionlayer.h>

#include <qwt_scale_map.h>

/// What of the screen's drawing a page takes over.
struct DrawingSource {
  const NetData *net = nullptr;
  PlotSettings settings;
  LabelTable labels;
  QString folder; ///< of the case
  QString subnetIcons;
  LayerFilter layers;
  NetUpdate::DisplayMode mode = NetUpdate::DisplayMode::Functions;
  std::vector<NetGeometry::Item> selection;
  QRectF area; ///< that the window shows, in the network's coordinates; empty when it shows all
};

/// The drawing of a network for paper, beside that of the screen, which does not change by it: with its own labels and view,
/// on white ground. The network must outlive it.
class PageDrawing {
public:
  explicit PageDrawing(DrawingSource source);

  const DrawingSource &source() const { return m_source; }
  const PlotSettings &settings() const { return m_settings; }
  const NetUpdate &update() const { return m_update; }

  /// Brings an area of the network, in its own coordinates, into a frame of this size, px, which it fills: what lies beside
  /// it is seen where the shapes differ. Without an area the whole network.
  void setView(const QSizeF &frame, const std::optional<QRectF> &area);
  /// The same, without deciding anew what is shown there: enough to ask what is seen.
  void aim(const QSizeF &frame, const std::optional<QRectF> &area);
  /// What is seen, in plot coordinates.
  const QRectF &visible() const { return m_visible; }
  /// Whether stations are named where no labels are placed; for the next view.
  void setNamesWanted(bool areWanted) { m_update.setNamesWanted(areWanted); }
  void placeLabels() { m_update.placeLabelsNow(); }
  void clearLabels() { m_update.clearLabels(); }

  void paint(QPainter &painter, bool marksSelection) const;

private:
  NetUpdate::View view() const;
  QRectF wholeNetwork(const QSizeF &frame) const;

  DrawingSource m_source;
  PlotSettings m_settings;
  QRectF m_visible{0.0, 0.0, 1.0, 1.0};
  QSizeF m_frame{1.0, 1.0}; ///< px
  QwtScaleMap m_xMap;
  QwtScaleMap m_yMap;
  NetUpdate m_update;
  SelectionLayer m_selection;
};
