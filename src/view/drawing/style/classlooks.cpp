#include <drawing/classlooks.h>

#include <QUrl>

namespace {

/// Without separators behind the last one that says something.
QString joined(QStringList texts) {
  while (!texts.isEmpty() && texts.last().isEmpty())
    texts.removeLast();
  return texts.join(QLatin1Char(';'));
}

} // namespace

std::vector<QColor> ClassLooks::colors(const QString &text) {
  std::vector<QColor> colors;
  const QStringList names = text.split(QLatin1Char(';')).mid(0, Most);
  colors.reserve(static_cast<std::size_t>(names.size()));
  for (const QString &name : names)
    colors.emplace_back(name.trimmed());
  return colors;
}

QString ClassLooks::text(const std::vector<QColor> &colors) {
  QStringList names;
  for (const QColor &color : colors)
    names.append(color.isValid() ? color.name() : QString());
  return joined(names);
}

QStringList ClassLooks::labels(const QString &text) {
  QStringList labels = text.split(QLatin1Char(';')).mid(0, Most);
  for (QString &label : labels)
    label = QUrl::fromPercentEncoding(label.trimmed().toUtf8());
  return labels;
}

QString ClassLooks::text(const QStringList &labels) {
  QStringList encoded;
  for (const QString &label : labels)
    encoded.append(QString::fromLatin1(QUrl::toPercentEncoding(label.trimmed(), QByteArrayLiteral(" "))));
  return joined(encoded);
}
