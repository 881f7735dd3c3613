#include <base/wholefile.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>

namespace WholeFile {

bool write(const QString &path, FileAccess::Source source, const Writer &writer, QString *reason) {
  QSaveFile file(path);
  const QFileInfo present(path);
  QString why = source == FileAccess::Source::Workspace ? FileAccess::confinementFault(path) : QString();
  if (why.isEmpty() && present.exists() && !present.isFile())
    why = QCoreApplication::translate("WholeFile", "it is not a regular file");
  if (why.isEmpty() && file.open(QIODevice::WriteOnly)) {
    // commit() flushes what is left in the buffer without asking whether that succeeded.
    const bool isWritten = writer(file, &why) && file.flush() && file.error() == QFileDevice::NoError;
    if (isWritten && file.commit())
      return true;
    if (!isWritten) {
      // Before the cancelling becomes the error; a writer of a format only knows that it failed. Of a block that was
      // written in part the system names no error.
      if (file.error() != QFileDevice::NoError)
        why = file.errorString();
      else if (why.isEmpty())
        why = QCoreApplication::translate("WholeFile", "not everything could be written; is the disk full?");
      file.cancelWriting();
    }
  }
  if (why.isEmpty())
    why = file.errorString();
  if (reason != nullptr)
    *reason = QCoreApplication::translate("WholeFile", "Cannot write %1: %2").arg(path, why);
  return false;
}

bool write(const QString &path, FileAccess::Source source, const QByteArray &content, QString *reason) {
  return write(
      path, source, [&](QIODevice &device, QString *) { return device.write(content) == content.size(); }, reason);
}

bool copy(const QString &from, const QString &to, QString *reason) {
  const auto content = FileAccess::readWhole(from, FileAccess::Source::Workspace, FileAccess::AnySize, reason);
  return content && write(to, FileAccess::Source::Trusted, *content, reason);
}

} // namespace WholeFile
