#pragma once

#include "elementtable/columnfigures.h"
#include "elementtable/rowfilter.h"

#include <base/index.h>

#include <QSet>
#include <QString>

#include <map>
#include <vector>

class ElementColumn;

/// Which rows of a list are shown, in which order, and what stands between them.
///
/// 1. The order is one of all rows. Sorting changes it only among rows that differ, so that it keeps what was sorted before.
/// 2. Rows that pass the filters stand in that order; grouping gathers them, in the same order within a group.
/// 3. Lines are what is seen: a head for each group, the figures of it, and its rows unless it is collapsed; without groups
///    the rows alone.
class RowArrangement {
public:
  struct Line {
    enum What : unsigned char { Element, Head, Figure };
    What what = Element;
    ColumnFigures::Kind figure = ColumnFigures::Count;
    Index index = 0; ///< of the row, or of the group
  };
  struct Group {
    QString title;
    std::size_t first = 0; ///< among the rows that pass
    std::size_t count = 0;
  };
  struct Asked {
    const ElementColumn *column = nullptr;
    RowFilter filter;
  };

  /// All rows in the order of the list, none of them laid out.
  void reset(std::size_t rows);
  void sort(const ElementColumn &column, Qt::SortOrder order);
  /// \param restriction by row, empty for all
  void filter(const std::vector<Asked> &filters, const std::vector<bool> &restriction);
  /// To be called after each filter(), which ends the groups. Groups are ordered as the values of the column are.
  void group(const ElementColumn &column, Qt::SortOrder order, const QString &titleOfEmpty);
  void groupAll(const QString &title);
  void layOut(const std::vector<ColumnFigures::Kind> &figures);

  const std::vector<Line> &lines() const { return m_lines; }
  const std::vector<Index> &passing() const { return m_passing; }
  const std::vector<Group> &groups() const { return m_groups; }
  const ColumnFigures &figures(Index group, const ElementColumn &column) const;

  bool isCollapsed(Index group) const { return m_collapsed.contains(m_groups[group].title); }
  void setCollapsed(Index group, bool isCollapsed);
  void collapseAll(bool areCollapsed);
  /// Titles of the groups that are collapsed, of whatever was grouped by.
  const QSet<QString> &collapsed() const { return m_collapsed; }
  void setCollapsed(const QSet<QString> &titles) { m_collapsed = titles; }

private:
  std::vector<Index> m_order;
  std::vector<Index> m_passing;
  std::vector<Group> m_groups;
  std::vector<Line> m_lines;
  QSet<QString> m_collapsed;
  mutable std::map<std::pair<Index, const ElementColumn *>, ColumnFigures> m_figures; ///< as they are asked for
};
