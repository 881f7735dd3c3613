#pragma once

#include <base/finding.h>

#include <QElapsedTimer>

/// Asks now and then whether the work is to go on: often enough for a person, seldom enough to cost nothing.
class AskedProgress {
public:
  explicit AskedProgress(const Progress &progress)
      : m_progress(progress) {}
  /// False for good once somebody has said so. \param fraction of the whole that is done
  bool goesOn(double fraction) {
    constexpr qint64 MillisecondsBetween = 20;
    if (!m_progress || m_isStopped || (m_last.isValid() && m_last.elapsed() < MillisecondsBetween))
      return !m_isStopped;
    m_isStopped = !m_progress(fraction);
    m_last.start();
    return !m_isStopped;
  }

private:
  const Progress &m_progress;
  QElapsedTimer m_last;
  bool m_isStopped = false;
};
