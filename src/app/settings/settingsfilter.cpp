#include "settingsfilter.h"

#include "settingsmodel.h"

#include <algorithm>

SettingsFilter::SettingsFilter(QObject *parent)
    : QSortFilterProxyModel(parent) {
  setRecursiveFilteringEnabled(true); // a group stays with what is in it
}

void SettingsFilter::setWords(const QString &text) {
  m_words = text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
  invalidateFilter();
}

void SettingsFilter::setChangedOnly(bool changedOnly) {
  m_changedOnly = changedOnly;
  invalidateFilter();
}

bool SettingsFilter::filterAcceptsRow(int row, const QModelIndex &parent) const {
  if (!parent.isValid())
    return false; // on account of its settings alone
  const QModelIndex setting = sourceModel()->index(row, SettingsModel::NameColumn, parent);
  if (m_changedOnly && !setting.data(SettingsModel::ChangedRole).toBool())
    return false;
  const QString words = setting.data(SettingsModel::WordsRole).toString();
  return std::all_of(m_words.begin(), m_words.end(),
                     [&words](const QString &word) { return words.contains(word, Qt::CaseInsensitive); });
}
