#include <paper/pagecontent.h>

#include <QDate>

QString PageFacts::line() const {
  QStringList parts;
  if (!caseName.isEmpty())
    parts.append(tr("Case: %1").arg(caseName));
  if (!scenario.isEmpty())
    parts.append(tr("Scenario: %1").arg(scenario));
  parts.append(QDate::currentDate().toString(Qt::ISODate));
  return parts.join(QStringLiteral("   \u00B7   "));
}
