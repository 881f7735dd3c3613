#include "jsonfile.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

std::optional<QJsonObject> readJsonObject(const QString &path, QString *reason) {
  constexpr qint64 LargestConfiguration = 64LL << 20;
  QFile file(path);
  const auto failed = [&](const QString &why) {
    *reason = path + QStringLiteral(": ") + why;
    return std::nullopt;
  };
  if (QFileInfo(path).isDir())
    return failed(QStringLiteral("is a directory"));
  if (!file.open(QIODevice::ReadOnly))
    return failed(file.errorString());
  if (file.size() > LargestConfiguration)
    return failed(QStringLiteral("is too large for a configuration"));
  QByteArray text = file.readAll();
  if (text.startsWith("\xEF\xBB\xBF"))
    text.remove(0, 3);
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(text, &error);
  if (error.error != QJsonParseError::NoError)
    return failed(QStringLiteral("%1 at byte %2").arg(error.errorString()).arg(error.offset));
  if (!document.isObject())
    return failed(QStringLiteral("is no JSON object"));
  return document.object();
}
