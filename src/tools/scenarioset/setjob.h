#pragma once

#include <base/finding.h>

#include <QObject>

#include <atomic>
#include <functional>
#include <thread>

/// One piece of work at a time in a thread of its own, with progress, and stopped whenever somebody wants.
class SetJob : public QObject {
  Q_OBJECT
public:
  /// Returns false when it was stopped or failed.
  using Work = std::function<bool(const Progress &progress)>;

  using QObject::QObject;
  ~SetJob() override;

  /// In place of what is running.
  void start(Work work);
  bool isRunning() const { return m_thread.joinable(); }
  /// Waits until it has ended, which it does at its next step. Nothing is told of it any more.
  void stop();

signals:
  void progressed(double fraction);
  void ended(bool isDone);

private:
  std::thread m_thread;
  std::atomic<bool> m_isStopped{false};
  int m_number = 0; ///< of the work, so that nothing late of another one is told
};
