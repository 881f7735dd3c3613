#pragma once

#include <QPixmap>
#include <qwt_plot.h>
#include <qwt_widget_overlay.h>

/// Lies over the canvas of a plot and lets the mouse through: the moved picture while the view moves, then an item.
class CanvasOverlay : public QwtWidgetOverlay {
  Q_OBJECT
public:
  /// \param plot whose canvas is set already
  explicit CanvasOverlay(QwtPlot &plot);

  void setItem(const QwtPlotItem *item) { m_item = item; }

  /// Covers the canvas with the picture of a view (in plot coordinates), moved to where that view lies now.
  /// \param hasItem the picture shows the item as well
  void setPicture(const QPixmap &picture, const QRectF &view, bool hasItem = false);
  void clearPicture() { m_picture = QPixmap(); }
  bool hasPicture() const { return !m_picture.isNull(); }
  /// Where the picture belongs in the present view, in pixels of the canvas.
  QRectF pictureArea() const;

  /// What drawing the item takes in a view that it has not drawn before, in milliseconds.
  double itemTime() const { return m_itemTime; }

protected:
  void drawOverlay(QPainter *painter) const override;

private:
  QwtPlot &m_plot;
  const QwtPlotItem *m_item = nullptr;
  QPixmap m_picture;
  QRectF m_pictureView; ///< in plot coordinates
  bool m_pictureHasItem = false;
  mutable double m_itemTime = 0.0;
  mutable QRectF m_itemView; ///< in which it was drawn last
};
