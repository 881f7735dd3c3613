#include <base/settings.h>
#include <drawing/pixtest.h>

#include <QTime>

#include <algorithm>

namespace {

int timeOfDay() {
  return QTime::currentTime().msecsSinceStartOfDay();
}

} // namespace

Pixtest::Pixtest(std::function<void(Labels)> run, std::function<View()> view)
    : m_run(std::move(run))
    , m_view(std::move(view)) {
  m_withLabels.setSingleShot(true);
  m_withoutLabels.setSingleShot(true);
  connect(&m_withLabels, &QTimer::timeout, this, [this] { m_run(Labels::With); });
  connect(&m_withoutLabels, &QTimer::timeout, this, [this] { m_run(Labels::Without); });
}

void Pixtest::requestPixtest(int delay, bool quick) {
  if (m_isSuspended || !Settings::PerformPixtest.value())
    return;
  const QString placement = Settings::LabelPlacement.value();
  if (placement == QLatin1String("never")) {
    m_run(Labels::Without);
    return;
  }
  if (placement == QLatin1String("proximity")) {
    const View view = m_view();
    if (view.isSubassembly || view.ratio <= Settings::LabelPlacementRatio.value())
      schedule(delay, quick);
    else
      scheduleWithoutLabels(delay);
    return;
  }
  const int wait = patience();
  if (wait > 0) {
    // "wait" keeps the request for later; otherwise it is void.
    if (placement == QLatin1String("wait"))
      schedule(std::max(delay, wait), quick);
    return;
  }
  m_lastPlacement = timeOfDay();
  schedule(delay, quick);
}

int Pixtest::patience() const {
  constexpr int Least = 100;
  const int apart = std::max(Least, Settings::LabelPlacementMsec.value());
  const int passed = timeOfDay() - m_lastPlacement;
  return m_lastPlacement < 0 || passed < 0 || passed >= apart ? 0 : apart - passed; // less than 0 after midnight
}

void Pixtest::schedule(int delay, bool quick) {
  if (delay < 0) {
    m_withLabels.stop();
    m_withoutLabels.stop();
    m_run(Labels::With);
    return;
  }
  m_withoutLabels.stop();
  if (quick && !m_withLabels.isActive())
    m_run(Labels::Without);
  m_withLabels.start(delay);
}

void Pixtest::scheduleWithoutLabels(int delay) {
  if (delay < 0) {
    m_run(Labels::Without);
    return;
  }
  m_withLabels.stop();
  if (!m_withoutLabels.isActive())
    m_run(Labels::Without);
  m_withoutLabels.start(delay);
}
