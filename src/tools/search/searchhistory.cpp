#include <tools/searchhistory.h>

bool SearchHistory::add(const SearchParams &params) {
  const QString entry =
      QStringList{params.name, params.type, params.prop, params.searchString, params.formula}.join(separator());
  if (m_entries.contains(entry))
    return false;
  if (m_entries.size() >= MaximumEntries)
    m_entries.removeLast();
  m_entries.prepend(entry);
  return true;
}

QStringList SearchHistory::parts(const QString &entry) {
  return entry.split(separator());
}
