#include <drawing/typedbounds.h>

#include <QStringList>
#include <QUrl>

#include <algorithm>

QString TypedBounds::aspectKey(Aspect aspect) {
  static const PerAspect<QString> Keys{{QStringLiteral("colorFunc"), QStringLiteral("widthFunc"),
                                        QStringLiteral("nodeColorFunc"), QStringLiteral("nodeSizeFunc")}};
  return Keys[aspect];
}

PerAspect<TypedBounds::OfFunctions> TypedBounds::read(const QString &text) {
  enum { AspectKey, Property, Minimum, Maximum, Unit, Fields };
  constexpr int MostEntries = 1000;
  PerAspect<OfFunctions> bounds{};
  int count = 0;
  for (const QString &entry : text.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
    QStringList fields = entry.split(QLatin1Char('|'));
    if (fields.size() != Fields || ++count > MostEntries)
      continue;
    for (QString &field : fields)
      field = QUrl::fromPercentEncoding(field.toUtf8());
    for (const Aspect aspect : AllAspects) {
      if (fields[AspectKey] == aspectKey(aspect))
        bounds[aspect].insert(fields[Property], {fields[Minimum], fields[Maximum], fields[Unit]});
    }
  }
  return bounds;
}

QString TypedBounds::written(const PerAspect<OfFunctions> &bounds) {
  QStringList entries;
  for (const Aspect aspect : AllAspects) {
    QStringList properties = bounds[aspect].keys();
    std::sort(properties.begin(), properties.end());
    for (const QString &property : qAsConst(properties)) {
      const TypedBounds typed = bounds[aspect].value(property);
      QStringList fields{aspectKey(aspect), property, typed.minimum, typed.maximum, typed.unit};
      for (QString &field : fields)
        field = QString::fromLatin1(QUrl::toPercentEncoding(field));
      entries.append(fields.join(QLatin1Char('|')));
    }
  }
  return entries.join(QLatin1Char(';'));
}
