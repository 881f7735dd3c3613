#include <base/wholefile.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

namespace {

/// Remembers whether all that was asked for was written. Makers of documents do not look at what a device returns, of a
/// block that was written in part the system names no error, and a later block that fits makes the file forget one.
class WitnessedFile : public QSaveFile {
public:
  using QSaveFile::QSaveFile;

  bool isComplete() const { return m_isComplete; }

protected:
  qint64 writeData(const char *data, qint64 size) override {
    qint64 done = 0;
    while (m_isComplete && done < size) {
      const qint64 written = QSaveFile::writeData(data + done, size - done); // again for what is left: that names the error
      m_isComplete = written > 0;
      done += qMax(written, qint64(0));
    }
    return m_isComplete ? done : -1;
  }

private:
  bool m_isComplete = true;
};

} // namespace

namespace WholeFile {

bool write(const QString &path, FileAccess::Source source, const Writer &writer, QString *reason) {
  WitnessedFile file(path);
  const QFileInfo present(path);
  QString why = source == FileAccess::Source::Workspace ? FileAccess::confinementFault(path) : QString();
  if (why.isEmpty() && present.exists() && !present.isFile())
    why = QCoreApplication::translate("WholeFile", "it is not a regular file");
  if (why.isEmpty() && file.open(QIODevice::WriteOnly)) {
    // commit() flushes what is left in the buffer without asking whether that succeeded.
    const bool isWritten = writer(file, &why) && file.isComplete() && file.flush() && file.error() == QFileDevice::NoError;
    if (isWritten && file.commit())
      return true;
    if (!isWritten) {
      // Before the cancelling becomes the error; a writer of a format only knows that it failed.
      const bool isFailed = file.error() != QFileDevice::NoError;
      if (isFailed && file.errorString() != QCoreApplication::translate("QIODevice", "Unknown error"))
        why = file.errorString();
      else if (isFailed || !file.isComplete() || why.isEmpty())
        why = QCoreApplication::translate("WholeFile", "not everything could be written; is the disk full?");
      file.cancelWriting();
    }
  }
  if (why.isEmpty())
    why = file.errorString();
  if (reason != nullptr)
    *reason = QCoreApplication::translate("WholeFile", "Could not write %1: %2").arg(path, why);
  return false;
}

bool write(const QString &path, FileAccess::Source source, const QByteArray &content, QString *reason) {
  return write(
      path, source, [&](QIODevice &device, QString *) { return device.write(content) == content.size(); }, reason);
}

bool copy(const QString &from, const QString &to, QString *reason) {
  QFile source(from);
  if (!FileAccess::openForReading(source, FileAccess::Source::Workspace, FileAccess::AnySize, reason))
    return false;
  const auto blocks = [&source, &from](QIODevice &device, QString *why) {
    constexpr qint64 Block = qint64(1) << 20;
    qint64 left = source.size();
    while (left > 0) {
      const QByteArray block = source.read(std::min(left, Block));
      if (block.isEmpty()) {
        *why = QCoreApplication::translate("WholeFile", "%1 cannot be read to its end").arg(from);
        return false;
      }
      if (device.write(block) != block.size())
        return false;
      left -= block.size();
    }
    return true;
  };
  return write(to, FileAccess::Source::Trusted, blocks, reason);
}

} // namespace WholeFile
