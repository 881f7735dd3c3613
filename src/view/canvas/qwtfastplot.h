#pragma once

#include <qwt_plot.h>
#include <qwt_plot_canvas.h>

#include <functional>

class CanvasOverlay;

/// The plot area of the network: a plot without frame, title or automatic replot. Over its canvas lies what changes more
/// often than the drawing. While the view moves, a picture of the drawing is moved in its place if drawing takes long.
class QwtFastPlot : public QwtPlot {
  Q_OBJECT
public:
  explicit QwtFastPlot(QWidget *parent = nullptr);

  /// What the canvas shows, in plot coordinates.
  QRectF visibleRect() const;
  /// Plot units a pixel, horizontally and vertically.
  QSizeF unitsPerPixel() const;
  /// From a position on the canvas to plot coordinates.
  QPointF toPlot(const QPoint &canvasPosition) const;

  /// The scales below and at the left keep the room that their numbers once took, lest the canvas jump while the view moves.
  void forgetScaleRoom();

  /// What leaves the legend and the like out of pictures of the canvas, and takes them in again.
  void setLeftOut(std::function<void(bool isLeftOut)> leftOut) { m_leftOut = std::move(leftOut); }
  /// The canvas without what stands still while the view moves.
  QPixmap grabDrawing();
  /// One more item to paint over the canvas, whether it is visible or not; it must outlive the plot's painting.
  void addOverlayItem(const QwtPlotItem *item);
  void updateOverlay();

  /// Keeps the picture of the present view and moves it with the view until thaw(). Quick drawings are drawn exactly.
  void freeze();
  /// Draws the exact picture again.
  void thaw();
  bool isFrozen() const;
  /// Of the last drawing of the canvas, in milliseconds.
  double frameTime() const { return m_frameTime; }

public slots:
  void replot() override;

protected:
  void drawCanvas(QPainter *painter) override;

private:
  void keepScaleRoom();

  CanvasOverlay *m_overlay = nullptr;
  std::function<void(bool isLeftOut)> m_leftOut;
  double m_frameTime = 0.0;
};
