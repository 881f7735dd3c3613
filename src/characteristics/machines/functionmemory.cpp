#include <base/fileaccess.h>
#include <base/generalsettings.h>
#include <base/wholefile.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <machines/functionmemory.h>

namespace {

/// It is there where the published ones count, and holds the workspace's name for whoever looks into it.
QString file(const QString &workspaceRoot) {
  const QByteArray name = QFileInfo(workspaceRoot).canonicalFilePath().toUtf8();
  const QByteArray hash = QCryptographicHash::hash(name, QCryptographicHash::Sha1).toHex();
  return GeneralSettings::userDirectory() +
         QStringLiteral("/characteristics/published-%1.txt").arg(QString::fromLatin1(hash));
}

} // namespace

FunctionSource FunctionMemory::of(const QString &workspaceRoot) {
  return !workspaceRoot.isEmpty() && QFile::exists(file(workspaceRoot)) ? FunctionSource::Published : FunctionSource::Fitted;
}

bool FunctionMemory::keep(const QString &workspaceRoot, FunctionSource source, QString *reason) {
  const QString path = file(workspaceRoot);
  if (source == FunctionSource::Fitted) {
    QFile old(path);
    const bool isGone = !old.exists() || old.remove();
    if (!isGone)
      *reason = old.errorString();
    return isGone;
  }
  QDir().mkpath(QFileInfo(path).path());
  return WholeFile::write(path, FileAccess::Source::Trusted, workspaceRoot.toUtf8(), reason);
}
