#include "stagetimes.h"

#include <QFile>

#include <algorithm>
#include <ctime>
#include <unistd.h>

namespace {

constexpr double Nano = 1e-9;

/// Seconds since the system started this process, to a hundredth: what loading the libraries took is part of them. 0 where
/// the system does not tell.
double processAge() {
  QFile file(QStringLiteral("/proc/self/stat"));
  timespec now{};
  if (!file.open(QIODevice::ReadOnly) || clock_gettime(CLOCK_BOOTTIME, &now) != 0)
    return 0.0;
  const QByteArray line = file.readAll();
  // Behind the name, which may hold blanks, the time of the start is the twentieth field.
  constexpr int StartField = 19;
  const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
  const double start = fields.value(StartField).toDouble() / static_cast<double>(sysconf(_SC_CLK_TCK));
  const double age = static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * Nano - start;
  return fields.size() > StartField ? std::max(0.0, age) : 0.0;
}

} // namespace

StageTimes::StageTimes() {
  add(QStringLiteral("start"), processAge());
  m_timer.start();
}

void StageTimes::end(const QString &stage) {
  add(stage, static_cast<double>(m_timer.nsecsElapsed()) * Nano - m_sinceStart);
}

void StageTimes::add(const QString &stage, double seconds) {
  m_stages.insert(stage, m_stages.value(stage).toDouble() + seconds);
  m_total += seconds;
  if (m_timer.isValid())
    m_sinceStart += seconds;
}

QJsonObject StageTimes::seconds() const {
  QJsonObject all = m_stages;
  all.insert(QStringLiteral("total"), m_total);
  return all;
}
