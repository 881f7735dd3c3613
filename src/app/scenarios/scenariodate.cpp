#include "scenarios/scenariodate.h"

#include <QLocale>
#include <QRegularExpression>

namespace {

/// The parts of a date stand together or are parted by one and the same character.
const QString Time = QStringLiteral("(?:[T _-]?(?<hour>[01]\\d|2[0-3])[-:_.h]?(?<minute>[0-5]\\d))?(?!\\d)");

QRegularExpressionMatch match(const QString &name) {
  static const QRegularExpression yearFirst(
      QStringLiteral("(?<!\\d)(?<year>(?:19|20)\\d\\d)([-_.]?)(?<month>0[1-9]|1[0-2])\\2(?<day>0[1-9]|[12]\\d|3[01])") +
      Time);
  static const QRegularExpression dayFirst(
      QStringLiteral("(?<!\\d)(?<day>0?[1-9]|[12]\\d|3[01])([-_.])(?<month>0?[1-9]|1[0-2])\\2(?<year>(?:19|20)\\d\\d)") +
      Time);
  const QRegularExpressionMatch found = yearFirst.match(name);
  return found.hasMatch() ? found : dayFirst.match(name);
}

} // namespace

ScenarioDate::Date ScenarioDate::of(const QString &name) {
  const QRegularExpressionMatch found = match(name);
  const auto number = [&found](const char *part) {
    return found.captured(QLatin1String(part)).toInt();
  };
  if (!found.hasMatch())
    return {};
  const QDate day(number("year"), number("month"), number("day"));
  if (!day.isValid())
    return {};
  return {QDateTime(day, QTime(number("hour"), number("minute")), Qt::UTC),
          !found.captured(QStringLiteral("hour")).isEmpty()};
}

QString ScenarioDate::shown(const Date &date) {
  if (!date.isKnown())
    return QString();
  const QLocale locale;
  return date.hasTime ? locale.toString(date.at, QLocale::ShortFormat)
                      : locale.toString(date.at.date(), QLocale::ShortFormat);
}
