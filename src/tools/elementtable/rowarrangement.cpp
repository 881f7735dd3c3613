#include "elementtable/rowarrangement.h"

#include "elementtable/elementcolumn.h"

#include <QHash>

#include <algorithm>
#include <numeric>

void RowArrangement::reset(std::size_t rows) {
  m_order.resize(rows);
  std::iota(m_order.begin(), m_order.end(), 0);
  m_passing.clear();
  m_groups.clear();
  m_figures.clear();
  m_lines.clear();
}

void RowArrangement::sort(const ElementColumn &column, Qt::SortOrder order) {
  column.prepareOrder();
  std::stable_sort(m_order.begin(), m_order.end(), [&](Index a, Index b) { return column.isBefore(a, b, order); });
}

void RowArrangement::filter(const std::vector<Asked> &filters, const std::vector<bool> &restriction) {
  m_groups.clear();
  m_figures.clear();
  m_passing.clear();
  m_passing.reserve(m_order.size());
  std::vector<const std::vector<double> *> numbers;
  numbers.reserve(filters.size());
  for (const Asked &asked : filters)
    numbers.push_back(&asked.column->numbers());
  for (const Index row : m_order) {
    bool passes = restriction.empty() || restriction[row];
    for (std::size_t i = 0; i < filters.size() && passes; ++i)
      passes = filters[i].filter.passes((*numbers[i])[row], [&] { return filters[i].column->text(row); });
    if (passes)
      m_passing.push_back(row);
  }
}

void RowArrangement::group(const ElementColumn &column, Qt::SortOrder order, const QString &titleOfEmpty) {
  column.prepareOrder();
  QHash<QString, Index> known;
  std::vector<std::vector<Index>> members;
  std::vector<QString> titles;
  for (const Index row : m_passing) {
    const QString text = column.text(row);
    const auto entry = known.constFind(text);
    Index group = entry == known.constEnd() ? NoIndex : *entry;
    if (group == NoIndex) {
      group = toIndex(members.size());
      known.insert(text, group);
      members.emplace_back();
      titles.push_back(text.isEmpty() ? titleOfEmpty : text);
    }
    members[group].push_back(row);
  }
  std::vector<Index> places(members.size());
  std::iota(places.begin(), places.end(), 0);
  std::stable_sort(places.begin(), places.end(),
                   [&](Index a, Index b) { return column.isBefore(members[a].front(), members[b].front(), order); });
  m_passing.clear();
  for (const Index group : places) {
    m_groups.push_back({titles[group], m_passing.size(), members[group].size()});
    m_passing.insert(m_passing.end(), members[group].begin(), members[group].end());
  }
}

void RowArrangement::groupAll(const QString &title) {
  m_groups.assign(1, {title, 0, m_passing.size()});
}

void RowArrangement::layOut(const std::vector<ColumnFigures::Kind> &figures) {
  m_lines.clear();
  m_lines.reserve(m_passing.size() + m_groups.size() * (figures.size() + 1));
  if (m_groups.empty()) {
    for (const Index row : m_passing)
      m_lines.push_back({Line::Element, ColumnFigures::Count, row});
    return;
  }
  for (std::size_t i = 0; i < m_groups.size(); ++i) {
    const Group &group = m_groups[i];
    m_lines.push_back({Line::Head, ColumnFigures::Count, toIndex(i)});
    for (const ColumnFigures::Kind figure : figures)
      m_lines.push_back({Line::Figure, figure, toIndex(i)});
    if (isCollapsed(toIndex(i)))
      continue;
    for (std::size_t member = group.first; member < group.first + group.count; ++member)
      m_lines.push_back({Line::Element, ColumnFigures::Count, m_passing[member]});
  }
}

const ColumnFigures &RowArrangement::figures(Index group, const ElementColumn &column) const {
  const auto [entry, isNew] = m_figures.try_emplace({group, &column});
  if (isNew) {
    const std::vector<double> &numbers = column.numbers();
    const Group &of = m_groups[group];
    for (std::size_t member = of.first; member < of.first + of.count; ++member)
      entry->second.add(numbers[m_passing[member]]);
  }
  return entry->second;
}

void RowArrangement::setCollapsed(Index group, bool isCollapsed) {
  if (isCollapsed)
    m_collapsed.insert(m_groups[group].title);
  else
    m_collapsed.remove(m_groups[group].title);
}

void RowArrangement::collapseAll(bool areCollapsed) {
  m_collapsed.clear();
  for (const Group &group : m_groups) {
    if (areCollapsed)
      m_collapsed.insert(group.title);
  }
}
