#pragma once

#include "interaction/viewhistory.h"

#include <QStack>
#include <QTimer>
#include <qwt_plot_zoomer.h>

#include <drawing/plotsettings.h>

class QwtFastPlot;

/// The zoom of the network plot: by rectangle, wheel and keys, within limits, with one scale for both axes on request.
/// The views that were zoomed to stand on a stack above the base, which fits the whole network into the window.
class PlotZoom : public QwtPlotZoomer {
  Q_OBJECT
public:
  PlotZoom(QwtFastPlot &plot, PlotSettings &settings);

  /// Makes the extent of a network, with some room around, the zoom base and shows it.
  void setExtent(const QRectF &extent);
  /// Limits that suit an extent. A pixel span (a width and a height in plot units) above 10 allows to zoom in so far.
  void setZoomLimits(const QRectF &extent, const QSizeF &pixelSpan);

  /// One step about a point in plot coordinates, which stays where it is on the canvas.
  void zoomIn(const QPointF &point) { zoomIn(point, m_settings.zoomFact); }
  void zoomOut(const QPointF &point) { zoomOut(point, m_settings.zoomFact); }
  void zoomIn(const QPointF &point, double factor);
  void zoomOut(const QPointF &point, double factor);
  /// As many steps about the point, positive to zoom in.
  void zoomSteps(int steps, const QPointF &point);
  void fitAll() { zoom(0); }
  /// Fits the whole network to the canvas as it is now and forgets the stack.
  void fitBase();
  /// Joins the rectangle to the zoom base, goes there and takes the limits from it.
  void resetZoomBase(const QRectF &rect);
  /// The views that a person rested at.
  void goBack();
  void goForward();
  bool canGoBack() const { return m_rest.isActive() || m_history.canGoBack(); }
  bool canGoForward() const { return m_history.canGoForward(); }

  /// Between them zooming is one movement: one entry of the stack, slow drawings are moved as a picture, and no refresh is
  /// asked for.
  void beginMove();
  void endMove();

  /// Every zoom asks for a refresh after the general setting "pixtest delay". While one of these lives it does not:
  /// whoever holds it asks when it is done, with a delay of its own.
  class OwnRequest {
  public:
    explicit OwnRequest(PlotZoom &zoom)
        : m_zoom(zoom) {
      ++m_zoom.m_ownRequests;
    }
    ~OwnRequest() { --m_zoom.m_ownRequests; }
    OwnRequest(const OwnRequest &) = delete;
    OwnRequest &operator=(const OwnRequest &) = delete;

  private:
    PlotZoom &m_zoom;
  };

  /// In plot coordinates.
  QPointF cursor() const;
  /// The left button draws the zoom rectangle while these keys are held; nothing but it otherwise.
  void setRectangleKeys(Qt::KeyboardModifiers keys) { setMousePattern(MouseSelect1, Qt::LeftButton, keys); }
  /// Puts what the plot shows, for instance after panning, on the stack.
  void takeView();

  using QwtPlotZoomer::zoom;
  void zoom(const QRectF &rect) override;

  bool eventFilter(QObject *watched, QEvent *event) override;

signals:
  void refreshRequested(int delay);                   ///< the drawing for this view is wanted after so many milliseconds
  void wheelTurned(int steps, const QPointF &anchor); ///< positive to zoom in; anchor in plot coordinates

protected:
  void rescale() override;
  QSizeF minZoomSize() const override;
  void widgetWheelEvent(QWheelEvent *event) override;
  void widgetKeyPressEvent(QKeyEvent *event) override;
  void widgetKeyReleaseEvent(QKeyEvent *event) override;

private:
  void cutStack();
  /// Gives the base, and the view that was chosen last, the shape of the canvas as it is now. Other numbers at the scales
  /// may leave the canvas another size, and that size another view: it is done again until they agree, a few times at most.
  void fitCanvas();
  void fitViews();
  /// Puts the views on the stack without a word to anybody.
  void setStack(const QStack<QRectF> &views, int index);
  void shift(double horizontal, double vertical);
  void requestRefresh();
  /// Zooms or moves by the key; false when it means nothing of the kind.
  bool moveBy(int key);
  /// Gives both axes one scale about their centres; false when nothing is to be done.
  bool applyAxesRatio();
  /// So much larger that one scale for both axes fills the canvas; as it was where each axis has a scale of its own.
  QSizeF inCanvasRatio(const QSizeF &size) const;
  QRectF inCanvasRatio(const QRectF &rect) const;
  void zoomAbout(const QPointF &point, const QSizeF &size);
  void recordView();
  void replaceView(const QRectF &rect);

  QwtFastPlot &m_plot;
  PlotSettings &m_settings;
  QRectF m_wholeNetwork; ///< what the base shows on a canvas of any shape
  QRectF m_chosen;       ///< the view as a person chose it,
  QRectF m_fitted;       ///< and what a canvas of another shape made of it since
  bool m_isRescaling = false;
  bool m_isFitting = false;
  bool m_isCanvasOther = false; ///< than when the view was given its shape
  int m_wheelDegrees = 0;
  int m_ownRequests = 0;
  ViewHistory m_history;
  QTimer m_rest; ///< until a view counts as one that a person rested at
  enum class Move { None, Begun, Running } m_move = Move::None;
};
