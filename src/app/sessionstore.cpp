#include "sessionstore.h"

#include <base/fileaccess.h>
#include <base/logfiles.h>
#include <base/nivramsg.h>
#include <base/wholefile.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

QString SessionStore::folder() {
  return LogFiles::directory() + QStringLiteral("/sessions");
}

QString SessionStore::caseName(const QString &caseDirectory) {
  return QDir(caseDirectory).canonicalPath();
}

QString SessionStore::fileOf(const QString &caseDirectory) {
  const QByteArray hash = QCryptographicHash::hash(caseName(caseDirectory).toUtf8(), QCryptographicHash::Sha1).toHex();
  return QStringLiteral("%1/%2.json").arg(folder(), QString::fromLatin1(hash));
}

std::optional<Session> SessionStore::read(const QString &caseDirectory) {
  const QString path = fileOf(caseDirectory);
  if (!QFile::exists(path))
    return std::nullopt;
  QString reason;
  const auto text = FileAccess::readWhole(path, FileAccess::Source::Trusted, Session::LargestText, &reason);
  std::optional<Session> session;
  if (text) {
    session = Session::fromJson(*text, caseName(caseDirectory), &reason);
    if (!reason.isEmpty())
      reason.prepend(path + QStringLiteral(": "));
  }
  if (!reason.isEmpty())
    NivraMsg::logWarning(Session::tr("What was kept of this case cannot be used: %1").arg(reason));
  return session;
}

void SessionStore::write(const QString &caseDirectory, const QByteArray &text) {
  QDir().mkpath(folder());
  QString reason;
  if (!WholeFile::write(fileOf(caseDirectory), FileAccess::Source::Trusted, text, &reason))
    NivraMsg::logWarning(reason);
  const QFileInfoList files = QDir(folder()).entryInfoList({QStringLiteral("*.json")}, QDir::Files, QDir::Time);
  for (const QFileInfo &old : files.mid(Most))
    QFile::remove(old.filePath());
}
