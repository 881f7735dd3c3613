#include <base/fileaccess.h>
#include <base/readfiles.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include <mutex>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace FileAccess {

namespace {

struct Confinement {
  std::mutex mutex; // readers work in threads of their own
  QString folder;   // canonical, without a slash at its end; empty: none
};

Confinement &confinement() {
  static Confinement only;
  return only;
}

QString confiningFolder() {
  Confinement &only = confinement();
  const std::lock_guard<std::mutex> lock(only.mutex);
  return only.folder;
}

/// The path with every link followed, as far as it exists; empty when it cannot be told where it leads.
QString reachedPath(const QString &path) {
  QString existing = QDir().absoluteFilePath(path); // not cleaned: dots behind a link lead elsewhere than they seem
  QString rest;                                     // what would still have to be made
  for (int steps = 0; steps < 1000; ++steps) {
    const QFileInfo info(existing);
    if (info.exists())
      return info.canonicalFilePath() + rest;
    if (info.isSymLink()) { // to something that is not there: it would be made where the link points
      existing = info.symLinkTarget();
      continue;
    }
    if (info.isRoot() || info.fileName() == QLatin1String("..")) // whose parent that is depends on what is not there
      break;
    rest.prepend(QLatin1Char('/') + info.fileName());
    existing = info.path();
  }
  return QString();
}

#ifdef Q_OS_UNIX
/// Opens without waiting for the other end of a pipe, and looks at what was opened rather than at what the name meant
/// before.
bool openRegular(QFile &file, QString *why) {
  const int descriptor = ::open(QFile::encodeName(file.fileName()).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (descriptor < 0) {
    *why = qt_error_string(errno);
    return false;
  }
  struct stat status {};
  if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
    *why = S_ISDIR(status.st_mode) ? QCoreApplication::translate("FileAccess", "is a directory")
                                   : QCoreApplication::translate("FileAccess", "is not a regular file");
    ::close(descriptor);
    return false;
  }
  if (file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle))
    return true;
  *why = file.errorString();
  ::close(descriptor);
  return false;
}
#else
bool openRegular(QFile &file, QString *why) {
  if (QFileInfo(file.fileName()).isDir())
    *why = QCoreApplication::translate("FileAccess", "is a directory");
  else if (file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
    return true;
  else
    *why = file.errorString();
  return false;
}
#endif

} // namespace

void confineTo(const QString &folder) {
  const QString canonical = folder.isEmpty() ? QString() : QFileInfo(folder).canonicalFilePath();
  Confinement &only = confinement();
  const std::lock_guard<std::mutex> lock(only.mutex);
  only.folder = canonical;
}

QString confinementFault(const QString &path) {
  const QString folder = confiningFolder();
  if (folder.isEmpty())
    return QString();
  const QString reached = reachedPath(path);
  const QString within = folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
  if (reached == folder || reached.startsWith(within))
    return QString();
  if (reached.isEmpty())
    return QCoreApplication::translate("FileAccess", "leads nowhere: into a circle of links, or a folder that is not there");
  return QCoreApplication::translate("FileAccess", "leads out of the workspace, to %1").arg(reached);
}

bool openForReading(QFile &file, Source source, qint64 largest, QString *reason) {
  const QString path = file.fileName(); // which a file that is opened by its descriptor forgets
  QString why = source == Source::Workspace ? confinementFault(path) : QString();
  if (why.isEmpty() && source == Source::Workspace)
    ReadFiles::note(path);
  if (why.isEmpty() && openRegular(file, &why)) {
    if (largest == AnySize || file.size() <= largest)
      return true;
    why = QCoreApplication::translate("FileAccess", "is larger than %1").arg(QLocale().formattedDataSize(largest));
    file.close();
  }
  if (reason != nullptr)
    *reason = path + QStringLiteral(": ") + why;
  return false;
}

std::optional<QByteArray> readWhole(const QString &path, Source source, qint64 largest, QString *reason) {
  QFile file(path);
  if (!openForReading(file, source, largest, reason))
    return std::nullopt;
  // A file that grows while it is read counts with the size that was judged.
  const qint64 size = file.size();
  QByteArray content = file.read(size);
  if (file.error() == QFile::NoError && content.size() == size)
    return content;
  if (reason != nullptr)
    *reason = path + QStringLiteral(": ") +
              (file.error() != QFile::NoError ? file.errorString()
                                              : QCoreApplication::translate("FileAccess", "cannot be read to its end"));
  return std::nullopt;
}

} // namespace FileAccess
