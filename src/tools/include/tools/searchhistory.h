#pragma once

#include <tools/searchparams.h>

#include <QStringList>

/// The last searches as texts, the latest first.
class SearchHistory {
public:
  static constexpr int MaximumEntries = 10;
  static QString separator() { return QStringLiteral("  __|__  "); }

  /// False when the same search stands there already, wherever it does.
  bool add(const SearchParams &params);
  const QStringList &entries() const { return m_entries; }

  /// name, type, prop, searchString and formula of an entry; fewer than four for what is none.
  static QStringList parts(const QString &entry);

private:
  QStringList m_entries;
};
