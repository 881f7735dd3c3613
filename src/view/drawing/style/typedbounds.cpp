#include <QStringList>
#include <QUrl>

#include <algorithm>
#include <drawing/drawfunctions.h>
#include <drawing/typedbounds.h>

QString TypedBounds::key(const QString &function) {
  return DrawFunction::propertyName(function.trimmed()).toLower();
}

TypedBounds::OfSettings TypedBounds::read(const QString &text) {
  enum { Setting, Property, Minimum, Maximum, Unit, Fields };
  constexpr int Most = 1000;
  OfSettings bounds;
  int count = 0;
  for (const QString &entry : text.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
    QStringList fields = entry.split(QLatin1Char('|'));
    if (fields.size() != Fields || ++count > Most)
      continue;
    for (QString &field : fields)
      field = QUrl::fromPercentEncoding(field.toUtf8());
    bounds[fields[Setting]].insert(fields[Property], {fields[Minimum], fields[Maximum], fields[Unit]});
  }
  return bounds;
}

QString TypedBounds::written(const OfSettings &bounds) {
  QStringList entries;
  for (const auto &[setting, functions] : bounds) {
    QStringList properties = functions.keys();
    std::sort(properties.begin(), properties.end());
    for (const QString &property : qAsConst(properties)) {
      const TypedBounds &typed = functions[property];
      QStringList fields{setting, property, typed.minimum, typed.maximum, typed.unit};
      for (QString &field : fields)
        field = QString::fromLatin1(QUrl::toPercentEncoding(field));
      entries.append(fields.join(QLatin1Char('|')));
    }
  }
  return entries.join(QLatin1Char(';'));
}
