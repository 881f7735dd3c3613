#pragma once

#include <QDateTime>
#include <QString>

/// The day, and perhaps the hour, that the name of a scenario says: "2024-01-31", "20240131_0600", "31.01.2024".
namespace ScenarioDate {

struct Date {
  QDateTime at; ///< null for a name that says none
  bool hasTime = false;

  bool isKnown() const { return at.isValid(); }
};

Date of(const QString &name);
/// As people read it, by their locale.
QString shown(const Date &date);

} // namespace ScenarioDate
