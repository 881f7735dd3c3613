#pragma once

#include <QElapsedTimer>
#include <QJsonObject>

/// What every stage of the run took, from the start of the process on, so that their sum is the time on the clock.
class StageTimes {
public:
  StageTimes();

  /// The stage that ends here began when the one before ended.
  void end(const QString &stage);
  void add(const QString &stage, double seconds);
  QJsonObject seconds() const;

private:
  QElapsedTimer m_timer;
  QJsonObject m_stages;
  double m_sinceStart = 0.0; ///< accounted for on the timer
  double m_total = 0.0;
};
