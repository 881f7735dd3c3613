#include "scenarios/scenariolist.h"

#include <io/scenariofiles.h>

#include <QCollator>
#include <QLocale>

#include <algorithm>

ScenarioList ScenarioList::ofCase(const QString &caseFolder, bool isJson) {
  struct Sorted {
    ScenarioEntry entry;
    QCollatorSortKey key;
  };
  QCollator collator(QLocale(QLocale::English, QLocale::UnitedStates)); // that of the C locale knows no numbers
  collator.setNumericMode(true);
  collator.setCaseSensitivity(Qt::CaseInsensitive);
  const auto found = ScenarioFiles::ofCase(caseFolder, isJson ? ScenarioFiles::Form::Json : ScenarioFiles::Form::Text);
  std::vector<Sorted> sorted;
  sorted.reserve(found.size());
  for (const ScenarioFiles::Scenario &scenario : found)
    sorted.push_back({{scenario.name, scenario.file, ScenarioDate::of(scenario.name)}, collator.sortKey(scenario.name)});
  std::stable_sort(sorted.begin(), sorted.end(), [](const Sorted &a, const Sorted &b) {
    const ScenarioDate::Date &first = a.entry.date;
    const ScenarioDate::Date &second = b.entry.date;
    if (first.isKnown() != second.isKnown())
      return first.isKnown();
    return first.at != second.at ? first.at < second.at : a.key < b.key;
  });
  ScenarioList list;
  list.m_entries.reserve(sorted.size());
  for (Sorted &one : sorted)
    list.m_entries.push_back(std::move(one.entry));
  return list;
}

Index ScenarioList::indexOf(const QString &name) const {
  const auto found =
      std::find_if(m_entries.begin(), m_entries.end(), [&name](const ScenarioEntry &entry) { return entry.name == name; });
  return found == m_entries.end() ? NoIndex : toIndex(static_cast<std::size_t>(found - m_entries.begin()));
}

Index ScenarioList::dated() const {
  const auto first =
      std::find_if(m_entries.begin(), m_entries.end(), [](const ScenarioEntry &entry) { return !entry.date.isKnown(); });
  return toIndex(static_cast<std::size_t>(first - m_entries.begin()));
}
