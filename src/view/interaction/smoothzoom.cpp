#include "interaction/smoothzoom.h"

#include "interaction/plotzoom.h"

#include <base/settings.h>

#include <algorithm>

SmoothZoom::SmoothZoom(PlotZoom &zoom)
    : QObject(&zoom)
    , m_zoom(zoom) {}

void SmoothZoom::zoom(int steps) {
  constexpr int StartDelay = 1000;
  if (steps == 0)
    return;
  if (m_pending != 0 && (steps > 0) != (m_pending > 0)) {
    m_pending = steps;
    stop();
  } else {
    m_pending += steps;
  }
  const int duration = std::max(1, Settings::SmoothZoomDuration.value());
  auto *line = new QTimeLine(duration, this);
  line->setUpdateInterval(std::max(1, duration / std::max(1, Settings::SmoothZoomSteps.value())));
  connect(line, &QTimeLine::valueChanged, this, &SmoothZoom::step);
  connect(line, &QTimeLine::finished, this, [this, line] { finish(line); });
  if (m_running.empty())
    m_zoom.beginMove();
  m_running.push_back({line, steps});
  emit refreshRequested(StartDelay, false);
  line->start();
}

void SmoothZoom::stop() {
  for (const Animation &animation : m_running) {
    animation.line->disconnect(this);
    animation.line->stop();
    animation.line->deleteLater();
  }
  m_running.clear();
}

void SmoothZoom::step() {
  constexpr double StepsToDouble = 50.0;
  constexpr double SmallestFactor = 0.1; // however fast the wheel is turned back
  const double factor = std::max(SmallestFactor, m_pending / StepsToDouble + 1.0);
  const QPointF anchor = m_anchor.value_or(m_zoom.cursor());
  if (factor > 1.0)
    m_zoom.zoomIn(anchor, factor);
  else if (factor < 1.0)
    m_zoom.zoomOut(anchor, 1.0 / factor);
}

void SmoothZoom::finish(QTimeLine *line) {
  const auto ended = std::find_if(m_running.begin(), m_running.end(),
                                  [line](const Animation &animation) { return animation.line == line; });
  if (ended == m_running.end())
    return;
  m_pending -= ended->steps;
  line->deleteLater();
  m_running.erase(ended);
  if (!m_running.empty())
    return;
  m_pending = 0;
  m_zoom.endMove();
  emit refreshRequested(std::max(0, Settings::SmoothZoomPixtestDelay.value()), true);
}
