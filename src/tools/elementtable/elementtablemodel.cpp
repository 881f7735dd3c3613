#include "elementtable/elementtablemodel.h"

#include <model/names.h>
#include <model/netdata.h>
#include <tools/plaintip.h>

#include <algorithm>
#include <cmath>
#include <limits>

ElementTableModel::ElementTableModel(NetData &net, QObject *parent)
    : QAbstractTableModel(parent)
    , m_net(net)
    , m_sortedKey(QStringLiteral("name")) {}

void ElementTableModel::clear() {
  beginResetModel();
  m_arrangement.reset(0);
  m_columns.clear();
  m_list.clear();
  m_restricted.clear();
  m_restriction.reset();
  m_marked.clear();
  m_selection.clear();
  m_display.reset();
  endResetModel();
}

void ElementTableModel::show(const QStringList &types, const std::vector<PropertyKey> &columns) {
  beginResetModel();
  m_columns.clear();
  m_list.gather(m_net, types);
  m_arrangement.reset(m_list.size());
  makeColumns(columns);
  m_restricted = m_restriction ? bits(*m_restriction) : std::vector<bool>();
  m_marked = m_selection.isEmpty() ? std::vector<bool>() : bits(m_selection);
  sortRows();
  arrange();
  endResetModel();
}

void ElementTableModel::refresh() {
  beginResetModel();
  const std::vector<PropertyKey> keys = columns();
  m_columns.clear();
  if (m_list.gather(m_net, QStringList(m_list.types()))) {
    m_arrangement.reset(m_list.size());
    m_restricted = m_restriction ? bits(*m_restriction) : std::vector<bool>();
    m_marked = m_selection.isEmpty() ? std::vector<bool>() : bits(m_selection);
  }
  makeColumns(keys);
  sortRows();
  arrange();
  endResetModel();
}

/// Columns that are there already are kept with what was read of them.
void ElementTableModel::makeColumns(const std::vector<PropertyKey> &columns) {
  if (m_columns.empty())
    m_display.emplace(*m_net.metaData());
  std::vector<std::unique_ptr<ElementColumn>> made;
  std::vector<PropertyKey> keys{Names::all().name};
  std::copy_if(columns.begin(), columns.end(), std::back_inserter(keys),
               [](PropertyKey key) { return key != Names::all().name && !key.isNull(); });
  for (const PropertyKey key : keys) {
    const auto before = std::find_if(m_columns.begin(), m_columns.end(),
                                     [key](const auto &column) { return column != nullptr && column->key() == key; });
    made.push_back(before != m_columns.end() ? std::move(*before)
                                             : std::make_unique<ElementColumn>(key, m_list, *m_display, *m_net.metaData()));
  }
  m_columns = std::move(made);
}

void ElementTableModel::setColumns(const std::vector<PropertyKey> &columns) {
  beginResetModel();
  makeColumns(columns);
  arrange();
  endResetModel();
}

std::vector<PropertyKey> ElementTableModel::columns() const {
  std::vector<PropertyKey> keys;
  for (std::size_t i = 1; i < m_columns.size(); ++i)
    keys.push_back(m_columns[i]->key());
  return keys;
}

const ElementColumn *ElementTableModel::find(const QString &property) const {
  const PropertyKey key = PropertyKey::find(property);
  const auto found =
      std::find_if(m_columns.begin(), m_columns.end(), [key](const auto &column) { return column->key() == key; });
  return found == m_columns.end() ? nullptr : found->get();
}

void ElementTableModel::sortRows() {
  if (const ElementColumn *column = find(m_sortedKey))
    m_arrangement.sort(*column, m_sortOrder);
}

/// Filters, groups and lays out anew; the order of the rows stays.
void ElementTableModel::arrange() {
  std::vector<RowArrangement::Asked> asked;
  for (const auto &column : m_columns) {
    const QString text = m_filters.value(column->key().name().toLower());
    if (!text.isEmpty())
      asked.push_back({column.get(), RowFilter(text, column->hasNumbers())});
  }
  m_arrangement.filter(asked, m_restricted);
  const ElementColumn *grouped = m_grouping == Grouping::Property ? find(m_groupedBy) : nullptr;
  if (grouped != nullptr)
    m_arrangement.group(*grouped, find(m_sortedKey) == grouped ? m_sortOrder : Qt::AscendingOrder, tr("(empty)"));
  else if (m_grouping == Grouping::All)
    m_arrangement.groupAll(tr("All elements"));
  m_arrangement.layOut(m_figures);
}

void ElementTableModel::setFilter(int column, const QString &text) {
  if (filter(column) == text)
    return;
  QMap<QString, QString> filters = m_filters;
  filters.insert(keyOf(column), text);
  setFilters(filters);
}

void ElementTableModel::setFilters(const QMap<QString, QString> &filters) {
  beginResetModel();
  m_filters = filters;
  for (auto it = m_filters.begin(); it != m_filters.end();)
    it = it->trimmed().isEmpty() ? m_filters.erase(it) : std::next(it);
  arrange();
  endResetModel();
}

QString ElementTableModel::fault(int column) const {
  const QString text = filter(column);
  return text.isEmpty() ? QString() : RowFilter(text, this->column(column).hasNumbers()).fault();
}

bool ElementTableModel::isFiltered() const {
  return m_restriction.has_value() || std::any_of(m_columns.begin(), m_columns.end(), [this](const auto &column) {
           return m_filters.contains(column->key().name().toLower());
         });
}

void ElementTableModel::restrictTo(const std::optional<Selection> &elements) {
  if (!elements && !m_restriction)
    return;
  beginResetModel();
  m_restriction = elements;
  m_restricted = elements ? bits(*elements) : std::vector<bool>();
  arrange();
  endResetModel();
}

void ElementTableModel::sort(int column, Qt::SortOrder order) {
  if (column < 0 || column >= columnCount())
    return;
  setSorted(keyOf(column), order);
  beginResetModel();
  sortRows();
  arrange();
  endResetModel();
}

void ElementTableModel::setSorted(const QString &property, Qt::SortOrder order) {
  m_sortedKey = property;
  m_sortOrder = order;
}

int ElementTableModel::sortedColumn() const {
  for (int column = 0; column < columnCount(); ++column) {
    if (keyOf(column) == m_sortedKey)
      return column;
  }
  return -1;
}

void ElementTableModel::groupBy(Grouping grouping, const QString &property) {
  beginResetModel();
  m_grouping = grouping;
  m_groupedBy = property;
  arrange();
  endResetModel();
}

void ElementTableModel::setFigures(const std::vector<ColumnFigures::Kind> &figures) {
  beginResetModel();
  m_figures = figures;
  m_arrangement.layOut(m_figures);
  endResetModel();
}

int ElementTableModel::headOf(int line) const {
  const auto &lines = m_arrangement.lines();
  while (line >= 0 && lines[fromQt(line)].what != RowArrangement::Line::Head)
    --line;
  return line;
}

bool ElementTableModel::isCollapsed(int line) const {
  const int head = headOf(line);
  return head >= 0 && m_arrangement.isCollapsed(this->line(head).index);
}

void ElementTableModel::setCollapsed(int line, bool isCollapsed) {
  const int head = headOf(line);
  if (head < 0 || this->isCollapsed(head) == isCollapsed)
    return;
  beginResetModel();
  m_arrangement.setCollapsed(this->line(head).index, isCollapsed);
  m_arrangement.layOut(m_figures);
  endResetModel();
}

void ElementTableModel::collapseAll(bool areCollapsed) {
  beginResetModel();
  m_arrangement.collapseAll(areCollapsed);
  m_arrangement.layOut(m_figures);
  endResetModel();
}

std::vector<bool> ElementTableModel::bits(const Selection &selection) const {
  std::vector<bool> rows(m_list.size());
  for (const QString &name : selection.names()) {
    const element *source = m_net.element(name);
    const Index row = source == nullptr ? NoIndex : m_list.find(source);
    if (row < rows.size())
      rows[row] = true;
  }
  return rows;
}

void ElementTableModel::mark(const Selection &selection) {
  m_selection = selection;
  m_marked = selection.isEmpty() ? std::vector<bool>() : bits(selection);
  if (rowCount() > 0)
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1), {MarkedRole});
  emit marked();
}

bool ElementTableModel::isMarked(int line) const {
  const RowArrangement::Line &shown = m_arrangement.lines()[fromQt(line)];
  return shown.what == RowArrangement::Line::Element && shown.index < m_marked.size() && m_marked[shown.index];
}

std::vector<Index> ElementTableModel::markedRows() const {
  std::vector<Index> rows;
  if (m_marked.empty())
    return rows;
  for (const Index row : m_arrangement.passing()) {
    if (m_marked[row])
      rows.push_back(row);
  }
  return rows;
}

QStringList ElementTableModel::elementsOf(int line) const {
  const RowArrangement::Line &shown = m_arrangement.lines()[fromQt(line)];
  if (shown.what == RowArrangement::Line::Element)
    return {m_list.name(shown.index)};
  QStringList names;
  if (shown.what == RowArrangement::Line::Figure)
    return names;
  const RowArrangement::Group &group = m_arrangement.groups()[shown.index];
  for (std::size_t member = group.first; member < group.first + group.count; ++member)
    names.append(m_list.name(m_arrangement.passing()[member]));
  return names;
}

int ElementTableModel::lineOf(const QString &name) const {
  const element *source = m_net.element(name);
  const Index row = source == nullptr ? NoIndex : m_list.find(source);
  const auto &lines = m_arrangement.lines();
  const auto found = std::find_if(lines.begin(), lines.end(), [row](const RowArrangement::Line &line) {
    return line.what == RowArrangement::Line::Element && line.index == row;
  });
  return found == lines.end() ? -1 : toQt(static_cast<std::size_t>(found - lines.begin()));
}

int ElementTableModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : toQt(m_arrangement.lines().size());
}

int ElementTableModel::columnCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : toQt(m_columns.size());
}

/// NaN for what is no number.
double ElementTableModel::cellNumber(const RowArrangement::Line &line, int column) const {
  const ElementColumn &of = this->column(column);
  if (line.what == RowArrangement::Line::Element)
    return of.numbers()[line.index];
  constexpr double Nothing = std::numeric_limits<double>::quiet_NaN();
  if (line.what != RowArrangement::Line::Figure || column == 0 || !of.hasNumbers())
    return Nothing;
  const ColumnFigures &figures = m_arrangement.figures(line.index, of);
  return figures.count() == 0 ? Nothing : figures.value(line.figure); // a group without such numbers counts none
}

QString ElementTableModel::cellText(const RowArrangement::Line &line, int column) const {
  if (line.what == RowArrangement::Line::Element)
    return this->column(column).text(line.index);
  if (column == 0 && line.what == RowArrangement::Line::Figure)
    return ColumnFigures::title(line.figure);
  if (column == 0) {
    const RowArrangement::Group &group = m_arrangement.groups()[line.index];
    return QStringLiteral("%1 (%2)").arg(group.title).arg(group.count);
  }
  const double number = cellNumber(line, column);
  return std::isnan(number) ? QString() : PropertyText::shortest(number).toString();
}

QVariant ElementTableModel::cellValue(const RowArrangement::Line &line, int column) const {
  const double number = cellNumber(line, column);
  return std::isnan(number) ? QVariant(cellText(line, column)) : QVariant(number);
}

QVariant ElementTableModel::data(const QModelIndex &index, int role) const {
  if (!index.isValid())
    return QVariant();
  const RowArrangement::Line &shown = m_arrangement.lines()[fromQt(index.row())];
  switch (role) {
  case Qt::DisplayRole:
    return cellText(shown, index.column());
  case Qt::TextAlignmentRole:
    return int(Qt::AlignVCenter | (column(index.column()).hasNumbers() ? Qt::AlignRight : Qt::AlignLeft));
  case ElementRole:
    return shown.what == RowArrangement::Line::Element ? QVariant(m_list.name(shown.index)) : QVariant();
  case MarkedRole:
    return isMarked(index.row());
  case ValueRole:
    return cellValue(shown, index.column());
  case LineRole:
    return int(shown.what);
  case NumbersRole:
    return column(index.column()).hasNumbers();
  case QuantityRole:
    return !column(index.column()).unit().isEmpty();
  default:
    return QVariant();
  }
}

QVariant ElementTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical)
    return QAbstractTableModel::headerData(section, orientation, role); // numbers
  if (section < 0 || section >= columnCount())
    return QVariant();
  const ElementColumn &of = column(section);
  if (role == Qt::DisplayRole)
    return of.title();
  if (role == Qt::ToolTipRole)
    return PlainTip::of(of.explanation().isEmpty() ? of.title() : of.title() + QLatin1Char('\n') + of.explanation());
  return QVariant();
}
