#pragma once

#include "interaction/viewhistory.h"
#include "interaction/zoomstack.h"

#include <QTimer>

/// The zoom of the network plot as a person works it: by rectangle, wheel and keys, and back and forward through the views
/// at which that person rested.
class PlotZoom : public ZoomStack {
  Q_OBJECT
public:
  PlotZoom(QwtFastPlot &plot, const PlotSettings &settings, Told told);

  /// Makes the extent of a network, with some margin around, the zoom base and shows it.
  void setExtent(const QRectF &extent);

  /// One step about a point in plot coordinates, which stays where it is on the canvas.
  void zoomIn(const QPointF &point) { zoomIn(point, settings().zoomFact); }
  void zoomOut(const QPointF &point) { zoomOut(point, settings().zoomFact); }
  void zoomIn(const QPointF &point, double factor);
  void zoomOut(const QPointF &point, double factor);
  /// As many steps about the point, positive to zoom in.
  void zoomSteps(int steps, const QPointF &point);
  void fitAll() { zoom(0); }
  /// Joins the rectangle to the zoom base, goes there and takes the limits from it.
  void resetZoomBase(const QRectF &rect);
  /// The views that a person rested at.
  void goBack();
  void goForward();
  bool canGoBack() const { return m_rest.isActive() || m_history.canGoBack(); }
  bool canGoForward() const { return m_history.canGoForward(); }

  /// Every zoom asks for a refresh after the general setting "pixtest delay", save during a movement and while one of
  /// these lives: whoever holds it asks when it is done, with a delay of its own.
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
  /// The left button draws the zoom rectangle while these keys are held; without keys as setDragZooms() says.
  void setRectangleKeys(Qt::KeyboardModifiers keys);
  /// Whether the left button alone draws the zoom rectangle.
  void setDragZooms(bool zooms);

  bool eventFilter(QObject *watched, QEvent *event) override;

signals:
  void refreshRequested(int delay);                   ///< the drawing for this view is wanted after so many milliseconds
  void historyChanged();                              ///< what goBack() and goForward() may do
  void wheelTurned(int steps, const QPointF &anchor); ///< positive to zoom in; anchor in plot coordinates

protected:
  void widgetWheelEvent(QWheelEvent *event) override;
  void widgetKeyPressEvent(QKeyEvent *event) override;
  void widgetKeyReleaseEvent(QKeyEvent *event) override;

private:
  void shift(double horizontal, double vertical);
  void requestRefresh();
  /// Zooms or moves by the key; false when it means nothing of the kind.
  bool moveBy(int key);
  void zoomAbout(const QPointF &point, const QSizeF &size);
  void recordView();

  int m_wheelDegrees = 0;
  int m_ownRequests = 0;
  bool m_dragZooms = true;
  ViewHistory m_history;
  QTimer m_rest; ///< until a view counts as one that a person rested at
};
