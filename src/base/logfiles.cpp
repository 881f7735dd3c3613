#include <base/logfiles.h>

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

int realOutput = STDOUT_FILENO;
int realError = STDERR_FILENO;

/// A copy that survives the redirection and is not inherited by programs that are started.
int keep(int descriptor) {
  return fcntl(descriptor, F_DUPFD_CLOEXEC, 3);
}

bool redirect(FILE *stream, int descriptor, int file) {
  std::fflush(stream);
  if (dup2(file, descriptor) < 0)
    return false;
  constexpr int BufferSize = 4096;
  std::setvbuf(stream, nullptr, _IOLBF, BufferSize);
  return true;
}

} // namespace

QString LogFiles::directory() {
  QString path = QDir(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation)).absolutePath();
  QDir().mkpath(path);
  return path;
}

QString LogFiles::currentLog() {
  return directory() + QStringLiteral("/NivraViewer.log");
}

QString LogFiles::batchLog() {
  return directory() + QStringLiteral("/NivraViewerBatch.log");
}

QString LogFiles::logOf(Run run) {
  return run == Run::Window ? currentLog() : batchLog();
}

QString LogFiles::crashLog() {
  return directory() + QStringLiteral("/NivraViewerCrash.log");
}

QString LogFiles::crashMarker() {
  return directory() + QStringLiteral("/crash");
}

bool LogFiles::takeCrash() {
  if (!QFile::exists(crashMarker()))
    return false;
  QFile::remove(crashMarker());
  QFile::rename(currentLog(), crashLog()); // does not replace: an older crash log stays until a person removes it
  return true;
}

bool LogFiles::redirectStreams(Run run) {
  const QByteArray path = QFile::encodeName(logOf(run));
  // Appending, so that both streams share the end of the file even after somebody truncates it.
  const int file = open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, 0644);
  if (file < 0)
    return false;
  realOutput = keep(STDOUT_FILENO);
  realError = keep(STDERR_FILENO);
  const bool done = redirect(stdout, STDOUT_FILENO, file) && redirect(stderr, STDERR_FILENO, file);
  close(file);
  return done;
}

int LogFiles::realStandardOutput() {
  return realOutput;
}

int LogFiles::realStandardError() {
  return realError;
}
