#pragma once

#include <base/nivramsg.h>

#include <QElapsedTimer>

/// How long an opening takes, without the time for which a person was asked.
class OpeningClock {
public:
  OpeningClock() { m_timer.start(); }
  qint64 elapsed() const { return m_timer.elapsed() - (NivraMsg::waitedForAnswers() - m_waitedBefore); }

private:
  QElapsedTimer m_timer;
  qint64 m_waitedBefore = NivraMsg::waitedForAnswers();
};
