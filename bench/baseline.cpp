#include "baseline.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

Baseline::Network Baseline::read(const QString &path) {
  Network network;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    return network;
  const QList<QByteArray> lines = file.readAll().split('\n');
  for (const QByteArray &raw : lines) {
    QByteArray line = raw.trimmed();
    if (line.size() < 2 || line.startsWith('{') || line.startsWith('}'))
      continue;
    if (line.startsWith(','))
      line[0] = ' ';
    const QJsonObject object = QJsonDocument::fromJson("{" + line + "}").object();
    for (auto element = object.begin(); element != object.end(); ++element) {
      auto &target = network[element.key()];
      const QJsonObject properties = element.value().toObject();
      for (auto property = properties.begin(); property != properties.end(); ++property)
        target[property.key()] = property.value().isDouble() ? QString::number(property.value().toDouble(), 'g', 16)
                                                             : property.value().toString();
    }
  }
  return network;
}
