#include "wholefile.h"

#include <io/networkfileconverter.h>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <convert/caseconverter.h>

namespace {

QString tr(const char *text) {
  return QCoreApplication::translate("CaseConverter", text);
}

} // namespace

CaseConverter::Result CaseConverter::convert(const QString &from, const QString &to) {
  Result result;
  const auto fail = [&result](const QString &reason) {
    result.ok = false;
    result.findings.push_back({Finding::Severity::Critical, QString(), 0, reason, QString()});
  };
  const QDir source(from);
  const QDir target(to); // either may be relative to where the program runs
  result.ok = true;
  if (QFileInfo(to).absoluteFilePath().startsWith(source.absolutePath() + QLatin1Char('/')) ||
      QFileInfo(from) == QFileInfo(to)) {
    fail(tr("%1 lies in the folder that is converted").arg(to));
    return result;
  }
  for (QDirIterator files(source.absolutePath(), QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
    const QString path = files.next();
    const QString name = source.relativeFilePath(path);
    const QString copied = target.filePath(name);
    if (!target.mkpath(QFileInfo(name).path())) {
      fail(tr("Cannot make the folder of %1").arg(copied));
      continue;
    }
    if (!NetworkFileConverter::isNetworkFile(name)) {
      QString reason;
      if (!WholeFile::copy(path, copied, &reason))
        fail(reason);
      continue;
    }
    NetworkFileConverter::Result converted = NetworkFileConverter::convert(path, NetworkFileConverter::otherForm(copied));
    result.ok = result.ok && converted.ok;
    result.files += converted.ok ? 1 : 0;
    append(result.findings, converted.findings);
  }
  if (result.ok && result.files == 0)
    fail(tr("%1 holds no network file").arg(from));
  return result;
}
