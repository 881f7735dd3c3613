#pragma once

#include <QColor>
#include <QObject>
#include <QPointF>
#include <QPointer>

#include <optional>

class QKeyEvent;
class QMouseEvent;
class QWidget;
class QwtPlot;

/// Lets a person move a point over a plot by the mouse and the arrow keys, and bring it back by Esc or a double click. It is
/// painted over the plot, which is not drawn anew meanwhile.
class PointMover : public QObject {
  Q_OBJECT
public:
  explicit PointMover(QwtPlot &plot);

  /// Where the point lies, in coordinates of the plot; nothing takes it away.
  void setHome(const std::optional<QPointF> &home);
  bool isMoved() const { return m_at.has_value(); }
  /// As if a person did; positive coordinates only.
  void moveTo(const QPointF &at);
  void goHome();
  void setColors(const QColor &point, const QColor &ground);

signals:
  void moved(const QPointF &at);
  void returned();

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  bool isOnPoint(const QPoint &position) const;
  QPointF pixel(const QPointF &at) const;
  QPointF plotted(const QPointF &pixel) const;
  bool press(const QMouseEvent &event);
  bool drag(const QMouseEvent &event);
  bool key(const QKeyEvent &event);
  void paint(QWidget &overlay) const;
  void update();

  QwtPlot &m_plot;
  QPointer<QWidget> m_overlay;
  std::optional<QPointF> m_home;
  std::optional<QPointF> m_at; ///< while it is elsewhere
  QPointF m_grip;              ///< from the point to where it was taken, in pixels
  bool m_isDragged = false;
  QColor m_color;
  QColor m_ground;
};
