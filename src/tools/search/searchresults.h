#pragma once

#include <tools/networksearch.h>

#include <QStringList>

#include <vector>

class QTreeWidget;

/// The tree of a search: a row for each property that was found.
class SearchResults {
public:
  enum Column { NameColumn, TypeColumn, PropertyColumn, ValueColumn, UnitColumn, ColumnCount };

  explicit SearchResults(QTreeWidget &tree);

  /// Puts these rows in place of those before, sorted by name.
  void show(const std::vector<SearchRow> &rows);
  /// Puts these rows in place of those of the element.
  void replace(const QString &name, const std::vector<SearchRow> &rows);
  /// The texts as they are shown.
  std::vector<QStringList> rows() const;
  /// Names of the machines in the selected rows that are shown, each once.
  QStringList selectedMachines() const;

private:
  QTreeWidget &m_tree;
};
