#include "jsonfile.h"

#include <base/fileaccess.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>

bool isJsonPath(const QString &path) {
  return path.endsWith(QStringLiteral(".jsn")) || path.endsWith(QStringLiteral(".json"));
}

QString jsonPathOf(const QString &textPath) {
  const QString path = textPath + QStringLiteral(".jsn");
  const QString longer = textPath + QStringLiteral(".json");
  return !QFileInfo::exists(path) && QFileInfo::exists(longer) ? longer : path;
}

std::optional<QJsonObject> readJsonObject(const QString &path, QString *reason) {
  const auto failed = [&](const QString &why) {
    *reason = path + QStringLiteral(": ") + why;
    return std::nullopt;
  };
  std::optional<QByteArray> content =
      FileAccess::readWhole(path, FileAccess::Source::Workspace, FileAccess::LargestConfiguration, reason);
  if (!content)
    return std::nullopt;
  QByteArray &text = *content;
  if (text.startsWith("\xEF\xBB\xBF"))
    text.remove(0, 3);
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(text, &error);
  if (error.error != QJsonParseError::NoError)
    return failed(QCoreApplication::translate("JsonFile", "%1 at byte %2").arg(error.errorString()).arg(error.offset));
  if (!document.isObject())
    return failed(QCoreApplication::translate("JsonFile", "is no JSON object"));
  return document.object();
}
