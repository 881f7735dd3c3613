#pragma once

#include <QPixmap>
#include <qwt_plot.h>
#include <qwt_widget_overlay.h>

#include <vector>

/// Lies over the canvas of a plot and lets the mouse through: the moved picture while the view moves, then items.
class CanvasOverlay : public QwtWidgetOverlay {
  Q_OBJECT
public:
  /// \param plot whose canvas is set already
  explicit CanvasOverlay(QwtPlot &plot);

  /// Above those that are there.
  void addItem(const QwtPlotItem *item) { m_items.push_back(item); }

  /// Covers the canvas with the picture of a view (in plot coordinates), moved to where that view lies now.
  /// \param hasItems the picture shows the items as well
  void setPicture(const QPixmap &picture, const QRectF &view, bool hasItems = false);
  void clearPicture() { m_picture = QPixmap(); }
  bool hasPicture() const { return !m_picture.isNull(); }
  /// Where the picture belongs in the present view, in pixels of the canvas.
  QRectF pictureArea() const;

  /// What drawing the items takes in a view that they were not drawn in before, in milliseconds.
  double itemsTime() const { return m_itemsTime; }

protected:
  void drawOverlay(QPainter *painter) const override;

private:
  QwtPlot &m_plot;
  std::vector<const QwtPlotItem *> m_items;
  QPixmap m_picture;
  QRectF m_pictureView; ///< in plot coordinates
  bool m_pictureHasItems = false;
  mutable double m_itemsTime = 0.0;
  mutable QRectF m_itemsView; ///< in which they were drawn last
};
