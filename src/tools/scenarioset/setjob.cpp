#include "scenarioset/setjob.h"

#include <QElapsedTimer>

SetJob::~SetJob() {
  stop();
}

void SetJob::start(Work work) {
  stop();
  m_isStopped = false;
  const int number = ++m_number;
  // The caller's thread alone touches the object; the other one sends it what it has to say.
  const auto say = [this, number](const std::function<void()> &what) {
    QMetaObject::invokeMethod(
        this,
        [this, number, what] {
          if (number == m_number && isRunning())
            what();
        },
        Qt::QueuedConnection);
  };
  m_thread = std::thread([this, say, work = std::move(work)] {
    constexpr int BetweenStepsMs = 50;
    QElapsedTimer since;
    since.start();
    const bool isDone = work([&](double fraction) {
      if (since.elapsed() > BetweenStepsMs) {
        since.restart();
        say([this, fraction] { emit progressed(fraction); });
      }
      return !m_isStopped;
    });
    say([this, isDone] {
      m_thread.join();
      emit ended(isDone);
    });
  });
}

void SetJob::stop() {
  m_isStopped = true;
  if (m_thread.joinable())
    m_thread.join();
}
