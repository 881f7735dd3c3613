#include "wholefile.h"

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>

namespace {

QString tr(const char *text) {
  return QCoreApplication::translate("WholeFile", text);
}

} // namespace

bool WholeFile::write(const QString &path, const QByteArray &text, QString *reason) {
  QSaveFile file(path);
  if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit())
    return true;
  *reason = tr("Cannot write %1: %2").arg(path, file.errorString());
  return false;
}

bool WholeFile::copy(const QString &from, const QString &to, QString *reason) {
  QFile source(from);
  if (source.open(QIODevice::ReadOnly))
    return write(to, source.readAll(), reason);
  *reason = tr("Cannot read %1: %2").arg(from, source.errorString());
  return false;
}
