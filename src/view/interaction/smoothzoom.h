#pragma once

#include <QObject>
#include <QPointF>
#include <QTimeLine>

#include <deque>
#include <optional>

class PlotZoom;

/// Zooms a plot in many small steps instead of one. Wheel steps that come while it runs add to it; steps the other way
/// stop what runs.
class SmoothZoom : public QObject {
  Q_OBJECT
public:
  explicit SmoothZoom(PlotZoom &zoom);

  /// \param steps of the wheel, positive to zoom in
  void zoom(int steps);
  /// The point in plot coordinates about which to zoom; without one it is the cursor, wherever it is at each small step.
  void setAnchor(std::optional<QPointF> anchor) { m_anchor = anchor; }

signals:
  void refreshRequested(int delay, bool quick); ///< after so many milliseconds; quick: at once what is quickly done

private:
  struct Animation {
    QTimeLine *line;
    int steps;
  };

  void stop();
  void step();
  void finish(QTimeLine *line);

  PlotZoom &m_zoom;
  int m_pending = 0; ///< wheel steps of all animations that run
  std::deque<Animation> m_running;
  std::optional<QPointF> m_anchor;
};
