#include "measure.h"

#include "networkgenerator.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <malloc.h>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// A line "NAME:   123 kB" of /proc/self/status, in MB.
double statusMB(const char *name) {
  QFile file(QStringLiteral("/proc/self/status"));
  if (!file.open(QIODevice::ReadOnly))
    return 0.0;
  for (const QByteArray &line : file.readAll().split('\n')) {
    if (line.startsWith(name))
      return line.mid(static_cast<int>(qstrlen(name)) + 1).trimmed().split(' ').first().toDouble() / 1024.0;
  }
  return 0.0;
}

void forgetPeak() {
  QFile file(QStringLiteral("/proc/self/clear_refs"));
  if (file.open(QIODevice::WriteOnly))
    file.write("5");
}

} // namespace

QString Measure::network(int elements) {
  static const QTemporaryDir root;
  static std::set<int> made;
  const QString folder = root.filePath(QStringLiteral("n%1").arg(elements));
  if (made.insert(elements).second)
    NetworkGenerator::write(folder, elements, 1);
  return NetworkGenerator::geometryFile(folder);
}

QString Measure::networkOfOtherNames(int elements) {
  const QString from = network(elements);
  const QString folder = QFileInfo(from).path() + QStringLiteral("/other");
  QString to = folder + QStringLiteral("/other.geom.jsn");
  if (QFile::exists(to))
    return to;
  QDir().mkpath(folder);
  QFile source(from);
  QFile target(to);
  if (!source.open(QIODevice::ReadOnly) || !target.open(QIODevice::WriteOnly))
    qFatal("no network can be written");
  // "NAME":{ and what names an element, such as "node1":"NAME".
  static const QRegularExpression name(
      QStringLiteral("^(,?\"[A-Za-z])|(\"(?:node1|node2|gasnode|driven|drive)\":\"[A-Za-z])"));
  while (!source.atEnd()) {
    QString line = QString::fromUtf8(source.readLine());
    target.write(line.replace(name, QStringLiteral("\\1\\2\u00e4")).toUtf8());
  }
  return to;
}

double Measure::peakMemory(const std::function<void()> &work) {
  int ends[2];
  if (pipe(ends) != 0)
    return -1.0;
  malloc_trim(0); // or the child would fill what the parent has freed
  const pid_t child = fork();
  if (child == 0) {
    forgetPeak();
    const double before = statusMB("VmRSS");
    work();
    const double added = statusMB("VmHWM") - before;
    const ssize_t written = write(ends[1], &added, sizeof added);
    _exit(written == sizeof added ? 0 : 1);
  }
  close(ends[1]);
  double added = -1.0;
  const bool got = child > 0 && read(ends[0], &added, sizeof added) == sizeof added;
  close(ends[0]);
  if (child > 0)
    waitpid(child, nullptr, 0);
  return got ? added : -1.0;
}
