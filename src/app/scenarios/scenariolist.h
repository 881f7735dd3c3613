#pragma once

#include "scenarios/scenariodate.h"

#include <base/index.h>

#include <QString>

#include <vector>

struct ScenarioEntry {
  QString name; ///< of its folder
  QString file;
  ScenarioDate::Date date;
};

/// The scenarios of a case in the order in which people step through them: those with a date by it, before the others by
/// name, numbers in names by their size.
class ScenarioList {
public:
  /// Looks into every folder of the case; the files are not opened. It may be called from any thread.
  static ScenarioList ofCase(const QString &caseFolder, bool isJson);

  const std::vector<ScenarioEntry> &entries() const { return m_entries; }
  std::size_t size() const { return m_entries.size(); }
  const ScenarioEntry &operator[](Index index) const { return m_entries[index]; }
  /// NoIndex when the case has no scenario of the name.
  Index indexOf(const QString &name) const;
  /// How many, from the first on, have a date.
  Index dated() const;

private:
  std::vector<ScenarioEntry> m_entries;
};
