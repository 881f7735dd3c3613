#include "lastscenario.h"

#include <base/fileaccess.h>
#include <base/logfiles.h>
#include <base/nivramsg.h>
#include <base/wholefile.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

constexpr int RememberedCases = 200;

QString file() {
  return LogFiles::directory() + QStringLiteral("/lastscenarios.json");
}

/// Pairs of case folder and scenario file as seen from it, the latest first.
QJsonArray known() {
  QString reason; // mostly that there is none yet
  const auto text = FileAccess::readWhole(file(), FileAccess::Source::Trusted, FileAccess::LargestConfiguration, &reason);
  return text ? QJsonDocument::fromJson(*text).array() : QJsonArray();
}

QString key(const QString &caseDirectory) {
  return QDir(caseDirectory).canonicalPath();
}

} // namespace

QString LastScenario::of(const QString &caseDirectory) {
  const QString sought = key(caseDirectory);
  const QJsonArray entries = known();
  for (const QJsonValue &entry : entries) {
    if (entry[0].toString() != sought)
      continue;
    const QString path = QDir(caseDirectory).filePath(entry[1].toString());
    return QFileInfo(path).isFile() ? path : QString();
  }
  return QString();
}

void LastScenario::remember(const QString &caseDirectory, const QString &scenarioFile) {
  const QString inCase = QDir(caseDirectory).relativeFilePath(scenarioFile);
  if (inCase.startsWith(QStringLiteral("..")))
    return;
  const QString own = key(caseDirectory);
  const QJsonArray before = known();
  QJsonArray entries;
  entries.append(QJsonArray{own, inCase});
  for (const QJsonValue &entry : before) {
    if (entry[0].toString() != own && entries.size() < RememberedCases)
      entries.append(entry);
  }
  QString reason;
  if (entries != before && !WholeFile::write(file(), FileAccess::Source::Trusted, QJsonDocument(entries).toJson(), &reason))
    NivraMsg::logWarning(reason);
}
