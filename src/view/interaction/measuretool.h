#pragma once

#include "interaction/measurelayer.h"

#include <QObject>

class NetPlot;
class QMouseEvent;
class QKeyEvent;

/// Measures along a path of clicks over the drawing. A click near an element that stands at a point takes the point, unless
/// Alt is held; Return takes the place of what is selected, Backspace gives up the last point, a double click ends the path
/// and Esc the measuring.
class MeasureTool : public QObject {
  Q_OBJECT
public:
  explicit MeasureTool(NetPlot &plot, QObject *parent = nullptr);

  bool isActive() const { return m_isActive; }
  void setActive(bool isActive);
  /// Forgets path and scale, for another network.
  void clear();
  const MeasureLayer &layer() const { return m_layer; }

signals:
  void told(const QString &text); ///< how far it is, or what to do next
  void ended();                   ///< by Esc

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  bool press(const QMouseEvent &event);
  bool keyPress(const QKeyEvent &event);
  void move(const QMouseEvent &event);
  void addPoint(const QPointF &point);
  void show();
  QPointF placeAt(const QMouseEvent &event) const;

  NetPlot &m_plot;
  MeasureLayer m_layer;
  bool m_isActive = false;
  bool m_hasScale = false;
  bool m_isAtEnd = false; ///< the next click begins another path
};
